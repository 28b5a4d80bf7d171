// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How many combinations a search by bounds will give, as far as that is known beforehand.
#pragma once

#include <cstdint>

namespace norvane {

struct Prevision {
    std::uint64_t nombre = 0;   ///< the best guess
    std::uint64_t minimum = 0;  ///< the truth lies between these, but for one chance in 10^9
    std::uint64_t maximum = 0;

    static constexpr Prevision exactement(std::uint64_t n) { return {n, n, n}; }
    constexpr bool exacte() const { return minimum == maximum; }
};

}  // namespace norvane
