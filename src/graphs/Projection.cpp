// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphs/Projection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace norvane {

namespace {
constexpr double Largeur = 1.7;           // of the box, its height being 1
constexpr double ProfondeurTotale = 1.5;  // at 100 percent
constexpr double Recul = 5.0;             // of the eye from the middle of the box

double Radians(int degres) {
    return degres * std::numbers::pi / 180;
}
}  // namespace

Projection::Projection(const Vue3D& vue)
    : profondeur_(ProfondeurTotale * vue.profondeur / 100),
      cosRotation_(std::cos(Radians(vue.rotation))),
      sinRotation_(std::sin(Radians(vue.rotation))),
      cosElevation_(std::cos(Radians(vue.elevation))),
      sinElevation_(std::sin(Radians(vue.elevation))) {
    Point2D bas{1e9, 1e9};
    Point2D haut{-1e9, -1e9};
    for (int coin = 0; coin < 8; ++coin) {
        const Point2D p = voir({double(coin & 1), double(coin >> 1 & 1), double(coin >> 2 & 1)});
        bas = {std::min(bas.x, p.x), std::min(bas.y, p.y)};
        haut = {std::max(haut.x, p.x), std::max(haut.y, p.y)};
    }
    origine_ = bas;
    taille_ = {haut.x - bas.x, haut.y - bas.y};
}

/// As the eye sees it, before the box is fitted into the square.
Point2D Projection::voir(const Point3D& p) const {
    const double x = (p.x - 0.5) * Largeur;
    const double y = p.y - 0.5;
    const double z = (p.z - 0.5) * profondeur_;
    const double xTourne = x * cosRotation_ + z * sinRotation_;
    const double zTourne = z * cosRotation_ - x * sinRotation_;
    const double yLeve = y * cosElevation_ + zTourne * sinElevation_;
    const double zLeve = zTourne * cosElevation_ - y * sinElevation_;
    const double echelle = Recul / (Recul + zLeve);
    return {xTourne * echelle, yLeve * echelle};
}

Point2D Projection::projeter(const Point3D& p) const {
    const Point2D vu = voir(p);
    return {(vu.x - origine_.x) / taille_.x, (vu.y - origine_.y) / taille_.y};
}

}  // namespace norvane
