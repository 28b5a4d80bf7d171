// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <string_view>

#include "base/Textes.h"
#include "tickets/Rangs.h"

namespace norvane {

namespace {

constexpr double Unite = 10000.0;               ///< ten-thousandths in one euro or franc
constexpr std::int64_t UniteTaux = 1000000000;  ///< the rate is held to nine decimals
constexpr double PlusGrand = 9.0e18;            ///< whole numbers above do not fit 64 bits

/// The nearest whole number, within what 64 bits hold; 0 for what is no number.
std::int64_t Arrondir(double x) {
    if (std::isnan(x)) return 0;
    return std::llround(std::min(std::max(x, -PlusGrand), PlusGrand));
}

/// a x b / c rounded to nearest, exactly, for a and b of at least 0 and below c squared.
std::int64_t Proportion(std::int64_t a, std::int64_t b, std::int64_t c) {
    return a / c * b + (a % c * (b / c)) + (a % c * (b % c) + c / 2) / c;
}

}  // namespace

Conversion Convertir(double euros, double taux) {
    Conversion conversion{Arrondir(euros * Unite), 0};
    const double francs = static_cast<double>(conversion.euros) * taux;
    if (std::fabs(francs) < PlusGrand) {
        const std::int64_t part =
            Proportion(std::abs(conversion.euros), Arrondir(taux * UniteTaux), UniteTaux);
        conversion.francs = conversion.euros < 0 ? -part : part;
    } else {
        conversion.francs = Arrondir(francs);
    }
    return conversion;
}

std::string LibelleMonnaie(const std::string& symbole, bool singulier) {
    if (symbole.starts_with("€")) return singulier ? " Euro" : " Euros";
    return ' ' + symbole;
}

std::string LibelleMontant(double montant, const std::string& symbole, double taux,
                           bool avecFrancs) {
    const Conversion conversion = Convertir(montant, taux);
    std::string texte = FormaterMontant(conversion.enEuros()) + LibelleMonnaie(symbole);
    if (avecFrancs) texte += " (" + FormaterMontant(conversion.enFrancs()) + " F)";
    return texte;
}

}  // namespace norvane
