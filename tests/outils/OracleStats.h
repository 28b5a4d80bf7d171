// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The twelve results by their definitions, from the string of presences of an item: slow, and
// with nothing in common with the walk over its appearances.
#pragma once

#include <algorithm>
#include <array>
#include <vector>

#include "base/Base.h"
#include "stats/Noyau.h"

namespace norvane {

using Presences = std::vector<bool>;  // one record an element

inline Presences PresencesNumero(const Base& base, int numero) {
    Presences presences;
    for (const Tirage& t : base.enUsage())
        presences.push_back(std::count(t.Numeros, t.Numeros + NbBoules, numero) > 0);
    return presences;
}

inline Presences PresencesChance(const Base& base, int chance) {
    Presences presences;
    for (const Tirage& t : base.enUsage()) presences.push_back(t.Chance == chance);
    return presences;
}

/// The longest possible stretches of records f..l that all hold the item, or all lack it.
struct Segments {
    struct Segment {
        int debut, fin;  // zero-based, inclusive
        int longueur() const { return fin - debut + 1; }
    };
    std::vector<Segment> liste;
    int total = 0, plusLong = 0, nbPlusLongs = 0;
    Segment dernierPlusLong{0, -1};

    Segments(const Presences& presences, int f, int l, bool present) {
        for (int i = f; i <= l; ++i) {
            if (presences[static_cast<std::size_t>(i)] != present) continue;
            if (liste.empty() || liste.back().fin != i - 1) liste.push_back({i, i});
            liste.back().fin = i;
        }
        for (const Segment& s : liste)
            total += s.longueur(), plusLong = std::max(plusLong, s.longueur());
        for (const Segment& s : liste)
            if (s.longueur() == plusLong) ++nbPlusLongs, dernierPlusLong = s;
    }
    /// Length of the one that is `rang` places before the last; 0 when there is none.
    int longueur(std::size_t rang) const {
        return rang < liste.size() ? liste[liste.size() - 1 - rang].longueur() : 0;
    }
};

inline ResultatStats OracleStats(const Presences& presences, int f, int l) {
    const Segments ecarts(presences, f, l, false);
    const Segments suites(presences, f, l, true);
    const bool finitPresent = presences[static_cast<std::size_t>(l)];
    const auto mot = [](int n) { return static_cast<std::uint16_t>(n); };

    // A gap is marked by the draw that ends it, the last gap by the draw before it (which is
    // outside the interval when the item is absent), no gap by the first draw.
    int posEcart = f + 1;
    if (const auto& s = ecarts.dernierPlusLong; !ecarts.liste.empty())
        posEcart = s.fin == l ? s.debut : s.fin + 2;
    // A run is marked by its last draw, no run by 0. A maximum of 0 counts once.
    return {.Sorties = mot(suites.total),
            .Ecart = mot(finitPresent ? 0 : ecarts.longueur(0)),
            .EcartMax = mot(ecarts.plusLong),
            .NbEcartMax = mot(std::max(ecarts.nbPlusLongs, 1)),
            .PosEcartMax = mot(posEcart),
            .Suite = mot(finitPresent ? suites.longueur(0) : 0),
            .SuiteMax = mot(suites.plusLong),
            .NbSuiteMax = mot(std::max(suites.nbPlusLongs, 1)),
            .PosSuiteMax = mot(suites.dernierPlusLong.fin + 1),
            .EcartPrec = mot(ecarts.longueur(finitPresent ? 0 : 1)),
            .SuitePrec = mot(suites.longueur(finitPresent ? 1 : 0)),
            .SommeEcarts = ecarts.total};
}

/// The twelve results in the order of the structure.
inline std::array<int, 12> Valeurs(const ResultatStats& r) {
    return {r.Sorties,  r.Ecart,      r.EcartMax,    r.NbEcartMax, r.PosEcartMax, r.Suite,
            r.SuiteMax, r.NbSuiteMax, r.PosSuiteMax, r.EcartPrec,  r.SuitePrec,   r.SommeEcarts};
}

}  // namespace norvane
