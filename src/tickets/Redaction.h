// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the two reports on tickets have in common.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "tickets/Verification.h"

namespace norvane {

inline int NombreNumeros(const Grille& grille) {
    return static_cast<int>(grille[1]);
}
inline int NombreChances(const Grille& grille) {
    return static_cast<int>(grille[static_cast<std::size_t>(NombreNumeros(grille)) + 2]);
}
inline std::span<const double> NumerosDe(const Grille& grille) {
    return std::span(grille).subspan(2, static_cast<std::size_t>(NombreNumeros(grille)));
}
inline std::span<const double> ChancesDe(const Grille& grille) {
    return std::span(grille).subspan(static_cast<std::size_t>(NombreNumeros(grille)) + 3,
                                     static_cast<std::size_t>(NombreChances(grille)));
}

/// "Combinaison 1 (5N + 1C) N: 3  14 25 31 44  C: 7  (Mise: 2.2 Euros)" and its line end; `rang`
/// counts from 1.
std::string LigneGrille(std::size_t rang, const Grille& grille, const Monnaie& monnaie);

}  // namespace norvane
