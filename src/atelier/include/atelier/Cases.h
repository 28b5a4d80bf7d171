// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Some numbers and some chances: the tiles of a board that are lit or held down.
#pragma once

#include "base/Ensemble.h"
#include "stats/TableauStats.h"

namespace norvane {

struct Cases {
    Ensemble numeros;
    Ensemble chances;

    constexpr Ensemble& de(GenreStats genre) {
        return genre == GenreStats::Numeros ? numeros : chances;
    }
    constexpr const Ensemble& de(GenreStats genre) const {
        return genre == GenreStats::Numeros ? numeros : chances;
    }
    constexpr bool vide() const { return numeros.vide() && chances.vide(); }
    constexpr bool contient(GenreStats genre, int valeur) const {
        return de(genre).contient(valeur);
    }
    constexpr void basculer(GenreStats genre, int valeur) { de(genre).basculer(valeur); }

    /// What both hold.
    constexpr Cases commun(const Cases& autre) const {
        return {numeros.commun(autre.numeros), chances.commun(autre.chances)};
    }
    constexpr Cases sans(const Cases& autre) const {
        return {numeros.sans(autre.numeros), chances.sans(autre.chances)};
    }
    /// What one of the two alone holds.
    constexpr Cases ecart(const Cases& autre) const {
        const Cases seules = sans(autre);
        const Cases siennes = autre.sans(*this);
        return {seules.numeros.avec(siennes.numeros), seules.chances.avec(siennes.chances)};
    }

    friend constexpr bool operator==(const Cases&, const Cases&) = default;
};

/// The numbers of a draw, and its Chance when it has one.
inline Cases CasesDe(const Tirage& tirage) {
    Cases cases{Ensemble::de(tirage.Numeros), {}};
    if (tirage.Chance != 0) cases.chances.ajouter(tirage.Chance);
    return cases;
}

}  // namespace norvane
