// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The part of a chart that is visible: stretches of its axes, and how they are zoomed, moved and
// graduated.
#pragma once

namespace norvane {

struct Etendue {
    double de;
    double a;

    constexpr double longueur() const { return a - de; }
    constexpr double milieu() const { return (de + a) / 2; }
    constexpr bool contient(double x) const { return de <= x && x <= a; }

    friend constexpr bool operator==(const Etendue&, const Etendue&) = default;
};

/// Brought within `limites`, moved rather than cut, and at least `minimum` long where the limits
/// allow it.
Etendue Border(const Etendue& vue, const Etendue& limites, double minimum);

/// Its length times `facteur` while `pivot` keeps its place on the screen; then as Border.
Etendue Zoomer(const Etendue& vue, double facteur, double pivot, const Etendue& limites,
               double minimum);

/// Moved by `pas`, as far as the limits go.
Etendue Deplacer(const Etendue& vue, double pas, const Etendue& limites);

/// The stretch that shows counts from `min` to `max` with some air; it starts about 0 unless that
/// would press the points together at the top.
Etendue EtendueComptes(double min, double max);

/// The finest whole step of 1, 2 or 5 times a power of ten with at most `nombre` (at least 1) steps
/// in a stretch of that length.
int PasGraduation(double longueur, int nombre);

}  // namespace norvane
