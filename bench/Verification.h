// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every measurement owes: a wrong answer ends the program, however fast it came.
#pragma once

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace norvane {

inline void Exiger(bool juste, const char* quoi) {
    if (juste) return;
    std::fprintf(stderr, "wrong result: %s\n", quoi);
    std::exit(EXIT_FAILURE);
}

/// Seconds that one call takes, the best of a few.
template <typename Appel>
double Secondes(Appel appel) {
    double meilleur = 1e9;
    for (int essai = 0; essai < 5; ++essai) {
        const auto debut = std::chrono::steady_clock::now();
        appel();
        const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - debut;
        if (duree.count() < meilleur) meilleur = duree.count();
    }
    return meilleur;
}

}  // namespace norvane
