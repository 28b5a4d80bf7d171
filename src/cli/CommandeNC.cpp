// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeNC.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <ostream>

#include "lists/FichiersListes.h"
#include "Options.h"

namespace norvane {

namespace {

CLI::App& Declarer(CLI::App& groupe, const char* nom, const char* description) {
    return *groupe.add_subcommand(nom, description);
}

void DeclarerNumeros(CLI::App& app, std::string& numeros) {
    app.add_option("--numeros", numeros, "Numéros de la grille, de 5 à 9")
        ->type_name("\"N N ...\"")
        ->required();
}

Resultat<Ensemble> Numeros(const std::string& texte) {
    const auto numeros = LireNumeros(texte, TypesVendus.front().n, TypesVendus.back().n);
    if (!numeros) return Erreur{numeros.erreur()};
    return Ensemble::de(*numeros);
}

Resultat<TypeGrille> Vendue(TypeGrille type) {
    if (TableMises(type.n, type.c) > MiseIncomplete) return type;
    return Erreur{fmt::format("Une grille {} n'est pas vendue : les types vont de {} à {}.",
                              LibelleType(type), LibelleType(TypesVendus.front()),
                              LibelleType(TypesVendus.back()))};
}

}  // namespace

CommandeNcTable::CommandeNcTable(CLI::App& groupe)
    : Commande(&Declarer(groupe, "table", "Les douze catégories d'une grille sur l'intervalle")) {
    DeclarerNumeros(sousCommande(), numeros_);
    sousCommande()
        .add_option("--chances", chances_, "Chances de la grille, de 1 à 10")
        ->type_name("\"C C ...\"")
        ->required();
}

Resultat<Rien> CommandeNcTable::executer(const Contexte& contexte, std::ostream& out) {
    const auto numeros = Numeros(numeros_);
    if (!numeros) return Erreur{numeros.erreur()};
    const auto chances = LireChances(chances_, 1, ChanceMax);
    if (!chances) return Erreur{chances.erreur()};
    const LigneNC ticket{*numeros, Ensemble::de(*chances)};
    if (const auto vendue = Vendue(ticket.type()); !vendue) return Erreur{vendue.erreur()};
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    out << "categorie\tNbFois\tDate\tEcart\tEcartMax\tNbEcartMax\tSuite\tSuiteMax\tNbSuiteMax\n";
    int categorie = 0;
    for (const auto& ligne : StatsCategories(donnees->base, donnees->de, donnees->a, ticket)) {
        const ResultatStats& r = ligne.resultat;
        fmt::print(out, "{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\n", categorie++, ligne.NbFois,
                   ligne.date == 0 ? "-" : fmt::to_string(ligne.date), r.Ecart, r.EcartMax,
                   r.NbEcartMax, r.Suite, r.SuiteMax, r.NbSuiteMax);
    }
    return Rien{};
}

CommandeNcListe::CommandeNcListe(CLI::App& groupe)
    : Commande(&Declarer(groupe, "liste",
                         "Les grilles d'un type avec ces numéros, une pour chaque choix de "
                         "chances")) {
    sousCommande()
        .add_option("TYPE", type_, "Type des grilles, de \"05 + 01C\" à \"09 + 01C\"")
        ->required();
    DeclarerNumeros(sousCommande(), numeros_);
}

Resultat<Rien> CommandeNcListe::executer(const Contexte& /*contexte*/, std::ostream& out) {
    const auto type = LireType(type_);
    if (!type) return Erreur{type.erreur()};
    const auto numeros = Numeros(numeros_);
    if (!numeros) return Erreur{numeros.erreur()};
    if (numeros->taille() != type->n)
        return Erreur{fmt::format("Une grille {} prend {} numéros, « {} » en compte {}.",
                                  LibelleType(*type), type->n, numeros_, numeros->taille())};
    std::vector<LigneNC> liste;
    AfficherListeNE(liste, *numeros, *type);
    out << TexteListeNC(liste);
    return Rien{};
}

std::span<const CommandeNcFiltre::Filtre> CommandeNcFiltre::filtres() {
    static constexpr Filtre Filtres[] = {
        {"filtre0", "Les grilles d'une liste jamais sorties aux rangs 1 à 8", FiltrerGagnantes},
        {"sorties", "Les grilles d'une liste jamais sorties à aucun rang, rang 9 compris",
         SupprSorties}};
    return Filtres;
}

CommandeNcFiltre::CommandeNcFiltre(CLI::App& groupe, const Filtre& filtre)
    : Commande(&Declarer(groupe, filtre.nom, filtre.description)), filtre_(filtre) {
    sousCommande().add_option("FICHIER", fichier_, "Liste de numéros et chances *.dat")->required();
}

Resultat<Rien> CommandeNcFiltre::executer(const Contexte& contexte, std::ostream& out) {
    auto liste = ChargerListeNC(contexte.repertoire / fichier_);
    if (!liste) return Erreur{liste.erreur()};
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    filtre_.filtrer(*liste, SortiesNC(donnees->base, donnees->de, donnees->a));
    out << TexteListeNC(*liste);
    return Rien{};
}

CommandeNcJamais::CommandeNcJamais(CLI::App& groupe)
    : Commande(&Declarer(groupe, "jamais",
                         "Les combinaisons d'une liste qui n'ont jamais fait deux numéros ou plus, "
                         "avec toutes les chances")) {
    sousCommande()
        .add_option("FICHIER", fichier_, "Liste de combinaisons de 5 numéros *.lst")
        ->required();
}

Resultat<Rien> CommandeNcJamais::executer(const Contexte& contexte, std::ostream& out) {
    const auto gains = FormeGains::de(contexte.lireReglages().GainsNominaux);
    const auto liste = OuvrirListe(contexte.repertoire / fichier_, gains);
    if (!liste) return Erreur{liste.erreur()};
    if (liste->taille() != NbBoules)
        return Erreur{fmt::format("« {} » tient des combinaisons de {} numéros : il en faut de {}.",
                                  fichier_, liste->taille(), NbBoules)};
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const auto jamais =
        JamaisSorties(SortiesNC(donnees->base, donnees->de, donnees->a), liste->nombre(),
                      [&](std::size_t i) { return Ensemble::de(liste->numeros(i)); });
    out << TexteListeNC(jamais.lignes);
    return Rien{};
}

}  // namespace norvane
