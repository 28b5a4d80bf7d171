// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Designs: their keys, their files, their proof. A design of the key (v, k, p, t) is a list of
// blocks, k of the points 0..v-1 each, such that every p of the v points meet some block in at
// least t points.
#pragma once

#include <bit>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace systemes {

constexpr int VMax = 50;  ///< most points
constexpr int KMax = 6;   ///< most points of a block

/// A set of points: bit i is point i.
using Bloc = std::uint64_t;
/// The image of each point.
using Permutation = std::vector<int>;

struct Cle {
    int v = 0;
    int k = 0;
    int p = 0;
    int t = 0;
    auto operator<=>(const Cle&) const = default;
};

/// A design as it is kept: the orbits of `bases` under the group that `generateurs` generate;
/// without a generator the bases are the blocks.
struct Dessin {
    Cle cle;
    std::string methode;       ///< one word: how it was made
    std::string groupe = "-";  ///< one word: the group, for the reader
    std::uint64_t graine = 0;  ///< seed of the search
    double secondes = 0;       ///< time of the search
    std::vector<Permutation> generateurs;
    std::vector<Bloc> bases;
};

/// n choose r, for n up to VMax + 1 and r up to KMax; 0 outside.
long Binomial(int n, int r);
/// Rank of a set among those of its size, in colexicographic order (independent of v).
long Rang(Bloc bloc);
/// All k-subsets of v points, by rank.
std::vector<Bloc> Parties(int v, int k);
Bloc Image(Bloc bloc, const Permutation& permutation);

/// The blocks of the design, ascending, each once.
std::vector<Bloc> Developper(const Dessin& dessin);
/// How many p-subsets no block meets in t points, each p-subset being looked at.
/// -1 when a block does not hold k points below v.
long Manquants(const Cle& cle, const std::vector<Bloc>& blocs);

std::string Chemin(const std::string& racine, const Cle& cle);
/// Reads one file; throws std::runtime_error with file and line when it is not well formed, or
/// when its count is not that of the developed blocks.
Dessin Lire(const std::string& chemin);
/// Number of blocks that the file of the key announces; nothing without a file.
std::optional<long> Taille(const std::string& racine, const Cle& cle);
/// Proves the design and, when it is smaller than what stands (nothing included), writes it at
/// once, through a temporary and a rename, under a lock. Throws when the proof fails.
bool EcrireSiMieux(const std::string& racine, const Dessin& dessin);

/// One row of the table of published numbers.
struct Connu {
    std::string garantie;
    int selection = 0;
    int base = 0;
    Cle cle;
    long meilleur = 0;  ///< 0: nobody published one
    long borne = 0;
};
std::vector<Connu> LireConnus(const std::string& racine);

/// For each v up to VMax and the (k, p, t) of `cle`, the files that stand.
std::vector<Dessin> LireTous(const std::string& racine);

}  // namespace systemes
