// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The chart "Statistiques": how often each number and each Chance came out in an interval.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/Base.h"
#include "graphs/Graphe.h"
#include "stats/Occurrences.h"

namespace norvane {

/// Sort criteria; each is the index of the field of a row that it sorts by.
enum class TriGraphe { SansTri, NbFois, Ecart, EcartMax, Suite, SuiteMax };
inline constexpr int NbTrisGraphe = 6;

/// One item: its number (1..49, or 1..10 for a Chance), Sorties, Ecart, EcartMax, Suite, SuiteMax,
/// SuitePrec, EcartPrec. Values above 32767 count as 32767.
using RangeeStats = std::array<std::int16_t, 8>;

/// Rows 0..48 are numbers, 49..58 Chances.
using TableGraphe = std::array<RangeeStats, NbPlaces>;

/// In item order, over draws inf..sup (one-based, inclusive).
TableGraphe CalculerTable(const Occurrences& occ, int inf, int sup);

/// Sorts the numbers among themselves and the Chances among themselves, ascending, starting from
/// the order they stand in. Only the first seven fields of a row move.
void TrierTable(TableGraphe& table, TriGraphe tri);

/// The points of the rows, at places 1 to 59 in their order, coloured after the upper draw.
std::array<PointGraphe, NbPlaces> PointsStatistiques(const TableGraphe& table,
                                                     const Tirage& superieur);

/// "Graphe de Statistiques (sur 30 tirages, du <long date> au <long date>)", or for one draw
/// "Graphe de Statistiques (sur 1 tirage, le <long date>)". Bounds are one-based draw numbers.
std::string TitreStatistiques(const Base& base, int inf, int sup);

/// How often an item comes out when nothing but chance plays, and how far from it two standard
/// deviations lie.
struct Attendu {
    double moyenne;
    double bande;
};
struct Attendus {
    Attendu numero;
    Attendu chance;
};

/// Over `nbTirages` draws, of which as many have a Chance as the rows of the table know.
Attendus CalculerAttendus(const TableGraphe& table, int nbTirages);

/// What one tick of the animation makes of the upper bound.
struct PasAnimation {
    int sup;
    bool fini;  ///< the last draw was on show already: the animation stops
};
constexpr PasAnimation AvancerAnimation(int sup, int dernier) {
    return sup < dernier ? PasAnimation{sup + 1, false} : PasAnimation{dernier, true};
}

}  // namespace norvane
