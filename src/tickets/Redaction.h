// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the two reports on tickets have in common.
#pragma once

#include <cstddef>
#include <string>

#include "tickets/Verification.h"

namespace norvane {

/// "Combinaison 1 (5N + 1C) N: 3  14 25 31 44  C: 7  (Mise: 2.2 Euros)" and its line end; `rang`
/// counts from 1.
std::string LigneGrille(std::size_t rang, const Grille& grille, const Monnaie& monnaie);

}  // namespace norvane
