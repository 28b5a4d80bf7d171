// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What any list of grids holds of a selection, every set of drawn numbers being looked at.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/Ensemble.h"
#include "base/Resultat.h"
#include "base/Travail.h"
#include "systems/Systeme.h"

namespace norvane {

/// The grids of a system, as sets.
std::vector<Ensemble> GrillesEnsembles(const Systeme& systeme);

struct BilanGarantie {
    std::int64_t cas = 0;            ///< sets of Y numbers of the selection, base numbers included
    std::int64_t manques = 0;        ///< those of which no grid holds X
    std::vector<Ensemble> exemples;  ///< the first of them
    bool tenue() const { return manques == 0; }
};

/// Looks at every set of Y of the numbers `selection` that holds those of `base`, in lexicographic
/// order. 1 <= X <= Y <= 5, `base` part of `selection`. Refused when the selection is smaller than
/// Y, when there are more base numbers than Y, without a grid, and on a stop. Progress runs 0..100.
Resultat<BilanGarantie> VerifierGarantie(std::span<const Ensemble> grilles, Ensemble selection,
                                         Ensemble base, int X, int Y, std::size_t exemplesMax,
                                         const Suivi& suivi = {});

inline constexpr int TiresMin = 2;
/// Row `drawn - TiresMin` for 2 to 5 drawn numbers in the selection, column `good`: of how many
/// sets the best grid holds that many. A row of zeros: the selection is too small.
using TableChances = std::array<std::array<std::int64_t, 6>, 4>;

/// Progress runs 0..100. Refused without a grid, and on a stop.
Resultat<TableChances> CompterChances(std::span<const Ensemble> grilles, Ensemble selection,
                                      const Suivi& suivi = {});

}  // namespace norvane
