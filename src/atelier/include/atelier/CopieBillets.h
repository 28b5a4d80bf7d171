// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combinations of a list as tickets.
#pragma once

#include <cstdint>
#include <vector>

#include "base/Resultat.h"
#include "lists/Liste.h"
#include "tickets/Grille.h"

namespace norvane {

inline constexpr int ChanceAuHasard = 0;

/// Each line with one Chance, 1..10 or ChanceAuHasard for one of its own drawn from `graine`,
/// without the option 2nd Tirage. Refused: combinations that no ticket with one Chance holds.
Resultat<std::vector<Grille>> GrillesDeLignes(const Liste& liste, LignesChoisies lignes, int chance,
                                              std::uint32_t graine);

/// Whether combinations of that size make such tickets: 5 to 9 numbers.
Resultat<Rien> VerifierTailleGrille(int taille);

}  // namespace norvane
