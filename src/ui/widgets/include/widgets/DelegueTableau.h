// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a cell of a VueTableau is painted.
#pragma once

#include <QStyledItemDelegate>

#include "widgets/ModeleTableau.h"

namespace norvane::ui {

/// Room left and right of a cell's text, in pixels.
inline constexpr int MargeCellule = 6;

class DelegueTableau final : public QStyledItemDelegate {
    Q_OBJECT

 public:
    DelegueTableau(const ModeleTableau& modele, QObject* parent);

    void paint(QPainter* peintre, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

 private:
    static void peindreBarre(QPainter& p, const QRect& cadre, int valeur, const QPalette& palette);

    const ModeleTableau& modele_;
};

}  // namespace norvane::ui
