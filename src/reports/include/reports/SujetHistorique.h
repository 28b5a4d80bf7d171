// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a history speaks of: something that a draw holds or does not hold.
#pragma once

#include <variant>

#include "base/Ensemble.h"
#include "stats/Cellule.h"

namespace norvane {

/// A draw with one of these two Chances.
struct CoupleChances {
    int premiere, seconde;
    friend bool operator==(const CoupleChances&, const CoupleChances&) = default;
};

/// A draw with exactly `bons` numbers of a combination.
struct RangCombinaison {
    Ensemble numeros;
    int bons;  ///< good numbers of the rank, 0..5
    friend bool operator==(const RangCombinaison&, const RangCombinaison&) = default;
};

/// A draw on which a ticket of numbers and Chances makes this result.
struct CategorieChances {
    Ensemble numeros;
    Ensemble chances;
    int categorie;  ///< row of the table of categories, from 0 (5 + Chance) to 11 (nothing)
    friend bool operator==(const CategorieChances&, const CategorieChances&) = default;
};

using SujetHistorique = std::variant<Element, CoupleChances, RangCombinaison, CategorieChances>;

}  // namespace norvane
