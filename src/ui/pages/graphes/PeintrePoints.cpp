// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <QFontMetricsF>
#include <QRadialGradient>
#include <vector>

#include "common/Theme.h"
#include "graphes/ToileGraphe.h"

namespace norvane::ui {

namespace {

constexpr double RayonRond = 2.2;    // smaller points are squares
constexpr double RayonNumero = 6.0;  // from here on a number stands inside its point
constexpr int EtiquettesMax = 400;   // nobody reads more at once

QColor contour(const QColor& fond, const QColor& couleur) {
    return fond.lightness() > 128 ? couleur.darker(150) : couleur.lighter(140);
}

QColor encreSur(const QColor& couleur) {
    return qGray(couleur.rgb()) > 140 ? QColor(0x10, 0x14, 0x20) : QColor(Qt::white);
}

/// Where something stands already: a text takes the first place at which it covers nothing.
class Places {
 public:
    explicit Places(const QRectF& limites) : limites_(limites) {}
    void occuper(const QRectF& place) { prises_.push_back(place); }
    std::optional<QRectF> prendre(std::initializer_list<QRectF> voulues) {
        for (const QRectF& place : voulues) {
            const auto couvre = [&](const QRectF& autre) { return autre.intersects(place); };
            if (!limites_.contains(place) || std::ranges::any_of(prises_, couvre)) continue;
            occuper(place);
            return place;
        }
        return std::nullopt;
    }

 private:
    QRectF limites_;
    std::vector<QRectF> prises_;
};

/// Points too small to have a shape, all those of a colour at once. In the plane each fills most of
/// its place, so that thousands of draws still show.
void peindreCarres(const ToileGraphe& t, const std::vector<const PointGraphe*>& visibles) {
    const double hauteur = std::max(1.0, 2 * t.repere.rayon());
    const double largeur =
        t.scene.vue3d ? hauteur : std::max(1.0, std::floor(t.repere.largeurPlace() * 0.6));
    std::array<QList<QRectF>, NbTeintes> carres;
    for (const PointGraphe* point : visibles) {
        const QPointF centre = t.repere.placer(*point);
        carres[static_cast<std::size_t>(point->teinte)].emplaceBack(
            std::round(centre.x() - largeur / 2), centre.y() - hauteur / 2, largeur, hauteur);
    }
    t.p.setRenderHint(QPainter::Antialiasing, false);
    t.p.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < carres.size(); ++i) {
        t.p.setBrush(t.scene.teintes[i]);
        t.p.drawRects(carres[i]);
    }
    t.p.setRenderHint(QPainter::Antialiasing);
}

/// What holds a point in space: a stem on the floor with a shadow, or, where a row is a draw, a pin
/// in the wall behind.
void peindrePied(const ToileGraphe& t, const PointGraphe& point) {
    QColor tige = t.style.discret;
    tige.setAlpha(110);
    if (t.scene.parTirage) {
        t.p.setPen(QPen(tige, 1));
        t.p.drawLine(t.repere.placer(point.place, point.valeur, 1), t.repere.placer(point));
        return;
    }
    const QPointF pied = t.repere.placer(point.place, t.scene.y.de);
    const double r = t.repere.rayon();
    QColor ombre = t.style.texte;
    ombre.setAlpha(40);
    t.p.setPen(Qt::NoPen);
    t.p.setBrush(ombre);
    t.p.drawEllipse(pied, r, r * 0.4);
    t.p.setPen(QPen(tige, 1));
    t.p.drawLine(pied, t.repere.placer(point));
}

void peindreRonds(const ToileGraphe& t, const std::vector<const PointGraphe*>& visibles) {
    const double r = t.repere.rayon();
    std::array<QBrush, NbTeintes> pinceaux;
    std::array<QPen, NbTeintes> plumes;
    for (std::size_t i = 0; i < NbTeintes; ++i) {
        const QColor& couleur = t.scene.teintes[i];
        plumes[i] = QPen(contour(t.style.fond, couleur), r > 4 ? 1.0 : 0.7);
        pinceaux[i] = couleur;
        if (!t.scene.vue3d) continue;
        QRadialGradient lumiere(QPointF(-r * 0.35, -r * 0.4), r * 1.5);
        lumiere.setColorAt(0, couleur.lighter(170));
        lumiere.setColorAt(0.45, couleur);
        lumiere.setColorAt(1, couleur.darker(190));
        pinceaux[i] = lumiere;
    }
    if (t.scene.vue3d) {
        for (const PointGraphe* point : visibles) peindrePied(t, *point);
    }
    for (const PointGraphe* point : visibles) {
        const auto i = static_cast<std::size_t>(point->teinte);
        const QPointF centre = t.repere.placer(*point);
        t.p.setPen(plumes[i]);
        t.p.setBrush(pinceaux[i]);
        t.p.translate(centre);
        t.p.drawEllipse(QPointF(), r, r);
        t.p.translate(-centre);
    }
}

/// The texts of one point: a number in or above it, a value below it.
class Etiqueteur {
 public:
    Etiqueteur(const ToileGraphe& toile, const std::vector<const PointGraphe*>& visibles)
        : t_(toile),
          m_(toile.p.font()),
          r_(toile.repere.rayon()),
          ligne_(m_.height() - 3),
          places_(toile.repere.cadre()) {
        for (const PointGraphe* point : visibles) places_.occuper(corps(*point));
    }

    void ecrire(const PointGraphe& point) {
        if (t_.scene.etiquettes && t_.scene.parTirage && r_ >= RayonNumero) {
            const QColor& fond = t_.scene.teintes[static_cast<std::size_t>(point.teinte)];
            dessiner(corps(point), point.element.valeur, encreSur(fond));
        } else if (t_.scene.etiquettes) {
            poser(point, point.element.valeur, true, t_.style.texte);
        }
        if (t_.scene.valeurs) poser(point, point.valeur, false, t_.style.discret);
    }

 private:
    QRectF corps(const PointGraphe& point) const {
        const QPointF centre = t_.repere.placer(point);
        return {centre.x() - r_, centre.y() - r_, 2 * r_, 2 * r_};
    }

    void dessiner(const QRectF& place, int nombre, const QColor& couleur) {
        t_.p.setPen(couleur);
        t_.p.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString::number(nombre));
    }

    /// In the first place that is free: above or below, beside, or one line further.
    void poser(const PointGraphe& point, int nombre, bool dessus, const QColor& couleur) {
        const QPointF centre = t_.repere.placer(point);
        const double largeur = m_.horizontalAdvance(QString::number(nombre)) + 1;
        const double x = centre.x() - largeur / 2;
        const double y = dessus ? centre.y() - r_ - ligne_ - 0.5 : centre.y() + r_ + 0.5;
        const double loin = dessus ? y - ligne_ : y + ligne_;
        const double cote = centre.y() - ligne_ / 2;
        const auto place = places_.prendre({{x, y, largeur, ligne_},
                                            {centre.x() + r_ + 1, cote, largeur, ligne_},
                                            {centre.x() - r_ - 1 - largeur, cote, largeur, ligne_},
                                            {x, loin, largeur, ligne_}});
        if (place) dessiner(*place, nombre, couleur);
    }

    const ToileGraphe& t_;
    QFontMetricsF m_;
    double r_, ligne_;  // of a point; figures reach neither end of a line
    Places places_;
};

}  // namespace

void peindrePoints(const ToileGraphe& toile) {
    std::vector<const PointGraphe*> visibles;
    visibles.reserve(toile.scene.points.size());
    for (const PointGraphe& point : toile.scene.points) {
        if (toile.scene.visible(point)) visibles.push_back(&point);
    }
    if (toile.repere.rayon() < RayonRond) {
        peindreCarres(toile, visibles);
    } else {
        peindreRonds(toile, visibles);
    }
    if (visibles.size() > EtiquettesMax) return;
    QFont police = toile.style.petite();
    police.setBold(true);
    toile.p.setFont(police);
    Etiqueteur etiqueteur(toile, visibles);
    for (const PointGraphe* point : visibles) etiqueteur.ecrire(*point);
}

}  // namespace norvane::ui
