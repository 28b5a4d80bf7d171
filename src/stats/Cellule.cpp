// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/Cellule.h"

#include <fmt/format.h>

#include <cmath>

#include "base/Dates.h"
#include "base/Textes.h"

namespace norvane {

namespace {

/// Value, count and where, "12  (02 ...)", sorted by the three.
Cellule Maximum(int valeur, int nombre, int position, const std::string& ou) {
    return {fmt::format("{}  ({}{})", FormaterMasque(valeur, 2), FormaterMasque(nombre, 2), ou),
            (std::int64_t{valeur} << 32) + (std::int64_t{nombre} << 16) + position,
            {}};
}

}  // namespace

Cellule CelluleEntier(std::int64_t valeur) {
    return {fmt::to_string(valeur), valeur, {}};
}

Cellule CelluleRatio(int fois, int tirages) {
    const double pourcentage = fois * 100.0 / tirages;
    return {FormaterDecimal(pourcentage, 2) + "% ",
            static_cast<std::int64_t>(std::trunc(pourcentage * 100 + 0.5)),
            {}};
}

Cellule CelluleDate(int date, std::string_view jamais, int numero) {
    if (date == 0) return {std::string(jamais), 0, {}};
    return {DateLongue(date), date, NumeroTirage{numero}};
}

Cellule CelluleMaximum(int valeur, int nombre, int position, int premier, int dernierTirage) {
    const int chiffres = dernierTirage < 10     ? 1
                         : dernierTirage < 100  ? 2
                         : dernierTirage < 1000 ? 3
                                                : 4;
    Cellule cellule = Maximum(valeur, nombre, position, ' ' + FormaterMasque(position, chiffres));
    if (position > premier) cellule.cible = NumeroTirage{position};
    return cellule;
}

Cellule CelluleMaximumDate(int valeur, int nombre, int position, int date) {
    if (date == 0) return Maximum(valeur, nombre, position, {});
    Cellule cellule = Maximum(valeur, nombre, position, ' ' + DateCourte(date));
    cellule.cible = NumeroTirage{position};
    return cellule;
}

}  // namespace norvane
