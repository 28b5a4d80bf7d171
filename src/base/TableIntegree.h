// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Shape of the constant tables that norvane-table makes from data/tirages.csv.
#pragma once

#include <cstdint>

namespace norvane {

struct TableIntegree {
    int nbAnciens;                        ///< records of the old game, first in `tirages`
    int nbNouveaux;                       ///< records of the present game, behind them
    const std::int32_t (*tirages)[11];    ///< the eleven integers of a Tirage, in its order
    const std::uint32_t (*rapports)[18];  ///< present game only: winners, cents, rank by rank
};

extern const TableIntegree tableIntegree;

}  // namespace norvane
