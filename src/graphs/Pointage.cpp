// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphs/Pointage.h"

#include <algorithm>

namespace norvane {

namespace {

Teinte TeinteDe(EtatNumero etat) {
    switch (etat) {
        case EtatNumero::Secondaire:
            return Teinte::Secondaire;
        case EtatNumero::Absolue:
            return Teinte::Absolue;
        case EtatNumero::Neutre:
            break;
    }
    return Teinte::Neutre;
}

}  // namespace

std::vector<PointGraphe> PointsPointage(const Base& base, const EtatsNumeros& etats) {
    std::vector<PointGraphe> points;
    points.reserve(static_cast<std::size_t>(base.NbTirages) * (NbBoules + 1));
    int tirage = 0;
    for (const Tirage& t : base.enUsage()) {
        ++tirage;
        for (const int numero : t.Numeros)
            points.push_back({numero, tirage, ElementDe(numero),
                              TeinteDe(etats[static_cast<std::size_t>(numero - 1)])});
        if (t.Chance != 0) {
            const int place = NumeroMax + t.Chance;
            points.push_back({place, tirage, ElementDe(place), Teinte::Neutre});
        }
    }
    return points;
}

std::span<const PointGraphe> PointsEntre(std::span<const PointGraphe> points, double bas,
                                         double haut) {
    const auto de = std::ranges::lower_bound(points, bas, {}, &PointGraphe::valeur);
    const auto a = std::ranges::upper_bound(de, points.end(), haut, {}, &PointGraphe::valeur);
    return {de, a};
}

}  // namespace norvane
