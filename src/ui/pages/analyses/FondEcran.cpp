// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analyses/FondEcran.h"

#include <array>
#include <cmath>
#include <QPainter>

namespace norvane::ui {

namespace {

constexpr double Cote = 120;  // design units

/// A ball of the tile: centre and radius in parts of its side.
struct Boule {
    double x, y, rayon;
};
constexpr std::array<Boule, 4> Boules{
    {{0.22, 0.24, 0.13}, {0.70, 0.20, 0.08}, {0.54, 0.62, 0.16}, {0.14, 0.78, 0.07}}};

}  // namespace

QPixmap fondEcran(JeuStyles jeu, double echelle) {
    const bool sombre = jeu == JeuStyles::RVStyle1;
    const int cote = static_cast<int>(std::lround(Cote * echelle));
    QPixmap tuile(cote, cote);
    tuile.fill(QColor::fromRgb(FondDe(jeu)));
    QPainter p(&tuile);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    for (const Boule& b : Boules) {
        const QPointF centre(b.x * cote, b.y * cote);
        const double rayon = b.rayon * cote;
        QRadialGradient volume(centre, rayon, centre - QPointF(rayon, rayon) / 3);
        volume.setColorAt(0, sombre ? QColor(0x1E, 0x28, 0x3C) : QColor(0xF8, 0xFA, 0xFF));
        volume.setColorAt(1, sombre ? QColor(0x10, 0x16, 0x24) : QColor(0xE9, 0xEF, 0xFB));
        p.setBrush(volume);
        p.drawEllipse(centre, rayon, rayon);
    }
    return tuile;
}

}  // namespace norvane::ui
