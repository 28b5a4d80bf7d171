// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeListe.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <ostream>
#include <utility>

#include "Enregistrements.h"
#include "lists/FichiersListes.h"
#include "lists/FichiersSelections.h"

namespace norvane {

CommandeListeLire::CommandeListeLire(CLI::App& liste)
    : Commande(liste.add_subcommand("lire", "Le type d'une liste *.lst, puis ses combinaisons")) {
    sousCommande().add_option("FICHIER", fichier_, "Liste de combinaisons *.lst")->required();
}

Resultat<Rien> CommandeListeLire::executer(const Contexte& contexte, std::ostream& /*out*/) {
    const auto gains = FormeGains::de(contexte.lireReglages().GainsNominaux);
    Liste liste;
    auto mene = contexte.mener([&](const Suivi& suivi) -> Resultat<Rien> {
        auto lue = OuvrirListe(contexte.repertoire / fichier_, gains, suivi);
        if (!lue) return Erreur{lue.erreur()};
        liste = *std::move(lue);
        return Rien{};
    });
    if (!mene) return mene;
    contexte.progression.effacer();
    // A list of millions of lines is not held back: nothing can be refused any more.
    fmt::print(contexte.sortie, "{}\t{}\t{}\t{}\t{}\n", liste.nombre(), liste.taille(),
               static_cast<int>(liste.mode()), liste.DebutListe, liste.FinListe);
    EcrireEnregistrements(contexte.sortie, liste.arene.disposition, liste.arene.mots);
    return Rien{};
}

CommandeSelectionLire::CommandeSelectionLire(CLI::App& selection)
    : Commande(selection.add_subcommand("lire", "Les numéros d'une sélection *.slt")) {
    sousCommande().add_option("FICHIER", fichier_, "Sélection de numéros *.slt")->required();
}

Resultat<Rien> CommandeSelectionLire::executer(const Contexte& contexte, std::ostream& out) {
    const auto grille = OuvrirSelection(contexte.repertoire / fichier_);
    if (!grille) return Erreur{grille.erreur()};
    for (const auto& [nom, priorite] :
         {std::pair{"absolue", Priorite::Absolue}, std::pair{"secondaire", Priorite::Secondaire}}) {
        Ensemble numeros;
        for (int n = 1; n <= NumeroMax; ++n)
            if ((*grille)[static_cast<std::size_t>(n - 1)] == priorite) numeros.ajouter(n);
        fmt::print(out, "{}\t{:02}\n", nom, fmt::join(numeros.valeurs(), " "));
    }
    return Rien{};
}

}  // namespace norvane
