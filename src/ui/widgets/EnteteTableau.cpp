// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/EnteteTableau.h"

#include <algorithm>
#include <QFontInfo>
#include <QMouseEvent>
#include <QPainter>

#include "common/Theme.h"
#include "widgets/DelegueTableau.h"

namespace norvane::ui {

EnteteTableau::EnteteTableau(ModeleTableau& modele, QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent), modele_(modele) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(8);
    connect(this, &QHeaderView::sectionClicked, this,
            [this](int colonne) { Q_EMIT colonneCliquee(colonne, secondaire_); });
}

void EnteteTableau::poserPolice(const QFont& police) {
    police_ = police;
    updateGeometry();
}

QSize EnteteTableau::sizeHint() const {
    const QFontMetrics mesure(police_);
    return {QHeaderView::sizeHint().width(), mesure.height() * 17 / 10 + Unite};
}

void EnteteTableau::mouseReleaseEvent(QMouseEvent* evenement) {
    secondaire_ = evenement->modifiers().testFlag(Qt::ShiftModifier);
    QHeaderView::mouseReleaseEvent(evenement);
}

void EnteteTableau::paintSection(QPainter* peintre, const QRect& cadre, int colonne) const {
    QPainter& p = *peintre;
    const ColonneTableau& c = modele_.colonnes()[static_cast<std::size_t>(colonne)];
    p.save();
    p.fillRect(cadre, palette().color(QPalette::AlternateBase));
    p.setPen(teintes(palette()).bordure);
    p.drawLine(cadre.topRight(), cadre.bottomRight());
    p.drawLine(cadre.bottomLeft(), cadre.bottomRight());
    const QString marque = modele_.marque(colonne);
    const int pied = QFontMetrics(police_).height() * 7 / 10;
    QRect haut = cadre.adjusted(2, 2, -3, -2);
    if (!marque.isEmpty()) {
        peindreMarque(p, QRect(cadre.left(), cadre.bottom() - pied - 1, cadre.width() - 1, pied),
                      marque);
        haut.setBottom(cadre.bottom() - pied);
    }
    if (!c.image.isNull()) {
        const int cote = std::min(haut.height(), QFontMetrics(police_).height() * 13 / 10);
        QRect place(0, 0, cote, cote);
        place.moveCenter(haut.center());
        c.image.paint(&p, place);
    } else {
        p.setFont(police_);
        p.setPen(palette().color(QPalette::Text));
        const bool gauche = c.alignement == Qt::AlignLeft;
        p.drawText(
            gauche ? haut.adjusted(MargeCellule - 2, 0, 0, 0) : haut,
            (gauche ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter) | Qt::TextSingleLine,
            c.entete);
    }
    p.restore();
}

void EnteteTableau::peindreMarque(QPainter& p, const QRect& cadre, const QString& marque) const {
    // The arrow is drawn: not every font has one, and a borrowed one would sit off the line.
    QFont petite = police_;
    petite.setPixelSize(QFontInfo(petite).pixelSize() * 8 / 10);
    const QFontMetrics mesure(petite);
    const QString rang = marque.left(1);
    const double cote = mesure.ascent() * 0.62;
    const double largeur = mesure.horizontalAdvance(rang) + 2 + cote;
    const double gauche = cadre.center().x() - largeur / 2;
    p.setRenderHint(QPainter::Antialiasing);
    p.setFont(petite);
    p.setPen(teintes(palette()).accent);
    p.drawText(QRectF(gauche, cadre.top(), largeur, cadre.height()),
               Qt::AlignLeft | Qt::AlignVCenter, rang);
    const double x = gauche + largeur - cote;
    const double milieu = cadre.center().y() + 0.5;
    const double sens = marque.endsWith(u'▲') ? 1 : -1;
    p.setPen(Qt::NoPen);
    p.setBrush(teintes(palette()).accent);
    p.drawPolygon(QPolygonF({{x, milieu + sens * cote / 2},
                             {x + cote, milieu + sens * cote / 2},
                             {x + cote / 2, milieu - sens * cote / 2}}));
}

}  // namespace norvane::ui
