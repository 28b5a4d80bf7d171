// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The chart "Pointage": every draw of the base against its numbers and its Chance.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "base/Base.h"
#include "graphs/Graphe.h"

namespace norvane {

/// State of a number in the personal selection.
enum class EtatNumero : std::int8_t { Neutre = -1, Secondaire = 0, Absolue = 1 };

/// Element k is number k + 1.
using EtatsNumeros = std::array<EtatNumero, NumeroMax>;

/// All points, draw by draw, ascending, each draw's Chance behind its numbers. Chances are neutral.
std::vector<PointGraphe> PointsPointage(const Base& base, const EtatsNumeros& etats);

/// Those of `points` (ascending in valeur) with bas <= valeur <= haut.
std::span<const PointGraphe> PointsEntre(std::span<const PointGraphe> points, double bas,
                                         double haut);

/// The ends of the vertical axis at opening: the last 30 draws, or from 0 where there are fewer.
struct AxePointage {
    int minimum;
    int maximum;

    friend constexpr bool operator==(const AxePointage&, const AxePointage&) = default;
};
constexpr AxePointage OuverturePointage(int nbTirages) {
    return {nbTirages >= 30 ? nbTirages - 29 : 0, nbTirages};
}

}  // namespace norvane
