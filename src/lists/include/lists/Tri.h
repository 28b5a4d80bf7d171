// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The sorts of a list by its statistics. Only the order of the lines changes; lines that compare
// equal keep theirs.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/Travail.h"
#include "lists/Liste.h"

namespace norvane {

/// Nominal prizes of one simple grid for 2, 3, 4 and 5 good numbers.
using GainsNominaux = std::array<double, 4>;

/// The sort that a list takes for the one asked for: the simple one instead of the two others while
/// lower ranks are missing or not kept, or where prizes are kept of two numbers.
TypeTri TriPossible(const Liste& liste, TypeTri demande);

/// The record of each line after the sort TriPossible(liste, tri.TypeTriListe); nothing when it was
/// stopped. Progress runs 0..100.
/// - Simple: the word `CritereTri` of the first rank.
/// - Depth: that word of the rank `RangTri` (5 at most), then of each lower rank kept until one
///   differs.
/// - Gain: the sum of NbFois x the prize of the size over the ranks of gain; where all ranks are
///   kept and the size is 8 or more, over five good numbers alone.
/// - None: as the lines stand.
/// Words compare as signed ones.
std::optional<std::vector<std::uint32_t>> OrdreTrie(const Liste& liste, const EtatTri& tri,
                                                    const GainsNominaux& gains,
                                                    const Suivi& suivi = {});
/// Gives a list the order that OrdreTrie made for it and notes the sort that was really done.
void PoserOrdre(Liste& liste, std::vector<std::uint32_t> ordre, const EtatTri& tri);

/// Both at once. TypeTri::Sans does nothing.
void Trier(Liste& liste, const EtatTri& tri, const GainsNominaux& gains);

/// What the advanced sort by gap is set to. Where it is active, of a list of its size only those
/// combinations stay whose gap at a rank is long enough.
struct TriEcartAvance {
    bool actif = false;
    int taille = 5;  ///< 4 to 10
    int rang = 2;    ///< good numbers
    int seuil = 0;   ///< shortest Ecart that stays

    friend bool operator==(const TriEcartAvance&, const TriEcartAvance&) = default;
};

/// Keeps the records whose block for `rang` good numbers is filled and has an Ecart of `seuil` or
/// more, the lines in their order. How many stay; nothing, and no change, where the records have no
/// such block or have it empty.
std::optional<std::size_t> FiltrerEcart(Liste& liste, int rang, int seuil);

}  // namespace norvane
