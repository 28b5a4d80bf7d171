// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where each number and each Chance came out: the structures that every statistic is read from.
// All indices are zero-based record indices, all elements 16-bit.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/Base.h"

namespace norvane {

using Occurrence = std::uint16_t;                  ///< a record index
using ListeOccurrences = std::vector<Occurrence>;  ///< ascending, allocated exactly to size

/// How often each of N elements came out: up to 65534 times, once in each record of a full base.
template <std::size_t N>
using Sorties = std::array<std::uint16_t, N>;

struct Occurrences {
    Sorties<NumeroMax> SortiesNumeros{};  ///< whole base; element k is number k+1
    std::array<ListeOccurrences, NumeroMax> ListeNumeros;
    Sorties<ChanceMax> SortiesChances{};
    std::array<ListeOccurrences, ChanceMax> ListeChances;
    Sorties<NumeroMax> SortiesIntervalle{};  ///< over IntervalleInf..IntervalleSup
    std::array<ListeOccurrences, NumeroMax> ListeIntervalle;

    /// Per record and number: place 0..4 among the record's numbers, -1 when it is not in it.
    std::vector<std::array<std::int16_t, NumeroMax>> PositionNumero;
    /// Per record and Chance: 5 at the record's Chance, -1 elsewhere. A record with Chance 0
    /// marks chance 1 with 5, so that chance 1 shows as present there.
    std::vector<std::array<std::int16_t, ChanceMax>> PositionChance;

    std::int32_t IntervalleInf = 1;  ///< the global interval, one-based, inclusive
    std::int32_t IntervalleSup = 0;
};

/// A range of zero-based record indices, both inclusive; empty when dernier < premier.
struct Plage {
    int premier;
    int dernier;
};

// Counting and listing: one increment or one index for each number (or non-zero Chance) of each
// record of the range. Counters are cleared first; lists are allocated exactly to the counts given.
void CompterNumeros(const Base& base, Plage plage, Sorties<NumeroMax>& sorties);
void ListerNumeros(const Base& base, Plage plage, const Sorties<NumeroMax>& sorties,
                   std::array<ListeOccurrences, NumeroMax>& listes);
void CompterChances(const Base& base, Plage plage, Sorties<ChanceMax>& sorties);
void ListerChances(const Base& base, Plage plage, const Sorties<ChanceMax>& sorties,
                   std::array<ListeOccurrences, ChanceMax>& listes);

/// Ranges of the family: the whole base, and draws premier..dernier (one-based) of an interval.
Plage PlageBase(const Base& base);
Plage PlageIntervalle(int premier, int dernier);
/// The same, from NbAnciensTirages on: for the Chances when AnciensTirages is clear.
Plage PlageNouveaux(const Base& base, Plage plage);

/// PositionNumero and PositionChance for the records in use.
void ConstruirePositions(const Base& base, Occurrences& occ);

/// Everything at the start of the program. The Chances are counted over the whole base here,
/// whatever AnciensTirages says.
void ConstruireOccurrences(const Base& base, Occurrences& occ);

/// Everything again after a change of the base: presence tables first, the interval reset to
/// 1..NbTirages, numbers, Chances (from NbAnciensTirages on when AnciensTirages is clear), then
/// the interval's lists.
void RecalculBase(const Base& base, Occurrences& occ);

/// Sets the global interval (one-based, 1 <= inf <= sup <= NbTirages) and rebuilds its lists.
void ChangerIntervalle(const Base& base, Occurrences& occ, int inf, int sup);

}  // namespace norvane
