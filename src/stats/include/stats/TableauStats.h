// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rows of the statistics tables: values and texts, one row a number or a Chance.
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "base/Base.h"
#include "stats/Noyau.h"

namespace norvane {

/// Columns of the tables, in order.
enum class ColonneStats { Pos, Num, NbS, Ratio, Date, E, EM, EcartMax, S, SuiteMax };
inline constexpr int NbColonnesStats = 10;

enum class GenreStats { Numeros, Chances };

struct LigneStats {
    int element;  ///< the number or the Chance, from 1
    ResultatStats resultat;
    int ratioGraphique;  ///< trunc(Sorties x 100 / n x 100 + 0.5), of 10000
    bool present;        ///< the record of the upper bound holds it, by the presence tables
    /// Texts of columns Num to SuiteMax; Pos is the place in the sort and stays empty. Ratio
    /// holds the text form ("07,35% ").
    std::array<std::string, NbColonnesStats> cellules;
};

/// 49 or 10 rows over records premier..dernier (zero-based, inclusive), in element order.
std::vector<LigneStats> RemplirStats(GenreStats genre, const Base& base, const Occurrences& occ,
                                     int premier, int dernier);

/// "12  (02 0045)": value and count with the mask "00", the position padded to as many digits as
/// the one-based last draw of the interval asks (1 up to 9, 2 up to 99, 3 up to 999, else 4).
std::string CelluleMaximum(int valeur, int nombre, int position, int dernierTirage);

/// What stands between the parentheses of such a cell; both 0 for a text of another form.
struct MaximumLu {
    int nombre;
    int position;
};
MaximumLu LireCelluleMaximum(std::string_view cellule);

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
