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
                                                  std::stop_token arret,
                                                  const std::function<void(int)>& avance);

/// How many combinations of `taille` (6..10) numbers hold between `inf` and `sup` draws
/// (inclusive); exact where it ends early, else any value above `plafond` (the caller refuses those
/// anyway). Uses all cores. Void when stopped.
std::uint64_t CompterBornesGrandeTaille(std::span<const Tirage> tirages, int taille, int inf,
                                        int sup, std::uint64_t plafond, std::stop_token arret);

/// Gives each of them in lexicographic order with the ascending zero-based places (in `tirages`) of
/// the draws it holds. `recevoir` is called from the calling thread; it answers false to stop
/// early. From inf = 1 on, all of them are found first (the first half of `avance`), eight bytes
/// each, and freed as they are given; with inf = 0 nothing is kept. False when stopped in either
/// way.
bool ListerBornesGrandeTaille(
    std::span<const Tirage> tirages, int taille, int inf, int sup, unsigned threads,
    std::stop_token arret, const std::function<void(int)>& avance,
    const std::function<bool(Masque, std::span<const std::uint16_t>)>& recevoir);

}  // namespace norvane
