// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A row of the tables that count the draws of an interval by what was found in them.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/Base.h"
#include "stats/Cellule.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"

namespace norvane {

/// "Sortis", "Nbfois", "Ratio", "Date", "Ecart", "Ecartmax", "Suite", "Suitemax".
inline constexpr int NbColonnesSortis = 8;

struct LigneSortis {
    int NbFois = 0;                                  ///< draws of this result, 0..65534
    int date = 0;                                    ///< yyyymmdd of the last of them, 0 for none
    ResultatStats resultat{};                        ///< the twelve results over the interval
    std::array<Cellule, NbColonnesSortis> cellules;  ///< of the columns; draws as targets
};

/// How the two maxima tell where they were reached last.
enum class PlaceMaximum : std::uint8_t { Tirage, Date };

/// The row of a result over draws inf..sup (one-based, inclusive). `sortis` is its first cell,
/// `liste` the draws of the interval that have it, zero-based, ascending.
LigneSortis FaireLigneSortis(const Base& base, Cellule sortis, std::span<const Occurrence> liste,
                             int inf, int sup, PlaceMaximum place);

}  // namespace norvane
