// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Small bases made for a test.
#pragma once

#include <algorithm>
#include <array>
#include <random>
#include <vector>

#include "base/Base.h"

namespace norvane {

inline Base FaireBase(std::vector<Tirage> tirages) {
    Base base;
    base.NbTirages = base.NbTiragesTotal = static_cast<int>(tirages.size());
    base.Rapports.resize(tirages.size());
    base.Tirages = std::move(tirages);
    return base;
}

/// Four records on two dates: 7 in each of them, 31 in the first only.
inline Base QuatreTirages() {
    return FaireBase({{{7, 20, 23, 31, 40}, 1, 20221203, 20222119, 20221003, 1, 2103615},
                      {{7, 25, 33, 41, 48}, 0, 20221203, 20222119, 20221003, 2, 2103615},
                      {{7, 20, 33, 41, 49}, 3, 20221205, 20222120, 20221005, 1, 1234567},
                      {{1, 7, 20, 33, 41}, 0, 20221205, 20222120, 20221005, 2, 1234567}});
}

/// `n` records of one 1er Tirage a day over the numbers 1..numeros and chances 0..3: with few
/// numbers runs and zero gaps are dense.
inline Base BaseAleatoire(std::mt19937& hasard, int n, int numeros) {
    std::vector<int> boules(static_cast<std::size_t>(numeros));
    for (int k = 0; k < numeros; ++k) boules[static_cast<std::size_t>(k)] = k + 1;
    std::vector<Tirage> tirages;
    for (int i = 0; i < n; ++i) {
        Tirage t{{}, static_cast<int>(hasard() % 4), 0, 2023001 + i, 20230101 + i, 1, 0};
        std::shuffle(boules.begin(), boules.end(), hasard);
        std::copy_n(boules.begin(), NbBoules, t.Numeros);
        std::sort(t.Numeros, t.Numeros + NbBoules);
        tirages.push_back(t);
    }
    return FaireBase(std::move(tirages));
}

}  // namespace norvane
