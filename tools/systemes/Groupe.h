// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Permutation groups on the points, known by a name from which they are made again:
//   1          no group
//   C:f:c:m:d  f fixed points, c equal cycles turned together; m > 1: a multiplier on the places
//              of every cycle, which moves the cycles on by d
//   T:a.b.c    one permutation with cycles of these lengths
//   E:f:q:e:s  f fixed points, the field of q elements: x -> a x + b, a in the e-th powers, and
//              x -> x^characteristic when s is 1
//   L:f:q:e    f fixed points, the projective line of q + 1 points: PSL(2, q) for e = 2, PGL for 1
//   P:f:a:b:m:s  f fixed points, Z_a x Z_b, multiplied by m, exchanged when s is 1
//   U:a.b.c    no group; the points are parted, and t points of one part are covered
#pragma once

#include <random>

#include "Dessin.h"

namespace systemes {

struct Groupe {
    std::string nom = "1";
    std::vector<Permutation> generateurs;
    std::vector<Bloc> parts;  ///< for U
    double ordre = 1;         ///< at least about, to judge the number of orbits
};

/// Throws std::invalid_argument for a name that does not suit v points.
Groupe FaireGroupe(const std::string& nom, int v);

/// A group at random that suits the key, its orbits of p-subsets between the bounds (about); no
/// group when none was met.
Groupe GroupeAuHasard(const Cle& cle, double lignesMin, double lignesMax, std::mt19937_64& alea);

/// The group of the powers of one element that `generateurs` give, the element and the power
/// taken at random; no generator: no group.
Groupe SousGroupe(const std::vector<Permutation>& generateurs, int v, std::mt19937_64& alea);

}  // namespace systemes
