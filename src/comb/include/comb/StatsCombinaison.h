// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How often a combination came out whole, in part, or not at all.
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "base/Base.h"
#include "comb/Enregistrement.h"
#include "comb/LigneCombinaison.h"
#include "stats/Cellule.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"

namespace norvane {

/// Columns of the grid: "Sortis", "Nbfois", "Ratio", "Date", "Ecart", "Ecartmax", "Suite",
/// "Suitemax".
inline constexpr int NbColonnesCombinaison = 8;

/// The draws with exactly `bons` numbers of the combination.
struct LigneStatsCombinaison {
    int bons;
    int NbFois;              ///< 0..65534
    int date;                ///< yyyymmdd of the last of them, 0 for none
    ResultatStats resultat;  ///< the twelve results over the interval
    int ratioGraphique;      ///< 100 x 100 x NbFois / interval, rounded: of 10000
    std::array<Cellule, NbColonnesCombinaison>
        cellules;  ///< of the columns; the rank and draws as targets of what came out
};

/// Rows min(N, 5) down to 0 over draws inf..sup (one-based, inclusive). `numeros`: 2 to 10 of
/// them, ascending.
std::vector<LigneStatsCombinaison> StatsCombinaison(const Base& base, const Occurrences& occ,
                                                    std::span<const Mot> numeros, int inf, int sup);

/// "Combinaison à 2 numéros: 07 23".
std::string LibelleCombinaison(std::span<const Mot> numeros);

}  // namespace norvane
