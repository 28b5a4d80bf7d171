// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What both charts share: the 59 places of their horizontal axis, their points, their pages.
#pragma once

#include <cstdint>

#include "base/Tirage.h"
#include "stats/Cellule.h"

namespace norvane {

/// Places of the horizontal axis, from 1: the numbers, then the Chances.
inline constexpr int NbPlaces = NumeroMax + ChanceMax;

/// The number or the Chance that a place stands for as long as nothing is sorted.
constexpr Element ElementDe(int place) {
    return place <= NumeroMax ? Element{GenreStats::Numeros, place}
                              : Element{GenreStats::Chances, place - NumeroMax};
}

/// What a point is coloured by.
enum class Teinte : std::uint8_t {
    NonSorti,    ///< statistics: absent from the upper draw of the interval
    Sorti,       ///< in that draw
    Neutre,      ///< pointage: not selected
    Secondaire,  ///< second priority of the selection
    Absolue      ///< first priority
};
inline constexpr int NbTeintes = 5;

struct PointGraphe {
    int place;   ///< 1..NbPlaces, across
    int valeur;  ///< upwards: appearances, or the one-based number of a draw
    Element element;
    Teinte teinte;

    friend bool operator==(const PointGraphe&, const PointGraphe&) = default;
};

/// The places cut into pages of `parPage` each (1..NbPlaces), the last one being shorter where
/// they do not come out even. `page` is one-based.
struct Pagination {
    int parPage = NbPlaces;
    int page = 1;

    constexpr int total() const { return NbPlaces / parPage + (NbPlaces % parPage != 0 ? 1 : 0); }
    constexpr int premierePlace() const { return (page - 1) * parPage + 1; }
    constexpr int dernierePlace() const { return page < total() ? page * parPage : NbPlaces; }
    constexpr bool surPremiere() const { return page == 1; }
    constexpr bool surDerniere() const { return page == total(); }

    friend constexpr bool operator==(const Pagination&, const Pagination&) = default;
};

}  // namespace norvane
