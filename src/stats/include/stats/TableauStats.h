// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rows of the statistics tables: values and texts, one row a number or a Chance.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/Base.h"
#include "stats/Cellule.h"
#include "stats/Occurrences.h"

namespace norvane {

/// Columns of the tables, in order.
enum class ColonneStats { Pos, Num, NbS, Ratio, Date, E, EM, EcartMax, S, SuiteMax };
inline constexpr int NbColonnesStats = 10;

/// The row of one number or one Chance.
struct LigneStats {
    bool present;  ///< the record of the upper bound holds it, by the presence tables
    /// Pos is the place in the sort and stays empty. Num leads to the history of an item that came
    /// out; Date, E and the two maxima of such an item lead to their draw.
    std::array<Cellule, NbColonnesStats> cellules;
};

/// 49 or 10 rows over records premier..dernier (zero-based, inclusive), in element order.
std::vector<LigneStats> RemplirStats(GenreStats genre, const Base& base, const Occurrences& occ,
                                     int premier, int dernier);

/// "Statistiques sur n tirages\ndu <long date>\nau <long date>", or for one record
/// "Statistiques sur 1 tirage\nle <long date>". Bounds are one-based draw numbers.
std::string LibelleIntervalle(const Base& base, int inf, int sup);

/// The short version: "Statistiques sur n tirages\ndu 03/10/2022 au 25/01/2023".
std::string LibelleIntervalleCourt(const Base& base, int inf, int sup);

/// The 59 hints of the board at record `indice`, "court|long"; `allume` tells which buttons are
/// lit (49 numbers, then 10 chances). All empty for indice -1.
std::array<std::string, NumeroMax + ChanceMax> IndicesBoutons(
    const Occurrences& occ, int indice, const std::array<bool, NumeroMax + ChanceMax>& allume);

}  // namespace norvane
