// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/PlancheNumeros.h"

#include <algorithm>
#include <QEvent>
#include <QPainter>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

// The grid: ten numbers a row, then a gap and two columns of chances.
constexpr int ColonnesNumeros = 10;
constexpr int ColonnesChances = 2;
constexpr int Rangees = 5;
constexpr double EcartGroupes = 0.5;  // gap between both groups, in tile widths

struct Case {
    int colonne;
    int rangee;
};

Case caseDe(int place) {
    if (place < NumeroMax) return {place % ColonnesNumeros, place / ColonnesNumeros};
    const int k = place - NumeroMax;
    return {ColonnesNumeros + k % ColonnesChances, k / ColonnesChances};
}

std::size_t rang(int place) {
    return static_cast<std::size_t>(place);
}

}  // namespace

PlancheNumeros::PlancheNumeros(QWidget* parent, const NomsPlanche& noms) : QFrame(parent) {
    setObjectName(QString::fromUtf16(noms.planche));
    setAccessibleName(u"Planche des numéros et des chances"_s);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (int place = 0; place < NbBoutons; ++place) {
        const bool numero = place < NumeroMax;
        auto* b = new BoutonPlanche(numero ? GenreStats::Numeros : GenreStats::Chances,
                                    numero ? place + 1 : place - NumeroMax + 1, this);
        b->setObjectName(QString::fromUtf16(noms.bouton)
                             .arg(numero ? noms.numero + place : noms.chance + place - NumeroMax));
        b->installEventFilter(this);
        connect(b, &QAbstractButton::clicked, this,
                [this, b] { Q_EMIT appui(b->genre(), b->valeur()); });
        connect(b, &BoutonPlanche::fleche, this,
                [this, place](int dx, int dy) { naviguer(place, dx, dy); });
        boutons_[rang(place)] = b;
    }
    boutons_[0]->setFocusPolicy(Qt::StrongFocus);
}

void PlancheNumeros::eclairer(const Cases& allumees) {
    changer(TirageAffiche_, allumees, &BoutonPlanche::setAllume);
}

void PlancheNumeros::tenir(const Cases& enfoncees) {
    changer(EtatBouton_, enfoncees, &BoutonPlanche::setEnfonce);
}

void PlancheNumeros::changer(Cases& montrees, const Cases& voulues,
                             void (BoutonPlanche::*poser)(bool)) {
    const Cases differentes = montrees.ecart(voulues);
    for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances}) {
        for (const int valeur : differentes.de(genre)) {
            (bouton(placeDe(genre, valeur))->*poser)(voulues.contient(genre, valeur));
        }
    }
    montrees = voulues;
}

void PlancheNumeros::poserIndices(const std::array<std::string, NbBoutons>& indices) {
    for (int place = 0; place < NbBoutons; ++place) {
        poserIndice(bouton(place), versQt(indices[rang(place)]));
    }
}

void PlancheNumeros::placer() {
    const QFontMetrics mesure(font());
    const double marge = 2.0 * Unite;
    const double titre = mesure.height() + Unite;
    const double large = width() - 2 * marge;
    const double haut = height() - 2 * marge - titre;
    const double colonnes = ColonnesNumeros + ColonnesChances + EcartGroupes;
    // Tiles fill the board but never grow far from a square.
    const double w = std::min(large / colonnes, haut / Rangees * 1.5);
    const double h = std::min(haut / Rangees, w * 1.3);
    const double x0 = marge + (large - w * colonnes) / 2;
    const double y0 = marge + titre + (haut - h * Rangees) / 2;
    for (int place = 0; place < NbBoutons; ++place) {
        const Case c = caseDe(place);
        const double x = x0 + w * (c.colonne + (place < NumeroMax ? 0.0 : EcartGroupes));
        const double y = y0 + h * c.rangee;
        const QPoint coin(qRound(x), qRound(y));
        bouton(place)->setGeometry(QRect(coin, QPoint(qRound(x + w) - 1, qRound(y + h) - 1)));
    }
    titreNumeros_ = QRectF(x0 + 3, y0 - titre, w * ColonnesNumeros, titre);
    titreChances_ = QRectF(x0 + 3 + w * (ColonnesNumeros + EcartGroupes), y0 - titre,
                           w * ColonnesChances, titre);
}

void PlancheNumeros::resizeEvent(QResizeEvent* evenement) {
    QFrame::resizeEvent(evenement);
    placer();
}

void PlancheNumeros::paintEvent(QPaintEvent*) {
    QPainter p(this);
    peindreFiche(p, *this);
    p.setPen(teintes(palette()).discret);
    const int alignement = Qt::AlignLeft | Qt::AlignTop;
    p.drawText(titreNumeros_, alignement, u"Numéros"_s);
    p.drawText(titreChances_, alignement, u"Chances"_s);
}

bool PlancheNumeros::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::FocusIn) {
        // The tab key enters the board where it was left.
        const auto ou = std::ranges::find(boutons_, objet);
        if (ou != boutons_.end()) {
            boutons_[rang(courant_)]->setFocusPolicy(Qt::ClickFocus);
            courant_ = static_cast<int>(ou - boutons_.begin());
            boutons_[rang(courant_)]->setFocusPolicy(Qt::StrongFocus);
        }
    }
    return QFrame::eventFilter(objet, evenement);
}

void PlancheNumeros::naviguer(int place, int dx, int dy) {
    const auto occupant = [](Case c) {
        for (int autre = 0; autre < NbBoutons; ++autre) {
            const Case a = caseDe(autre);
            if (a.colonne == c.colonne && a.rangee == c.rangee) return autre;
        }
        return -1;
    };
    Case c = caseDe(place);
    for (;;) {  // the grid has one empty place, behind 49
        c = {c.colonne + dx, c.rangee + dy};
        if (c.colonne < 0 || c.colonne >= ColonnesNumeros + ColonnesChances) return;
        if (c.rangee < 0 || c.rangee >= Rangees) return;
        const int autre = occupant(c);
        if (autre < 0) continue;
        bouton(autre)->setFocus(Qt::OtherFocusReason);
        return;
    }
}

}  // namespace norvane::ui
