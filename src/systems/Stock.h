// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The stock of designs that the program holds, made while building from data/systemes. A design of
// the key (v, k, p, t) is a list of blocks of k of the points 0..v-1, such that every p points meet
// some block in at least t.
#pragma once

#include <span>
#include <vector>

#include "base/Ensemble.h"

namespace norvane {

struct CleDessin {
    int v = 0;
    int k = 0;
    int p = 0;
    int t = 0;
};

struct DessinStocke {
    int v, k, p, t;
    int blocs;  ///< once developed, at most 9999
    /// "g" and a permutation of the points on a line for each generator of a group, then the
    /// blocks whose images under the group are the design; one letter is a point, of 0-9A-Za-z.
    const char* texte;
};

/// All of them, one a key.
std::span<const DessinStocke> Stock();

/// Null when there is none.
const DessinStocke* ChercherDessin(const CleDessin& cle);

/// The blocks, in the order of their points; value n stands for the point n - 1.
std::vector<Ensemble> Developper(const DessinStocke& dessin);

}  // namespace norvane
