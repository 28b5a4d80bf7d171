// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The set cover problem of a key under a group: a row for each orbit of p-subsets, a column for
// each orbit of blocks, as heavy as the orbit is long.
#pragma once

#include "Couverture.h"
#include "Groupe.h"

namespace systemes {

struct ProblemeOrbites {
    Probleme probleme;
    std::vector<Bloc> representants;  ///< one block of each column
    std::vector<int> colonneDe;       ///< column of each block by rank, -1 where it has none

    /// The columns of a list of blocks that is a union of orbits.
    std::vector<int> colonnesDe(const std::vector<Bloc>& blocs) const;
};

/// Empty (no column) when it would hold more than `entreesMax` entries.
ProblemeOrbites FaireProbleme(const Cle& cle, const Groupe& groupe, long entreesMax);

}  // namespace systemes
