// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <QFontMetricsF>
#include <QPolygonF>

#include "common/Theme.h"
#include "graphes/ToileGraphe.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double FinNumeros = NumeroMax + 0.5;  // between the numbers and the Chances

QColor voile(QColor couleur, int alpha) {
    couleur.setAlpha(alpha);
    return couleur;
}

/// A wall, the floor or a band: its four corners in the box.
QPolygonF quadrilatere(const Repere& r, std::array<Point3D, 4> coins) {
    QPolygonF forme;
    for (const Point3D& c : coins) forme << r.placer(c.x, c.y, c.z);
    return forme;
}

/// The side wall that can be seen.
double murDeCote(const SceneGraphe& s) {
    return s.vue3d->rotation >= 0 ? s.x.de : s.x.a;
}

/// The edge that the vertical graduations stand at.
double bordGauche(const SceneGraphe& s) {
    return s.vue3d && s.vue3d->rotation < 0 ? 1.0 : 0.0;
}

void peindreMurs(const ToileGraphe& t) {
    const SceneGraphe& s = t.scene;
    const double cote = murDeCote(s);
    t.p.setPen(t.style.grille);
    t.p.setBrush(voile(t.style.grille, 70));
    t.p.drawPolygon(quadrilatere(
        t.repere, {{{cote, s.y.de, 0}, {cote, s.y.de, 1}, {cote, s.y.a, 1}, {cote, s.y.a, 0}}}));
    t.p.setBrush(voile(t.style.grille, 110));
    t.p.drawPolygon(quadrilatere(
        t.repere,
        {{{s.x.de, s.y.de, 0}, {s.x.a, s.y.de, 0}, {s.x.a, s.y.de, 1}, {s.x.de, s.y.de, 1}}}));
    t.p.setBrush(voile(t.style.grille, 35));
    t.p.drawPolygon(quadrilatere(
        t.repere,
        {{{s.x.de, s.y.de, 1}, {s.x.a, s.y.de, 1}, {s.x.a, s.y.a, 1}, {s.x.de, s.y.a, 1}}}));
}

void segment(const ToileGraphe& t, const Point3D& a, const Point3D& b) {
    t.p.drawLine(t.repere.placer(a.x, a.y, a.z), t.repere.placer(b.x, b.y, b.z));
}

/// A line across at the height y.
void ligneHauteur(const ToileGraphe& t, double y) {
    const SceneGraphe& s = t.scene;
    segment(t, {s.x.de, y, 1}, {s.x.a, y, 1});
    if (s.vue3d) segment(t, {murDeCote(s), y, 0}, {murDeCote(s), y, 1});
}

/// A line upwards at the place x.
void lignePlace(const ToileGraphe& t, double x) {
    const SceneGraphe& s = t.scene;
    segment(t, {x, s.y.de, 1}, {x, s.y.a, 1});
    if (s.vue3d) segment(t, {x, s.y.de, 0}, {x, s.y.de, 1});
}

void graduerHauteurs(const ToileGraphe& t) {
    const SceneGraphe& s = t.scene;
    const QFontMetricsF m(t.p.font());
    const int nombre =
        std::max(2, static_cast<int>(t.repere.cadre().height() / (m.height() * 1.5)));
    // A row of the chart is a draw: each has its number as long as there is room.
    const int place =
        s.parTirage ? static_cast<int>(t.repere.cadre().height() / m.height()) : nombre;
    const int pas = PasGraduation(s.y.longueur(), place);
    const int premier = std::max(0, static_cast<int>(std::ceil(s.y.de / pas)) * pas);
    for (int y = premier; y <= s.y.a; y += pas) {
        t.p.setPen(QPen(voile(t.style.grille, y % (5 * pas) == 0 ? 255 : 130), 1));
        ligneHauteur(t, y);
        const QPointF bord = t.repere.placer(s.x.de, y, bordGauche(s));
        t.p.setPen(t.style.discret);
        t.p.drawText(QRectF(bord.x() - 100 - Unite, bord.y() - m.height() / 2, 100, m.height()),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(y));
    }
}

void graduerPlaces(const ToileGraphe& t) {
    const SceneGraphe& s = t.scene;
    const QFontMetricsF m(t.p.font());
    const double texte = m.horizontalAdvance(u"59"_s) + 3;
    const int pas = PasGraduation(
        s.x.longueur(),
        std::max(1, static_cast<int>(s.x.longueur() * t.repere.largeurPlace() / texte)));
    const int premier = std::max(1, static_cast<int>(std::ceil(s.x.de)));
    const int dernier = std::min(NbPlaces, static_cast<int>(std::floor(s.x.a)));
    for (int place = premier; place <= dernier; ++place) {
        if (place % 5 == 0) {
            t.p.setPen(QPen(voile(t.style.grille, 110), 1));
            lignePlace(t, place);
        }
        if (place % pas != 0 && !(pas > 2 && place == 1)) continue;
        const QPointF bord = t.repere.placer(place, s.y.de, 0);
        t.p.setPen(t.style.discret);
        t.p.drawText(QRectF(bord.x() - 30, bord.y() + Unite / 2.0, 60, m.height()),
                     Qt::AlignHCenter | Qt::AlignTop, QString::number(place));
    }
    if (s.x.contient(FinNumeros)) {
        t.p.setPen(QPen(t.style.discret, 1, Qt::DashLine));
        lignePlace(t, FinNumeros);
    }
}

/// What chance alone would give, and how far it reaches as a rule.
void peindreAttendu(const ToileGraphe& t, const Attendu& attendu, double de, double a) {
    const SceneGraphe& s = t.scene;
    const double gauche = std::max(de, s.x.de);
    const double droite = std::min(a, s.x.a);
    if (gauche >= droite) return;
    const double bas = std::max(attendu.moyenne - attendu.bande, s.y.de);
    const double haut = std::min(attendu.moyenne + attendu.bande, s.y.a);
    constexpr double Z = Repere::MiProfondeur;
    if (bas < haut) {
        t.p.setPen(Qt::NoPen);
        t.p.setBrush(voile(t.style.accent, 30));
        t.p.drawPolygon(quadrilatere(
            t.repere,
            {{{gauche, bas, Z}, {droite, bas, Z}, {droite, haut, Z}, {gauche, haut, Z}}}));
    }
    if (s.y.contient(attendu.moyenne)) {
        t.p.setPen(QPen(voile(t.style.accent, 190), 1.2, Qt::DashLine));
        segment(t, {gauche, attendu.moyenne, Z}, {droite, attendu.moyenne, Z});
    }
}

void peindreTitres(const ToileGraphe& t, const QRectF& tout) {
    const QRectF& cadre = t.repere.cadre();
    QFont gras = t.style.fonte;
    gras.setBold(true);
    t.p.setFont(gras);
    t.p.setPen(t.style.texte);
    const QFontMetricsF m(gras);
    const QRectF haut(tout.left() + Unite, tout.top() + Unite, tout.width() - 2 * Unite,
                      m.height());
    t.p.drawText(haut, Qt::AlignCenter, m.elidedText(t.scene.titre, Qt::ElideRight, haut.width()));

    t.p.setFont(t.style.fonte);
    t.p.setPen(t.style.discret);
    const double ligne = QFontMetricsF(t.style.fonte).height();
    t.p.drawText(QRectF(cadre.left(), tout.bottom() - ligne - Unite / 2.0, cadre.width(), ligne),
                 Qt::AlignCenter, u"Numéros + Chances"_s);
    t.p.save();
    t.p.translate(tout.left() + Unite, cadre.center().y());
    t.p.rotate(-90);
    t.p.drawText(QRectF(-cadre.height() / 2, 0, cadre.height(), ligne), Qt::AlignCenter,
                 t.scene.titreVertical);
    t.p.restore();
}

}  // namespace

void peindreGraphe(QPainter& p, const QRectF& tout, const SceneGraphe& scene,
                   const StyleGraphe& style) {
    const Repere repere(scene, style, tout);
    const ToileGraphe t{p, scene, style, repere};
    p.fillRect(tout, style.fond);
    if (repere.cadre().width() < 1 || repere.cadre().height() < 1) return;
    p.setRenderHint(QPainter::Antialiasing);
    if (scene.vue3d) peindreMurs(t);
    p.setFont(style.petite());
    graduerHauteurs(t);
    graduerPlaces(t);
    if (scene.attendus) {
        peindreAttendu(t, scene.attendus->numero, 0.5, FinNumeros);
        peindreAttendu(t, scene.attendus->chance, FinNumeros, NbPlaces + 0.5);
    }
    if (!scene.vue3d) {
        p.setPen(QPen(style.discret, 1));
        segment(t, {scene.x.de, scene.y.de, 0}, {scene.x.de, scene.y.a, 0});
        segment(t, {scene.x.de, scene.y.de, 0}, {scene.x.a, scene.y.de, 0});
    }
    p.save();
    if (!scene.vue3d) p.setClipRect(repere.cadre());
    peindrePoints(t);
    p.restore();
    peindreTitres(t, tout);
}

}  // namespace norvane::ui
