// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/StatsCombinaison.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace norvane {

namespace {

using ListesParRang = std::array<ListeOccurrences, NbBoules + 1>;

/// The draws of the interval by how many numbers of the combination they hold: one cursor in the
/// list of each number, all moved along with the draws.
ListesParRang TrierParRang(const Occurrences& occ, std::span<const Mot> numeros, int inf, int sup) {
    struct Curseur {
        ListeOccurrences::const_iterator ici, fin;
    };
    std::vector<Curseur> curseurs;
    for (const Mot n : numeros) {
        const auto& liste = occ.ListeNumeros[n - std::size_t{1}];
        curseurs.push_back({std::lower_bound(liste.begin(), liste.end(), inf - 1), liste.end()});
    }
    ListesParRang listes;
    for (int d = inf - 1; d < sup; ++d) {
        std::size_t bons = 0;
        for (Curseur& c : curseurs)
            if (c.ici != c.fin && *c.ici == d) {
                ++bons;
                ++c.ici;
            }
        listes[bons].push_back(static_cast<Occurrence>(d));
    }
    return listes;
}

LigneStatsCombinaison FaireLigne(const Base& base, const ListeOccurrences& liste, int bons, int inf,
                                 int sup) {
    LigneStatsCombinaison ligne{FaireLigneSortis(base,
                                                 {std::to_string(bons), bons, RangTable{bons}},
                                                 liste, inf, sup, PlaceMaximum::Tirage)};
    ligne.bons = bons;
    ligne.ratioGraphique = static_cast<int>(CelluleRatio(ligne.NbFois, sup - inf + 1).cle);
    return ligne;
}

}  // namespace

std::vector<LigneStatsCombinaison> StatsCombinaison(const Base& base, const Occurrences& occ,
                                                    std::span<const Mot> numeros, int inf,
                                                    int sup) {
    const ListesParRang listes = TrierParRang(occ, numeros, inf, sup);
    std::vector<LigneStatsCombinaison> lignes;
    for (int bons = BonsPremierRang(static_cast<int>(numeros.size())); bons >= 0; --bons)
        lignes.push_back(FaireLigne(base, listes[static_cast<std::size_t>(bons)], bons, inf, sup));
    return lignes;
}

std::string LibelleCombinaison(std::span<const Mot> numeros) {
    std::string libelle = fmt::format("Combinaison à {} numéros:", numeros.size());
    for (const Mot n : numeros) libelle += fmt::format(" {:02}", n);
    return libelle;
}

}  // namespace norvane
