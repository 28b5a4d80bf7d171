// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combinations of six to ten numbers. No draw holds six numbers: the count of such a combination is
// the number of draws of the interval whose five numbers all lie in it.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <span>
#include <stop_token>
#include <vector>

#include "base/Base.h"
#include "base/Ensemble.h"
#include "comb/Enregistrement.h"

namespace norvane {

/// Outcome of a search for the combinations that hold the most draws.
struct ExtremesGrandeTaille {
    int maximum = 0;                   ///< draws held by each of them
    std::uint64_t nombre = 0;          ///< how many combinations reach it
    std::vector<Masque> combinaisons;  ///< the first `capacite` of them, in lexicographic order
    bool interrompu = false;           ///< stopped: everything else is void
};

/// All combinations of `taille` (6..10) numbers that hold the most draws of `tirages` (the records
/// of the interval), numbers that no draw asks for included. Exact; the same whatever the number of
/// threads. `avance` is told how far the search is, 0..100, from any thread. Stops within 100 ms.
ExtremesGrandeTaille ChercherExtremesGrandeTaille(std::span<const Tirage> tirages, int taille,
                                                  std::size_t capacite, unsigned threads,
                                                  const std::stop_token& arret,
                                                  const std::function<void(int)>& avance);

/// How many combinations of `taille` (6..10) numbers hold between `inf` and `sup` draws
/// (inclusive). Exact. Void when stopped.
std::uint64_t CompterBornesGrandeTaille(std::span<const Tirage> tirages, int taille, int inf,
                                        int sup, unsigned threads, const std::stop_token& arret);

/// How the combinations that a search goes through reach whoever asked for them.
struct Livraison {
    /// Appends what is to be told of one; `places`: its draws, ascending, which may be overwritten.
    /// Called from any thread.
    std::function<void(std::vector<Mot>&, Masque, std::span<std::uint16_t> places)> rediger;
    /// Takes what was appended for one or more of them, in lexicographic order, one call at a time
    /// and never nothing; false ends the search.
    std::function<bool(std::span<const Mot>)> livrer;
};

/// Gives each combination that holds `inf` (1 or more) to `sup` draws; places are zero-based in
/// `tirages`. All of them are found first (the first half of `avance`), eight bytes each, and freed
/// as they are given. False when it ended before the last one.
bool ListerBornesGrandeTaille(std::span<const Tirage> tirages, int taille, int inf, int sup,
                              unsigned threads, const std::stop_token& arret,
                              const std::function<void(int)>& avance, const Livraison& livraison);

}  // namespace norvane
