// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/BoutonPlanche.h"

#include <algorithm>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

void dessinerAllume(QPainter& peintre, const QRectF& aire, const QString& texte, const QFont& fonte,
                    const QColor& fond) {
    QPainterPath lettres;
    const QRectF boite = QFontMetricsF(fonte).tightBoundingRect(texte);
    lettres.addText(aire.center().x() - boite.center().x(), aire.center().y() - boite.center().y(),
                    fonte, texte);
    const double bord = std::max(2.0, std::min(aire.width(), aire.height()) * 0.06);
    peintre.strokePath(lettres,
                       QPen(fond.darker(230), bord, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    peintre.fillPath(lettres, QColor(CouleurTexteAllume));
}

BoutonPlanche::BoutonPlanche(GenreStats genre, int valeur, QWidget* parent)
    : QAbstractButton(parent), genre_(genre), valeur_(valeur) {
    const bool numero = genre == GenreStats::Numeros;
    setText(QString::number(valeur));
    setAccessibleName((numero ? u"Numéro %1"_s : u"Chance %1"_s).arg(valeur));
    setFocusPolicy(Qt::ClickFocus);
    annoncer();
}

void BoutonPlanche::setAllume(bool allume) {
    if (allume == allume_) return;
    allume_ = allume;
    annoncer();
    update();
}

void BoutonPlanche::setEnfonce(bool enfonce) {
    if (enfonce == enfonce_) return;
    enfonce_ = enfonce;
    annoncer();
    update();
}

void BoutonPlanche::annoncer() {
    QStringList etats;
    if (allume_) etats << u"sorti"_s;
    if (enfonce_) etats << u"coché"_s;
    setAccessibleDescription(etats.join(u", "_s));
}

QColor BoutonPlanche::fond() const {
    if (!allume_) return QColor(CouleurBoutonNeutre);
    return QColor(genre_ == GenreStats::Numeros ? CouleurNumeroAllume : CouleurChanceAllumee);
}

QColor BoutonPlanche::police() const {
    if (allume_) return enfonce_ ? QColor(Qt::black) : QColor(CouleurTexteAllume);
    return palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                           QPalette::ButtonText);
}

/// What is painted for fond().
QColor BoutonPlanche::teinte() const {
    if (allume_ || !estSombre(palette())) return fond();
    return QColor(0x3B, 0x43, 0x54);
}

void BoutonPlanche::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const bool bas = enfonce_ || isDown();
    const bool survol = underMouse() && isEnabled();
    const QRectF aire = QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5);
    const double cote = std::min(aire.width(), aire.height());
    const double rayon = genre_ == GenreStats::Numeros ? cote * 0.2 : cote * 0.5;
    const Teintes t = teintes(palette());

    QColor couleur = teinte();
    if (survol) couleur = couleur.lighter(estSombre(palette()) ? 118 : 104);
    QLinearGradient relief(aire.topLeft(), aire.bottomLeft());
    // A tile that is up catches the light from above, one that is down lies in its own shade.
    relief.setColorAt(0, bas ? couleur.darker(118) : couleur.lighter(106));
    relief.setColorAt(bas ? 0.35 : 0.8, couleur);
    relief.setColorAt(1, bas ? couleur.lighter(103) : couleur.darker(108));
    p.setPen(QPen(couleur.darker(estSombre(palette()) ? 140 : 128), 1));
    p.setBrush(relief);
    p.drawRoundedRect(aire, rayon, rayon);

    if (enfonce_) {  // the mark of the slip: a frame inside the tile
        const double trait = std::max(2.0, cote * 0.06);
        const QRectF cadre = aire.adjusted(trait, trait, -trait, -trait);
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(allume_ ? QColor(Qt::black) : t.accent, trait));
        p.drawRoundedRect(cadre, std::max(0.0, rayon - trait), std::max(0.0, rayon - trait));
    }

    QFont fonte = font();
    fonte.setPixelSize(std::clamp(static_cast<int>(cote * 0.42), 11, 72));
    fonte.setBold(allume_ || enfonce_);
    p.setFont(fonte);
    const QRectF texte = bas && !enfonce_ ? aire.translated(0, 1) : aire;
    if (allume_ && !enfonce_) {
        dessinerAllume(p, texte, text(), fonte, couleur);
    } else {
        p.setPen(enfonce_ && !allume_ ? t.accent : police());
        p.drawText(texte, Qt::AlignCenter, text());
    }

    if (hasFocus()) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(t.accent, 2));
        p.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), rayon + 1.5, rayon + 1.5);
    }
}

void BoutonPlanche::keyPressEvent(QKeyEvent* evenement) {
    switch (evenement->key()) {
        case Qt::Key_Left:
            Q_EMIT fleche(-1, 0);
            return;
        case Qt::Key_Right:
            Q_EMIT fleche(1, 0);
            return;
        case Qt::Key_Up:
            Q_EMIT fleche(0, -1);
            return;
        case Qt::Key_Down:
            Q_EMIT fleche(0, 1);
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            click();
            return;
        default:
            QAbstractButton::keyPressEvent(evenement);
    }
}

void BoutonPlanche::enterEvent(QEnterEvent* evenement) {
    QAbstractButton::enterEvent(evenement);
    update();
}

void BoutonPlanche::leaveEvent(QEvent* evenement) {
    QAbstractButton::leaveEvent(evenement);
    update();
}

}  // namespace norvane::ui
