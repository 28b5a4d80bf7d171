// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLineF>

#include "common/Theme.h"
#include "graphes/SceneGraphe.h"

namespace norvane::ui {

namespace {

constexpr double RayonMax = 11;
constexpr double RayonMaxSorties = 8;
constexpr double RayonMinSorties = 2.5;
constexpr int PolicePetiteMin = 9;

/// What is left for the data when title, graduations and captions have their place.
QRectF cadreDe(const SceneGraphe& scene, const StyleGraphe& style, const QRectF& tout) {
    const QFontMetricsF grande(style.fonte);
    const QFontMetricsF petite(style.petite());
    const double chiffres =
        petite.horizontalAdvance(QString::number(std::lround(std::max(scene.y.a, 10.0))));
    const double gauche = chiffres + grande.height() + 4 * Unite;
    const double bas = petite.height() + grande.height() + 2 * Unite;
    return tout.adjusted(gauche, grande.height() + 3 * Unite, -3 * Unite, -bas);
}

double rayonDe(const SceneGraphe& scene, const StyleGraphe& style, double largeur, double hauteur) {
    if (!scene.parTirage) return std::clamp(largeur * 0.36, RayonMinSorties, RayonMaxSorties);
    const double texte = QFontMetricsF(style.petite()).height();
    const double libre = scene.valeurs && hauteur > 1.4 * texte ? hauteur - texte : hauteur;
    return std::clamp(std::min(largeur, libre) * 0.42, 0.6, RayonMax);
}

}  // namespace

QFont StyleGraphe::petite() const {
    QFont police = fonte;
    police.setPixelSize(std::max(PolicePetiteMin, fonte.pixelSize() * 4 / 5));
    return police;
}

StyleGraphe styleGraphe(const QPalette& palette, const QFont& fonte) {
    const Teintes t = teintes(palette);
    StyleGraphe style{t.carte, palette.color(QPalette::Text), t.discret, t.bordure, t.accent,
                      fonte};
    style.fonte.setPixelSize(std::max(PolicePetiteMin, QFontInfo(fonte).pixelSize()));
    return style;
}

Repere::Repere(const SceneGraphe& scene, const StyleGraphe& style, const QRectF& tout)
    : cadre_(cadreDe(scene, style, tout)), x_(scene.x), y_(scene.y) {
    if (scene.vue3d) projection_.emplace(*scene.vue3d);
    const double x = x_.milieu();
    const double y = y_.milieu();
    largeurPlace_ = QLineF(placer(x - 0.5, y), placer(x + 0.5, y)).length();
    hauteurUnite_ = QLineF(placer(x, y - 0.5), placer(x, y + 0.5)).length();
    rayon_ = rayonDe(scene, style, largeurPlace_, hauteurUnite_);
}

QPointF Repere::placer(double x, double y, double z) const {
    double partX = (x - x_.de) / x_.longueur();
    double partY = (y - y_.de) / y_.longueur();
    if (projection_) {
        const Point2D vu = projection_->projeter({partX, partY, z});
        partX = vu.x;
        partY = vu.y;
    }
    return {cadre_.left() + partX * cadre_.width(), cadre_.bottom() - partY * cadre_.height()};
}

double Repere::xSous(const QPointF& p) const {
    return x_.de + (p.x() - cadre_.left()) / cadre_.width() * x_.longueur();
}

double Repere::ySous(const QPointF& p) const {
    return y_.de + (cadre_.bottom() - p.y()) / cadre_.height() * y_.longueur();
}

}  // namespace norvane::ui
