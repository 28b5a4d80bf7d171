// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The counting primitives of the engine, over ascending lists of zero-based record indices.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "base/Base.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"

namespace norvane {

using ListeTirages = std::span<const Occurrence>;

/// Statistics of one list of draws of the interval (one-based bounds).
inline constexpr auto StatistiquesListe = &StatsResume;

/// One counter a number, element k for number k + 1.
using Rangee = std::array<std::uint16_t, NumeroMax>;

/// The lists that go with a Rangee, one behind the other: list of element k begins at debut[k].
struct ListesRangee {
    std::array<std::uint32_t, NumeroMax> debut{};
    std::vector<Occurrence> tirages;

    ListeTirages operator()(std::size_t k, const Rangee& rangee) const {
        return {tirages.data() + debut[k], rangee[k]};
    }
};

/// Draws that number a shares with each number above it: `liste` holds draws that contain a.
/// The other elements are 0.
void CompterSuiveurs(const Base& base, const Occurrences& occ, ListeTirages liste, int a,
                     Rangee& rangee);
/// The same, with the draws.
void ListerSuiveurs(const Base& base, const Occurrences& occ, ListeTirages liste, int a,
                    Rangee& rangee, ListesRangee& listes);

/// For each place of the limit draw: draws counted, and which.
using CompteursPlaces = std::array<std::uint16_t, NbBoules>;
using ListesPlaces = std::array<std::vector<Occurrence>, NbBoules>;

/// First level: over the list of one number (of the whole base), up to and including the draw
/// `limite` (one-based). For each place of that draw above `place`: how many of the listed draws
/// hold its number too. Counters at and below `place` are 0.
void CompterCommunsAvant(const Base& base, ListeTirages liste, int place, int limite,
                         CompteursPlaces& compteurs);
void ListerCommunsAvant(const Base& base, ListeTirages liste, int place, int limite,
                        CompteursPlaces& compteurs, ListesPlaces& listes);

/// Deeper levels: the same over a list that a former level made.
void CompterCommuns(const Base& base, ListeTirages liste, int place, int limite,
                    CompteursPlaces& compteurs);
void ListerCommuns(const Base& base, ListeTirages liste, int place, int limite,
                   CompteursPlaces& compteurs, ListesPlaces& listes);

}  // namespace norvane
