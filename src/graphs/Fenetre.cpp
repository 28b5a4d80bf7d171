// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphs/Fenetre.h"

#include <algorithm>
#include <cmath>

namespace norvane {

namespace {
constexpr double Air = 0.06;       // of the stretch, at either end
constexpr double PartVide = 0.45;  // of the height that may lie empty below the points
}  // namespace

Etendue Border(const Etendue& vue, const Etendue& limites, double minimum) {
    const double longueur = std::min(limites.longueur(), std::max(vue.longueur(), minimum));
    const double surplus = (longueur - vue.longueur()) / 2;
    const double de = std::clamp(vue.de - surplus, limites.de, limites.a - longueur);
    return {de, de + longueur};
}

Etendue Zoomer(const Etendue& vue, double facteur, double pivot, const Etendue& limites,
               double minimum) {
    // Short of the minimum the factor gives way, not the pivot.
    const double f = std::max(facteur, std::min(1.0, minimum / vue.longueur()));
    return Border({pivot - (pivot - vue.de) * f, pivot + (vue.a - pivot) * f}, limites, minimum);
}

Etendue Deplacer(const Etendue& vue, double pas, const Etendue& limites) {
    return Border({vue.de + pas, vue.a + pas}, limites, 0);
}

Etendue EtendueComptes(double min, double max) {
    const double bas = min < PartVide * max || max - min < 1 ? 0.0 : min;
    const double marge = std::max(1.0, max - bas) * Air;
    return {bas - marge, std::max(max, 1.0) + marge};
}

int PasGraduation(double longueur, int nombre) {
    for (int dizaine = 1; dizaine < 1000000; dizaine *= 10) {
        for (const int chiffre : {1, 2, 5}) {
            if (longueur / (chiffre * dizaine) <= nombre) return chiffre * dizaine;
        }
    }
    return static_cast<int>(std::ceil(longueur));
}

}  // namespace norvane
