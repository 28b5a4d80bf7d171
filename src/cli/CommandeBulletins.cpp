// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeBulletins.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <ostream>

#include "Options.h"
#include "Phrases.h"
#include "slips/Marques.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {

namespace {

/// What does not keep the marks from being printed.
void Prevenir(const Contexte& contexte, const std::string& phrase) {
    if (phrase.empty()) return;
    contexte.progression.effacer();
    EcrirePhrase(contexte.err, phrase);
}

}  // namespace

CommandeBulletins::CommandeBulletins(CLI::App& racine)
    : Commande(racine.add_subcommand(
          "bulletins", "Les marques que portent les bulletins d'une liste de grilles")) {
    CLI::App& app = sousCommande();
    app.add_option("FICHIER", fichier_, "Liste de grilles *.grl")->required();
    AjouterEntier(app, "--du", du_, "Premier bulletin ; par défaut 1");
    AjouterEntier(app, "--au", au_, "Dernier bulletin ; par défaut le dernier");
    AjouterEntier(app, "--marque", marque_, "Taille des marques, de 1 à 4 ; par défaut 4");
}

Resultat<Rien> CommandeBulletins::executer(const Contexte& contexte, std::ostream& out) {
    const auto fichier = contexte.repertoire / fichier_;
    const auto grilles = ChargerGrilles(fichier);
    if (!grilles) return Erreur{grilles.erreur()};
    if (grilles->empty())
        return Erreur{fmt::format("« {} » ne contient aucune grille.", fichier.string())};
    const int nombre = NbBulletins(grilles->size());
    const auto du = EntierDans(du_.value_or(1), "--du", 1, nombre);
    if (!du) return Erreur{du.erreur()};
    const auto au = EntierDans(au_.value_or(nombre), "--au", 1, nombre);
    if (!au) return Erreur{au.erreur()};
    if (*du > *au)
        return Erreur{fmt::format("Bulletins croisés : --du {} est au-delà de --au {}.", *du, *au)};
    const auto marque = EntierDans(marque_.value_or(MarqueMax), "--marque", 1, MarqueMax);
    if (!marque) return Erreur{marque.erreur()};
    const auto options = LireOptions(FichierOptions(fichier));
    if (!options) return Erreur{options.erreur()};

    auto [geometrie, avertissement] = ChargerGeometrie(contexte.repertoire);
    const Reglages reglages = contexte.lireReglages();
    const MiseEnPlace mise{geometrie, *marque, reglages.DecalageImprimanteBordHaut,
                           reglages.DecalageImprimanteBordGauche};
    Prevenir(contexte, avertissement);
    Prevenir(contexte, AvertissementHorsPapier(mise, *grilles, *options, *du, *au));
    out << "bulletin\tgrille\tbloc\tvaleur\tx_mm\ty_mm\tcote_mm\n";
    for (int b = *du; b <= *au; ++b)
        for (const CaseBulletin& m : MarquesBulletin(mise, *grilles, options->de(b), b))
            fmt::print(out, "{}\t{}\t{}\t{}\t{:.3f}\t{:.3f}\t{:.3f}\n", b, m.grille,
                       NomBloc(m.bloc), m.valeur, m.place.x, m.place.y, m.cote);
    return Rien{};
}

}  // namespace norvane
