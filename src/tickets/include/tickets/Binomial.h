// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Binomial coefficients of the small sets of a ticket.
#pragma once

#include <array>
#include <cstdint>

namespace norvane {

/// BinomialTable[n][k] is C(n,k) for n and k from 0 to 10, zero for k above n.
inline constexpr auto BinomialTable = [] {
    std::array<std::array<std::int32_t, 11>, 11> table{};
    for (std::size_t n = 0; n < table.size(); ++n) {
        table[n][0] = 1;
        for (std::size_t k = 1; k <= n; ++k) table[n][k] = table[n - 1][k - 1] + table[n - 1][k];
    }
    return table;
}();

/// C(n,k) read from the table; n and k from 0 to 10.
constexpr int Combinaisons(int n, int k) {
    return BinomialTable[static_cast<std::size_t>(n)][static_cast<std::size_t>(k)];
}

}  // namespace norvane
