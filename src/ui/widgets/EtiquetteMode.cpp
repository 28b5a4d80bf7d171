// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/EtiquetteMode.h"

#include <QPainter>

#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

EtiquetteMode::EtiquetteMode(QWidget* parent) : QLabel(parent) {
    setObjectName(u"LabelMode"_s);
    setAlignment(Qt::AlignCenter);
    setMinimumSize(fontMetrics().horizontalAdvance(u"Mode Consultation"_s) + 8 * Unite,
                   fontMetrics().height() + 2 * Unite);
    clignotement_.setObjectName(u"Timer2"_s);
    clignotement_.setParent(this);
    clignotement_.setInterval(500);
    connect(&clignotement_, &QTimer::timeout, this, &EtiquetteMode::battre);
}

void EtiquetteMode::montrer(const QString& mode) {
    setText(mode);
    setAccessibleName(mode);
    battements_ = 0;
    alerte_ = false;
    clignotement_.start();
    update();
}

void EtiquetteMode::battre() {
    alerte_ = !alerte_;
    if (++battements_ == 5) {
        clignotement_.stop();
        alerte_ = false;
    }
    update();
}

void EtiquetteMode::paintEvent(QPaintEvent*) {
    const Teintes t = teintes(palette());
    QPainter peintre(this);
    peintre.setRenderHint(QPainter::Antialiasing);
    const QColor couleur = alerte_ ? t.alerte : t.accent;
    QRectF pastille = QRectF(rect()).adjusted(Unite, 3.5, -Unite, -3.5);
    QColor fond = couleur;
    fond.setAlpha(28);
    peintre.setBrush(fond);
    peintre.setPen(QPen(couleur, 1));
    peintre.drawRoundedRect(pastille, pastille.height() / 2, pastille.height() / 2);
    peintre.setPen(couleur);
    peintre.drawText(pastille, Qt::AlignCenter, text());
}

}  // namespace norvane::ui
