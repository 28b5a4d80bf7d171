// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The twelve results of a ticket of numbers and chances taken as a whole, and how often each of
// them came out.
#pragma once

#include <array>
#include <string>

#include "base/Ensemble.h"
#include "stats/LigneSortis.h"
#include "tickets/Grille.h"

namespace norvane {

inline constexpr int NbCategoriesNC = 12;
/// Categories before this one are the tiers Rang1 to Rang8 of a simple grid.
inline constexpr int PremiereCategorieRang9 = 8;
/// From this one on nothing is won.
inline constexpr int PremiereCategorieSansGain = 10;

/// Category of g numbers found (0..5) and gc chances found (0 or 1).
inline constexpr std::array<std::array<int, 2>, NbBoules + 1> TableCategories = {
    {{11, 9}, {10, 8}, {7, 6}, {5, 4}, {3, 2}, {1, 0}}};

/// A ticket of a list: its numbers and its chances.
struct LigneNC {
    Ensemble numeros;
    Ensemble chances;

    TypeGrille type() const { return {numeros.taille(), chances.taille()}; }
    bool vide() const { return numeros.vide() && chances.vide(); }

    friend bool operator==(const LigneNC&, const LigneNC&) = default;
};

/// The draws of one category.
struct LigneCategorie : LigneSortis {
    int bons = 0;         ///< numbers found
    bool chance = false;  ///< the Chance found
};
using TableauCategories = std::array<LigneCategorie, NbCategoriesNC>;

/// First record (zero-based) whose Chance counts: while the old draws are part of the base, the
/// first of the present formula.
int PremierAvecChance(const Base& base);

/// Every draw of inf..sup (one-based, 1 <= inf <= sup <= NbTirages) in its category. The first cell
/// of a row reads "5 + " where a picture of the Chance is to follow, else "5"; the best category
/// has the highest key.
TableauCategories StatsCategories(const Base& base, int inf, int sup, const LigneNC& ticket);

/// "[5 + 2C] -->  N: 03 14 25 31 44   C: 02 07 ".
std::string LibelleTicket(const LigneNC& ticket);

}  // namespace norvane
