// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tickets drawn at random: one at a time in the order of the drawing, or a whole sorted batch.
#pragma once

#include <cstdint>
#include <vector>

#include "tickets/Grille.h"

namespace norvane {

/// A linear congruential generator: the same seed gives the same tickets on every machine.
class GenerateurHasard {
 public:
    explicit GenerateurHasard(std::uint32_t graine) : etat_(graine) {}

    /// The next value, 0 to 32767.
    int tirer();
    /// The next value modulo n, 0 to n - 1; n at least 1.
    int tirer(int n) { return tirer() % n; }

 private:
    std::uint32_t etat_;
};

/// One ticket of a type sold, numbers and chances in the order they were drawn, at its stake
/// without the option 2nd Tirage.
Grille TirerGrille(GenerateurHasard& hasard, TypeGrille type);

/// Appends `nombre` such tickets (none for 0 or less), numbers and chances rising. The same ticket
/// may come twice. The caller keeps the list within NbGrillesMax.
void AjouterGrillesHasard(std::vector<Grille>& grilles, GenerateurHasard& hasard, TypeGrille type,
                          int nombre);

}  // namespace norvane
