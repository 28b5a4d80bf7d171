// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/Alerte.h"

#include <algorithm>
#include <QAccessible>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int DureeMs = 4000;
constexpr int Marge = 2 * Unite;
constexpr int Liseret = 4;  // accent at the left edge, in pixels
}  // namespace

Alerte::Alerte(QWidget* fenetre) : QWidget(fenetre) {
    setObjectName(u"Alerte"_s);
    setFocusPolicy(Qt::NoFocus);
    setToolTip(u"Cliquez pour fermer"_s);
    duree_.setObjectName(u"Duree"_s);
    duree_.setParent(this);
    duree_.setSingleShot(true);
    duree_.setInterval(DureeMs);
    connect(&duree_, &QTimer::timeout, this, &QWidget::hide);
    fenetre->installEventFilter(this);
    hide();
}

QFont Alerte::policeTitre() const {
    QFont fonte = font();
    fonte.setBold(true);
    return fonte;
}

QSize Alerte::sizeHint() const {
    const QFontMetrics gras(policeTitre());
    const QFontMetrics maigre(font());
    const QSize corps = maigre.size(0, texte_);
    return {std::max(gras.horizontalAdvance(titre_), corps.width()) + 4 * Marge + Liseret,
            gras.height() + corps.height() + 2 * Marge + Unite / 2};
}

void Alerte::montrer(const QString& titre, const QString& texte) {
    titre_ = titre;
    texte_ = texte;
    setAccessibleName(titre + u"\n"_s + texte);
    placer();
    raise();
    show();
    update();
    duree_.start();
    QAccessibleEvent annonce(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&annonce);
}

void Alerte::placer() {
    // Above the status bar.
    const QRect champ = parentWidget()->rect().adjusted(0, 0, -3 * Unite, -8 * Unite);
    const QSize taille = sizeHint();
    setGeometry(
        QRect(QPoint(champ.right() - taille.width(), champ.bottom() - taille.height()), taille));
}

bool Alerte::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == parentWidget() && evenement->type() == QEvent::Resize && !isHidden()) placer();
    return QWidget::eventFilter(objet, evenement);
}

void Alerte::mousePressEvent(QMouseEvent* evenement) {
    evenement->accept();
    duree_.stop();
    hide();
}

void Alerte::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const Teintes t = teintes(palette());
    p.setPen(QPen(t.accent, 1));
    p.setBrush(t.carte);
    p.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Unite, Unite);
    p.fillRect(QRect(1, Unite, Liseret, height() - 2 * Unite), t.accent);
    const QRect corps = rect().adjusted(2 * Marge, Marge, -2 * Marge, -Marge);
    p.setFont(policeTitre());
    p.setPen(t.accent);
    p.drawText(corps, int{Qt::AlignTop} | int{Qt::AlignLeft}, titre_);
    p.setFont(font());
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(corps, int{Qt::AlignBottom} | int{Qt::AlignLeft}, texte_);
}

}  // namespace norvane::ui
