// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The statistics kernels: one walk over the occurrence list of a number or a Chance, without
// allocation, in time proportional to its appearances.
#pragma once

#include <cstdint>
#include <span>

#include "stats/Occurrences.h"

namespace norvane {

/// The twelve results over records f..l. A gap counts records without the item; a run counts
/// consecutive records with it. Positions are one-based draw numbers.
struct ResultatStats {
    std::uint16_t Sorties;      ///< appearances inside the interval
    std::uint16_t Ecart;        ///< records since the last appearance; the whole interval if none
    std::uint16_t EcartMax;     ///< longest gap, gaps at both ends included
    std::uint16_t NbEcartMax;   ///< how many gaps have that length
    std::uint16_t PosEcartMax;  ///< draw that marks the last of them
    std::uint16_t Suite;        ///< run that reaches the end of the interval, 0 if none does
    std::uint16_t SuiteMax;     ///< longest run
    std::uint16_t NbSuiteMax;
    std::uint16_t PosSuiteMax;
    std::uint16_t EcartPrec;   ///< last non-zero gap that ended in an appearance
    std::uint16_t SuitePrec;   ///< last run that was closed
    std::int32_t SommeEcarts;  ///< sum of all gaps, both ends included

    friend bool operator==(const ResultatStats&, const ResultatStats&) = default;
};

/// All twelve results of element `liste` over records premier..dernier (zero-based, inclusive,
/// premier <= dernier).
ResultatStats StatsIntervalle(std::span<const Occurrence> liste, int premier, int dernier);

/// The same walk from the start of the base up to record `dernier`, without SommeEcarts (0).
ResultatStats StatsJusqua(std::span<const Occurrence> liste, int dernier);

/// Four of them, for the combination searches.
struct StatsBreves {
    std::uint16_t Ecart;
    std::uint16_t EcartMax;
    std::uint16_t Suite;
    std::uint16_t SuiteMax;

    friend bool operator==(const StatsBreves&, const StatsBreves&) = default;
};

/// `liste` holds only indices of the interval; `premier`, `dernier` are its one-based bounds.
StatsBreves StatsResume(std::span<const Occurrence> liste, int premier, int dernier);

}  // namespace norvane
