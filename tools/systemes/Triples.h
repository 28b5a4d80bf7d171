// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Triples that cover all pairs, as few as can be.
#pragma once

#include <random>

#include "Dessin.h"

namespace systemes {

/// ceil(v / 3 * ceil((v - 1) / 2)): no design is smaller, and one of this size exists.
long TailleTriples(int v);

/// A design (v, 3, 2, 2) of that size, by hill climbing; empty when `pasMax` steps did not do.
std::vector<Bloc> Triples(int v, long pasMax, std::mt19937_64& alea);

}  // namespace systemes
