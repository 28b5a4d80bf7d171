// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What slips cost, line by line.
#pragma once

#include <span>
#include <vector>

#include "slips/Bulletins.h"

namespace norvane {

/// One slip. Euros are exact to the cent.
struct PrixBulletin {
    int bulletin = 0;
    int grilles = 0;     ///< that the game sells
    int nonVendues = 0;  ///< the others: they cost nothing, and no terminal takes them
    int avec2nd = 0;     ///< grids with the option 2nd Tirage
    double mises = 0;    ///< of the grids, the option left out
    double second = 0;   ///< of the option
    double jokers = 0;   ///< both Joker+ numbers
    int jours = 1;       ///< draws a week: the days ticked, 1 without any
    int semaines = 1;    ///< 1 without weeks
    double total = 0;    ///< (mises + second + jokers) x jours x semaines

    friend bool operator==(const PrixBulletin&, const PrixBulletin&) = default;
};

/// Slips `du` to `au`, from 1, within those of the grids.
std::vector<PrixBulletin> PrixBulletins(std::span<const Grille> grilles,
                                        const OptionsBulletins& options, int du, int au);
/// Of all lines.
double PrixTotal(std::span<const PrixBulletin> lignes);

}  // namespace norvane
