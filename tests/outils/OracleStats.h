// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The twelve results by their definitions, from the string of presences of an item: slow, and
// with nothing in common with the walk over its appearances.
#pragma once

#include <algorithm>
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

/// A longest possible stretch of records f..l that all hold the item, or all lack it.
struct Segment {
    bool present;
    int debut;  // zero-based, inclusive
    int fin;
    int longueur() const { return fin - debut + 1; }
};

inline std::vector<Segment> Segments(const Presences& presences, int f, int l, bool present) {
    std::vector<Segment> segments;
    for (int i = f; i <= l; ++i) {
        if (presences[static_cast<std::size_t>(i)] != present) continue;
        if (segments.empty() || segments.back().fin != i - 1) segments.push_back({present, i, i});
        segments.back().fin = i;
    }
    return segments;
}

inline ResultatStats OracleStats(const Presences& presences, int f, int l) {
    const auto ecarts = Segments(presences, f, l, false);
    const auto suites = Segments(presences, f, l, true);
    const auto mot = [](auto n) { return static_cast<std::uint16_t>(n); };
    const auto total = [](const auto& segments) {
        int n = 0;
        for (const Segment& s : segments) n += s.longueur();
        return n;
    };
    struct Plus {
        int longueur = 0;
        std::ptrdiff_t nombre = 0;
        Segment dernier{};
    };
    const auto plusLong = [](const auto& segments) {
        Plus plus;
        for (const Segment& s : segments) plus.longueur = std::max(plus.longueur, s.longueur());
        for (const Segment& s : segments)
            if (s.longueur() == plus.longueur) ++plus.nombre, plus.dernier = s;
        return plus;
    };
    const bool finitAbsent = !ecarts.empty() && ecarts.back().fin == l;
    const Plus ecartMax = plusLong(ecarts);
    const Plus suiteMax = plusLong(suites);

    ResultatStats r{};
    r.Sorties = static_cast<std::int16_t>(total(suites));
    r.SommeEcarts = total(ecarts);
    r.Ecart = mot(finitAbsent ? ecarts.back().longueur() : 0);
    r.Suite = mot(finitAbsent ? 0 : suites.back().longueur());
    r.EcartMax = mot(ecartMax.longueur);
    r.SuiteMax = mot(suiteMax.longueur);
    // Where there is no gap or no run at all, the maximum of 0 counts once.
    r.NbEcartMax = mot(std::max<std::ptrdiff_t>(ecartMax.nombre, 1));
    r.NbSuiteMax = mot(std::max<std::ptrdiff_t>(suiteMax.nombre, 1));
    // A gap is marked by the draw that ends it, the last gap by the draw before it (which is
    // outside the interval when the item is absent), no gap by the first draw.
    if (ecarts.empty())
        r.PosEcartMax = mot(f + 1);
    else
        r.PosEcartMax =
            mot(ecartMax.dernier.fin == l ? ecartMax.dernier.debut : ecartMax.dernier.fin + 2);
    // A run is marked by its last draw, no run by 0.
    r.PosSuiteMax = mot(suites.empty() ? 0 : suiteMax.dernier.fin + 1);
    const std::size_t enCoursEcart = finitAbsent ? 1 : 0;
    const std::size_t enCoursSuite = finitAbsent ? 0 : 1;
    if (ecarts.size() > enCoursEcart)
        r.EcartPrec = mot(ecarts[ecarts.size() - 1 - enCoursEcart].longueur());
    if (suites.size() > enCoursSuite)
        r.SuitePrec = mot(suites[suites.size() - 1 - enCoursSuite].longueur());
    return r;
}

}  // namespace norvane
