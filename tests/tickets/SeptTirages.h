// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "BasesEssai.h"
#include "Dossier.h"

namespace norvane {

/// One record of each kind that the reports tell apart; the reports kept beside the tests are
/// written for them.
inline Base SeptTirages() {
    Base base = FaireBase({
        {{3, 14, 25, 31, 44}, 0, 0, 1980001, 19800102, 1, JokerAbsent},  // 1: no prizes known
        {{7, 12, 23, 34, 45}, 5, 0, 2017027, 20170304, 1, 1234567},      // 2: six ranks
        {{7, 12, 23, 34, 45}, 5, 0, 2017028, 20170306, 1, 9000001},      // 3: nine ranks
        {{7, 12, 23, 34, 45}, 5, 0, 20191132, 20191104, 1, 1234567},     // 4: both draws of a date
        {{1, 7, 12, 23, 40}, 0, 0, 20192132, 20191104, 2, 1234567},      // 5
        {{2, 13, 24, 35, 46}, 8, 0, 20241089, 20240724, 1, 1234567},  // 6: without its 2nd Tirage
        {{5, 16, 27, 38, 49}, 0, 0, 20242090, 20240727, 2, 7654321},  // 7: without its 1er Tirage
    });
    const std::vector<std::vector<double>> gains = {
        {},
        {3000000, 100000, 0, 1000, 0, 10, 0, 5, 2},
        {5000000, 120000.5, 1100.4, 520, 52.3, 21.2, 10.8, 5.5, 2.2},
        {2000000, 100000, 1000, 500, 50, 20, 10, 5, 2.2},
        {100000, 1000, 20, 3},
        {0, 0, 0, 0, 0, 0, 0, 0, 2.2},
        {50000, 800, 17.5, 2.4}};
    for (std::size_t i = 0; i < gains.size(); ++i)
        for (std::size_t rang = 0; rang < gains[i].size(); ++rang)
            base.Rapports[i][rang] = {1, gains[i][rang]};
    return base;
}

/// A whole report as it must be.
inline std::string Attendu(const std::string& nom) {
    return lire(NORVANE_DONNEES "/tickets/" + nom + ".txt");
}

}  // namespace norvane
