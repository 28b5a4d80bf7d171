// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Noyaux.h"

#include <algorithm>

namespace norvane {

namespace {

std::size_t Indice(int n) {
    return static_cast<std::size_t>(n);
}

/// Each number above a in each draw of the list: visite(element, draw).
template <typename Visite>
void ParcourirSuiveurs(const Base& base, const Occurrences& occ, ListeTirages liste, int a,
                       Visite visite) {
    const auto colonne = Indice(a - 1);
    for (const Occurrence d : liste) {
        const std::int32_t* numeros = base.Tirages[d].Numeros;
        for (int q = occ.PositionNumero[d][colonne] + 1; q < NbBoules; ++q)
            visite(Indice(numeros[q] - 1), d);
    }
}

/// Each number that a listed draw up to the limit draw shares with it above the place: two sorted
/// rows are merged. visite(place in the limit draw, draw).
template <typename Visite>
void ParcourirCommuns(const Base& base, ListeTirages liste, int place, int limite, Visite visite) {
    const std::int32_t* neufs = base.Tirages[Indice(limite - 1)].Numeros;
    for (const Occurrence d : liste) {
        if (d > limite - 1) break;
        const std::int32_t* numeros = base.Tirages[d].Numeros;
        int p = 0;
        int q = place + 1;
        while (p < NbBoules && q < NbBoules) {
            if (numeros[p] < neufs[q]) {
                ++p;
            } else if (numeros[p] > neufs[q]) {
                ++q;
            } else {
                visite(Indice(q), d);
                ++p;
                ++q;
            }
        }
    }
}

}  // namespace

void CompterSuiveurs(const Base& base, const Occurrences& occ, ListeTirages liste, int a,
                     Rangee& rangee) {
    rangee.fill(0);
    ParcourirSuiveurs(base, occ, liste, a, [&](std::size_t b, Occurrence) { ++rangee[b]; });
}

void ListerSuiveurs(const Base& base, const Occurrences& occ, ListeTirages liste, int a,
                    Rangee& rangee, ListesRangee& listes) {
    CompterSuiveurs(base, occ, liste, a, rangee);
    std::uint32_t total = 0;
    for (std::size_t k = 0; k < NumeroMax; ++k) {
        listes.debut[k] = total;
        total += rangee[k];
    }
    if (listes.tirages.size() < total) listes.tirages.resize(total);
    auto curseur = listes.debut;
    ParcourirSuiveurs(base, occ, liste, a,
                      [&](std::size_t b, Occurrence d) { listes.tirages[curseur[b]++] = d; });
}

void CompterCommuns(const Base& base, ListeTirages liste, int place, int limite,
                    CompteursPlaces& compteurs) {
    compteurs.fill(0);
    ParcourirCommuns(base, liste, place, limite,
                     [&](std::size_t q, Occurrence) { ++compteurs[q]; });
}

void ListerCommuns(const Base& base, ListeTirages liste, int place, int limite,
                   CompteursPlaces& compteurs, ListesPlaces& listes) {
    compteurs.fill(0);
    for (auto& l : listes) l.clear();
    ParcourirCommuns(base, liste, place, limite, [&](std::size_t q, Occurrence d) {
        ++compteurs[q];
        listes[q].push_back(d);
    });
}

// The list of a number runs on behind the limit draw; the walk that all four share ends there.
void CompterCommunsAvant(const Base& base, ListeTirages liste, int place, int limite,
                         CompteursPlaces& compteurs) {
    CompterCommuns(base, liste, place, limite, compteurs);
}

void ListerCommunsAvant(const Base& base, ListeTirages liste, int place, int limite,
                        CompteursPlaces& compteurs, ListesPlaces& listes) {
    ListerCommuns(base, liste, place, limite, compteurs, listes);
}

}  // namespace norvane
