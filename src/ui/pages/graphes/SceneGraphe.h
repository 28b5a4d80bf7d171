// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Everything that a picture of a chart shows, and how its data lie on the plane: pure functions of
// data, size and style, the same for the screen, a file and paper.
#pragma once

#include <array>
#include <optional>
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRectF>
#include <QString>
#include <span>

#include "graphs/Fenetre.h"
#include "graphs/Graphe.h"
#include "graphs/Projection.h"
#include "graphs/Statistiques.h"

class QPainter;

namespace norvane::ui {

struct SceneGraphe {
    QString titre;
    QString titreVertical;
    std::span<const PointGraphe> points;  ///< owned by whoever made the scene
    std::array<QColor, NbTeintes> teintes;
    Etendue x{0.5, NbPlaces + 0.5};
    Etendue y{0, 1};
    std::optional<Attendus> attendus;  ///< shown as lines with their bands
    bool parTirage = false;            ///< a row of the chart is a draw
    bool etiquettes = false;           ///< the number of each point
    bool valeurs = false;              ///< the value of each point
    std::optional<Vue3D> vue3d;        ///< none: the plane

    bool visible(const PointGraphe& p) const { return x.contient(p.place) && y.contient(p.valeur); }
};

struct StyleGraphe {
    QColor fond, texte, discret, grille, accent;
    QFont fonte;  ///< its size in pixels

    QFont petite() const;
};

/// The colours of the window.
StyleGraphe styleGraphe(const QPalette& palette, const QFont& fonte);

/// Where the data lie in a picture of size `tout`.
class Repere {
 public:
    Repere(const SceneGraphe& scene, const StyleGraphe& style, const QRectF& tout);

    /// The depth at which the points stand.
    static constexpr double MiProfondeur = 0.5;

    QPointF placer(double x, double y, double z = MiProfondeur) const;
    QPointF placer(const PointGraphe& p) const { return placer(p.place, p.valeur); }
    /// What lies under a place of the picture; in the plane alone.
    double xSous(const QPointF& p) const;
    double ySous(const QPointF& p) const;

    const QRectF& cadre() const { return cadre_; }  ///< the picture without title and captions
    double largeurPlace() const { return largeurPlace_; }
    double hauteurUnite() const { return hauteurUnite_; }
    double rayon() const { return rayon_; }  ///< of a point

 private:
    QRectF cadre_;
    Etendue x_, y_;
    std::optional<Projection> projection_;
    double largeurPlace_, hauteurUnite_, rayon_;
};

/// Paints the chart over `tout`, ground included. Lengths are logical pixels: whoever wants another
/// resolution scales the painter.
void peindreGraphe(QPainter& p, const QRectF& tout, const SceneGraphe& scene,
                   const StyleGraphe& style);

}  // namespace norvane::ui
