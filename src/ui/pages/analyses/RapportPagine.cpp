// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "analyses/RapportPagine.h"

#include <algorithm>
#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>

#include "analyses/MiseEnForme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double PixelsParMm = 96 / 25.4;
constexpr double Largeur = (210 - 2 * MargeRapport) * PixelsParMm;
constexpr double Hauteur = (297 - 2 * MargeRapport) * PixelsParMm;
constexpr double HauteurPied = 22;
constexpr int PolicePied = 11;      // pixels
constexpr double FinesseImage = 6;  // a picture on paper

}  // namespace

QSizeF RapportPagine::page() {
    return {Largeur, Hauteur};
}

RapportPagine::RapportPagine(const Document& document) {
    // Widths that hold at any resolution: every device gets the same pages.
    texte_.setUseDesignMetrics(true);
    texte_.setDocumentMargin(0);
    composer(texte_, document, {JeuStyles::RVStyle2, 1.0, FinesseImage, QColor(Qt::black)});
    texte_.setPageSize({Largeur, Hauteur - HauteurPied});
    nombre_ = texte_.pageCount();
}

void RapportPagine::peindre(QPainter& p, int numero, const QRectF& cible) const {
    const double hauteur = Hauteur - HauteurPied;
    QAbstractTextDocumentLayout::PaintContext encre;
    encre.palette.setColor(QPalette::Text, Qt::black);  // paper is white whatever the theme is
    encre.clip = QRectF(0, (numero - 1) * hauteur, Largeur, hauteur);
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.translate(cible.topLeft());
    const double echelle = std::min(cible.width() / Largeur, cible.height() / Hauteur);
    p.scale(echelle, echelle);
    QFont pied = QApplication::font();
    pied.setPixelSize(PolicePied);
    p.setFont(pied);
    p.setPen(Qt::darkGray);
    const QRectF feuille(0, 0, Largeur, Hauteur);
    p.drawText(feuille, Qt::AlignBottom | Qt::AlignLeft, u"Norvane"_s);
    p.drawText(feuille, Qt::AlignBottom | Qt::AlignRight,
               u"Page %1 / %2"_s.arg(numero).arg(nombre_));
    p.translate(0, -encre.clip.top());
    p.setClipRect(encre.clip, Qt::IntersectClip);
    texte_.documentLayout()->draw(&p, encre);
    p.restore();
}

}  // namespace norvane::ui
