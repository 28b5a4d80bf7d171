// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The view of the three-dimensional chart: a box seen from a little to one side and from above.
#pragma once

namespace norvane {

/// Its settings, with their limits.
struct Vue3D {
    static constexpr int ProfondeurMin = 5, ProfondeurMax = 100;
    static constexpr int RotationMax = 60;
    static constexpr int ElevationMax = 60;

    int profondeur = 35;  ///< percent of the greatest depth
    int rotation = 20;    ///< degrees, -RotationMax..RotationMax; above 0 the left wall shows
    int elevation = 15;   ///< degrees, 0..ElevationMax

    friend constexpr bool operator==(const Vue3D&, const Vue3D&) = default;
};

/// A place in the box: each of the three from 0 to 1, z away from the eye.
struct Point3D {
    double x, y, z;
};
/// A place on the screen: from 0 to 1, y upwards.
struct Point2D {
    double x, y;
};

/// Straight lines stay straight, and the box just fills the square.
class Projection {
 public:
    explicit Projection(const Vue3D& vue);

    Point2D projeter(const Point3D& p) const;

 private:
    Point2D voir(const Point3D& p) const;

    double profondeur_;
    double cosRotation_, sinRotation_;
    double cosElevation_, sinElevation_;
    Point2D origine_{0, 0};
    Point2D taille_{1, 1};
};

}  // namespace norvane
