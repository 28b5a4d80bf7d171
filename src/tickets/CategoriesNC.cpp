// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/CategoriesNC.h"

#include <fmt/format.h>

#include "tickets/ListesNC.h"

namespace norvane {

namespace {

std::size_t Categorie(const Tirage& tirage, bool chanceCompte, const LigneNC& ticket) {
    std::size_t g = 0;
    for (const int n : tirage.Numeros) g += ticket.numeros.contient(n) ? 1 : 0;
    const bool gc = chanceCompte && tirage.Chance != 0 && ticket.chances.contient(tirage.Chance);
    return static_cast<std::size_t>(TableCategories[g][gc ? 1 : 0]);
}

}  // namespace

int PremierAvecChance(const Base& base) {
    return base.AnciensTirages ? base.NbAnciensTirages : 0;
}

TableauCategories StatsCategories(const Base& base, int inf, int sup, const LigneNC& ticket) {
    std::array<ListeOccurrences, NbCategoriesNC> listes;
    const int premierAvecChance = PremierAvecChance(base);
    for (int d = inf - 1; d < sup; ++d)
        listes[Categorie(base.Tirages[static_cast<std::size_t>(d)], d >= premierAvecChance, ticket)]
            .push_back(static_cast<Occurrence>(d));

    TableauCategories tableau;
    for (int bons = 0; bons <= NbBoules; ++bons)
        for (const bool chance : {false, true}) {
            const int indice = TableCategories[static_cast<std::size_t>(bons)][chance ? 1 : 0];
            const auto rang = static_cast<std::size_t>(indice);
            Cellule sortis{fmt::format("{}{}", bons, chance ? " + " : ""),
                           NbCategoriesNC - 1 - indice, RangTable{indice}};
            tableau[rang] = {FaireLigneSortis(base, std::move(sortis), listes[rang], inf, sup,
                                              PlaceMaximum::Date),
                             bons, chance};
        }
    return tableau;
}

std::string LibelleTicket(const LigneNC& ticket) {
    return fmt::format("[{} + {}C] -->  {}", ticket.numeros.taille(), ticket.chances.taille(),
                       TexteLigneNC(ticket));
}

}  // namespace norvane
