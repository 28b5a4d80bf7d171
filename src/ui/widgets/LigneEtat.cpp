// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/LigneEtat.h"

#include <QPainter>

namespace norvane::ui {

LigneEtat::LigneEtat(QWidget* parent) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QString LigneEtat::texteVu() const {
    QString ligne = text();
    ligne.replace(u'\n', u' ');
    return fontMetrics().elidedText(ligne.trimmed(), Qt::ElideRight, contentsRect().width());
}

QSize LigneEtat::sizeHint() const {
    return {1, fontMetrics().height()};
}

QSize LigneEtat::minimumSizeHint() const {
    return sizeHint();
}

void LigneEtat::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.drawText(contentsRect(), Qt::AlignVCenter | Qt::TextSingleLine, texteVu());
}

}  // namespace norvane::ui
