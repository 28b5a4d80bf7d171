// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The drawing of play slips: our own picture of a grid for the preview, and what goes to the paper.
// On paper the painter's unit is a tenth of a millimetre, from the corner of the slip: a box is
// then about as large as on the preview.
#pragma once

#include <QRectF>
#include <span>

#include "slips/EtatBulletins.h"

class QFont;
class QPagedPaintDevice;
class QPainter;

namespace norvane {
struct Suivi;
}

namespace norvane::ui {

struct PagesVoulues;

inline constexpr double UnitesParMm = 10;

/// The picture of a grid at place 1..6 with its marks of this size, as large as `cible` holds it.
/// No grid: the blank picture.
void peindreApercu(QPainter& p, const QRectF& cible, const Grille* grille, int place, int marque);

/// What is printed of slips.
struct LotBulletins {
    MiseEnPlace mise;
    std::vector<Grille> grilles;
    OptionsBulletins options;
    PlageBulletins plage;
    bool epreuve = false;
};
/// One slip a page. False when painting failed or was stopped.
bool peindreBulletins(QPagedPaintDevice& papier, const LotBulletins& lot, const QFont& fonte,
                      const PagesVoulues& pages, const Suivi& suivi);

/// Rulers along the edges, the outline of every box, and where the offsets put the marks.
bool peindreCalibrage(QPagedPaintDevice& papier, const MiseEnPlace& mise, const QFont& fonte);

}  // namespace norvane::ui
