// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How often a combination came out whole, in part, or not at all.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/Base.h"
#include "comb/Enregistrement.h"
#include "comb/LigneCombinaison.h"
#include "stats/LigneSortis.h"
#include "stats/Occurrences.h"

namespace norvane {

/// The draws with exactly `bons` numbers of the combination.
struct LigneStatsCombinaison : LigneSortis {
    int bons = 0;
    int ratioGraphique = 0;  ///< 100 x 100 x NbFois / interval, rounded: of 10000
};

/// Rows min(N, 5) down to 0 over draws inf..sup (one-based, inclusive). `numeros`: 2 to 10 of
/// them, ascending.
std::vector<LigneStatsCombinaison> StatsCombinaison(const Base& base, const Occurrences& occ,
                                                    std::span<const Mot> numeros, int inf, int sup);

/// "Combinaison à 2 numéros: 07 23".
std::string LibelleCombinaison(std::span<const Mot> numeros);

}  // namespace norvane
