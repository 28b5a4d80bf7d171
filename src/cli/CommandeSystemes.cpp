// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeSystemes.h"

#include <fmt/ostream.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "base/Tirage.h"
#include "Options.h"
#include "systems/FichiersSysteme.h"
#include "systems/Garantie.h"

namespace norvane {

namespace {

constexpr const char* AideGarantie = "Garantie : 2/2 2/3 2/4 2/5 3/3 3/4 3/5 4/4 ou 4/5";
constexpr std::size_t ExemplesMax = 20;

Resultat<TypeGarantie> LireGarantie(const std::string& texte) {
    if (const TypeGarantie* type = ChercherGarantie(texte)) return *type;
    return Erreur{fmt::format("« {} » n'est pas une garantie : {}.", texte, AideGarantie)};
}

}  // namespace

void OptionsSelection::declarer(CLI::App& app) {
    app.add_option("GARANTIE", garantie, AideGarantie)->required();
    app.add_option("--numeros", numeros, "Numéros de la sélection, entre blancs")->required();
    app.add_option("--fixes", fixes, "Numéros de base, parmi ceux de la sélection");
}

Resultat<OptionsSelection::Lue> OptionsSelection::lire() const {
    const auto type = LireGarantie(garantie);
    if (!type) return Erreur{type.erreur()};
    const auto choisis = LireNumeros(numeros, NbBoules, NumeroMax);
    if (!choisis) return Erreur{choisis.erreur()};
    const auto base = LireNumeros(fixes, 0, BaseSystemeMax);
    if (!base) return Erreur{base.erreur()};
    const Lue lue{*type, Ensemble::de(*choisis), Ensemble::de(*base)};
    if (!lue.numeros.contient(lue.fixes))
        return Erreur{"Les numéros de --fixes doivent être parmi ceux de --numeros."};
    return lue;
}

CommandeSystemesCatalogue::CommandeSystemesCatalogue(CLI::App& groupe)
    : Commande(groupe.add_subcommand("catalogue", "Les systèmes d'une garantie")) {
    sousCommande().add_option("GARANTIE", garantie_, AideGarantie)->required();
}

Resultat<Rien> CommandeSystemesCatalogue::executer(const Contexte& contexte, std::ostream& out) {
    const auto type = LireGarantie(garantie_);
    if (!type) return Erreur{type.erreur()};
    const auto entrees = ChargerCatalogue(contexte.repertoire, *type);
    if (!entrees) return Erreur{entrees.erreur()};
    for (const EntreeCatalogue& entree : *entrees) out << entree.ligne << '\n';
    return Rien{};
}

CommandeSystemesGenerer::CommandeSystemesGenerer(CLI::App& groupe)
    : Commande(groupe.add_subcommand("generer", "Les grilles d'un système sur une sélection")) {
    selection_.declarer(sousCommande());
    sousCommande().add_option("--sortie", sortie_, "Fichier *.syr à écrire au lieu des grilles");
}

Resultat<Rien> CommandeSystemesGenerer::executer(const Contexte& contexte, std::ostream& out) {
    const auto selection = selection_.lire();
    if (!selection) return Erreur{selection.erreur()};
    const auto entrees = CatalogueIntegre(selection->type);
    const auto entree = std::ranges::find_if(entrees, [&](const EntreeCatalogue& e) {
        return e.systeme.Selection == selection->numeros.taille() &&
               e.systeme.Base == selection->fixes.taille();
    });
    if (entree == entrees.end())
        return Erreur{
            fmt::format("Il n'y a pas de système {} de {} grilles au plus pour {} numéros dont {} "
                        "de base.",
                        selection_.garantie, GrillesSystemeMax, selection->numeros.taille(),
                        selection->fixes.taille())};
    const auto systeme = GenererSysteme(entree->systeme, {selection->numeros, selection->fixes});
    if (!systeme) return Erreur{systeme.erreur()};
    if (sortie_) return SauverSysteme(contexte.repertoire / *sortie_, *systeme);
    out << TexteGrilles(*systeme);
    return Rien{};
}

CommandeSystemesLire::CommandeSystemesLire(CLI::App& groupe)
    : Commande(groupe.add_subcommand("lire", "Le texte d'un fichier de système")) {
    sousCommande().add_option("FICHIER", fichier_, "Système *.syr")->required();
}

Resultat<Rien> CommandeSystemesLire::executer(const Contexte& contexte, std::ostream& out) {
    const auto systeme = ChargerSysteme(contexte.repertoire / fichier_);
    if (!systeme) return Erreur{systeme.erreur()};
    out << TexteSysteme(*systeme);
    return Rien{};
}

CommandeSystemesVerifier::CommandeSystemesVerifier(CLI::App& groupe)
    : Commande(groupe.add_subcommand("verifier",
                                     "Si une liste de grilles tient une garantie, cas par cas")) {
    sousCommande().add_option("FICHIER", fichier_, "Grilles en texte, une par ligne")->required();
    selection_.declarer(sousCommande());
}

Resultat<Rien> CommandeSystemesVerifier::executer(const Contexte& contexte, std::ostream& out) {
    const auto selection = selection_.lire();
    if (!selection) return Erreur{selection.erreur()};
    const auto systeme = ImporterSysteme(contexte.repertoire / fichier_);
    if (!systeme) return Erreur{systeme.erreur()};
    const auto bilan =
        VerifierGarantie(GrillesEnsembles(*systeme), selection->numeros, selection->fixes,
                         selection->type.X, selection->type.Y, ExemplesMax);
    if (!bilan) return Erreur{bilan.erreur()};
    fmt::print(out, "garantie {}\ncas\t{}\nmanques\t{}\n", bilan->tenue() ? "tenue" : "non tenue",
               bilan->cas, bilan->manques);
    for (const Ensemble exemple : bilan->exemples)
        fmt::print(out, "{:02}\n", fmt::join(exemple.valeurs(), " "));
    return Rien{};
}

}  // namespace norvane
