// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How far each number is from its next draw: membership and the jump over draws in one table, made
// for the work that jumps and dropped after it.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "stats/Occurrences.h"

namespace norvane {

/// Row d, element k: positive when number k + 1 is in draw d (zero-based), negative when it is not;
/// the absolute value is the number of draws from d to the next draw that holds it, or to the end
/// of the base when there is none. Longer ways are cut to DistanceMax: a jump may fall short.
struct TableDistances {
    std::vector<std::array<std::int16_t, NumeroMax>> DistanceTirage;
};
inline constexpr int DistanceMax = 32767;

/// Builds the table over the whole base.
void VersDistances(const Occurrences& occ, TableDistances& table);
/// Drops it, its memory included.
void VersPositions(TableDistances& table);

}  // namespace norvane
