// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/DelegueTableau.h"

#include <algorithm>
#include <QPainter>

#include "common/Theme.h"

namespace norvane::ui {

namespace {

// Levels of a bar, in hundredths of its whole length.
constexpr int NiveauBas = 33;
constexpr int NiveauMoyen = 66;

constexpr float PartChoix = 0.18F;  // of the selection's colour in a ground

QColor melange(const QColor& fond, const QColor& teinte, float part) {
    const auto voie = [part](float a, float b) { return a + (b - a) * part; };
    return QColor::fromRgbF(voie(fond.redF(), teinte.redF()), voie(fond.greenF(), teinte.greenF()),
                            voie(fond.blueF(), teinte.blueF()));
}

}  // namespace

DelegueTableau::DelegueTableau(const ModeleTableau& modele, QObject* parent)
    : QStyledItemDelegate(parent), modele_(modele) {}

void DelegueTableau::paint(QPainter* peintre, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const {
    QPainter& p = *peintre;
    const CelluleTableau& cellule = modele_.cellule(index);
    const QPalette& palette = option.palette;
    const bool choisie = option.state.testFlag(QStyle::State_Selected);
    p.save();
    QColor encre = palette.color(QPalette::Text);
    if (cellule.degrade >= 0) {
        p.fillRect(option.rect, index.data(Qt::BackgroundRole).value<QBrush>());
        if (choisie && modele_.degrade(cellule.degrade).choixVisible) {
            QColor voile = palette.color(QPalette::Highlight);
            voile.setAlphaF(PartChoix);
            p.fillRect(option.rect, voile);
        }
        encre = index.data(Qt::ForegroundRole).value<QBrush>().color();
    } else {
        QColor fond =
            palette.color(index.row() % 2 == 0 ? QPalette::Base : QPalette::AlternateBase);
        if (choisie) fond = melange(fond, palette.color(QPalette::Highlight), PartChoix);
        p.fillRect(option.rect, fond);
    }
    if (cellule.barre) {
        peindreBarre(p, option.rect, *cellule.barre, palette);
    } else {
        p.setPen(encre);
        p.setFont(index.data(Qt::FontRole).value<QFont>());
        const auto cadrage = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
        const QRect aire = option.rect.adjusted(MargeCellule, 0, -MargeCellule, 0);
        QRect ecrit;
        p.drawText(aire, static_cast<int>(cadrage) | Qt::TextSingleLine,
                   index.data(Qt::DisplayRole).toString(), &ecrit);
        if (!cellule.image.isNull()) {
            QRect image = aire;
            image.setLeft(ecrit.right() + 1);
            cellule.image.paint(&p, image.adjusted(0, 2, 0, -2), Qt::AlignLeft | Qt::AlignVCenter);
        }
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        p.setPen(QPen(palette.color(QPalette::Highlight), 2));
        p.setBrush(Qt::NoBrush);
        p.drawRect(option.rect.adjusted(1, 1, -1, -1));
    }
    p.restore();
}

void DelegueTableau::peindreBarre(QPainter& p, const QRect& cadre, int valeur,
                                  const QPalette& palette) {
    const Teintes t = teintes(palette);
    const int retrait = std::max(3, cadre.height() / 5);
    const QRect bord = cadre.adjusted(MargeCellule, retrait, -MargeCellule - 1, -retrait - 1);
    const int part = std::clamp(valeur, 0, BarreMax);
    const QColor couleur = part * 100 < NiveauBas * BarreMax     ? t.barreBasse
                           : part * 100 < NiveauMoyen * BarreMax ? t.barreMoyenne
                                                                 : t.barreHaute;
    p.fillRect(bord, palette.color(QPalette::Base));
    QRect plein = bord;
    plein.setWidth(bord.width() * part / BarreMax + (part > 0 ? 1 : 0));
    p.fillRect(plein, couleur);
    p.setPen(t.barreBord);
    p.setBrush(Qt::NoBrush);
    p.drawRect(bord);
}

}  // namespace norvane::ui
