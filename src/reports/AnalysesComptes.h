// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What one pass over the interval counts for the analyses.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "base/Tirage.h"

namespace norvane {

inline constexpr int NbSeptaines = 7;
inline constexpr int NbTerminaisons = 10;
inline constexpr int MinCommunsInconnu = 1000;  ///< MinCommuns where no pair ever set it

/// Indexed by a number, 0 unused.
using ParNumero = std::array<std::int32_t, NumeroMax + 1>;

/// A number at one place of the ascending draw.
struct CaseSortie {
    int fois = 0;
    int dernier = 0;  ///< one-based draw where it last stood there
};

/// The numbers that two draws share, ascending.
struct Communs {
    std::array<int, NbBoules> numeros{};
    int nombre = 0;

    bool contient(int numero) const;
};
Communs NumerosCommuns(const Tirage& a, const Tirage& b);

struct ComptesAnalyses {
    ParNumero NbFois{}, Ecart{}, EcartMax{}, Suite{}, SuiteMax{};  ///< the maxima not yet closed
    int NbPairs = 0, NbImpairs = 0;
    std::array<int, NbSeptaines> Septaines{};
    std::array<int, NbTerminaisons> Terminaisons{};
    std::array<std::array<CaseSortie, NumeroMax + 1>, NbBoules> Cases{};
    int MaxCommuns = 0;
    int MinCommuns = MinCommunsInconnu;
    double SommeCommuns = 0;
    /// The pairs of consecutive draws that made or equalled a record when they came, by the
    /// zero-based record of their first draw.
    std::vector<int> records;
};

/// Over records inf..sup, zero-based, inclusive.
ComptesAnalyses CompterAnalyses(std::span<const Tirage> tirages, int inf, int sup);

}  // namespace norvane
