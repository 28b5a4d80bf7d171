// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/VueGrille.h"

#include <QPainter>

#include "impression/DessinBulletin.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

template <typename Coches>
QString enClair(const Coches& coches) {
    QStringList mots;
    for (const int valeur : coches) mots << QString::number(valeur);
    return mots.join(u' ');
}

}  // namespace

VueGrille::VueGrille(int place, QWidget* parent) : QWidget(parent), place_(place) {
    setObjectName(u"ImageGrille%1"_s.arg(place));
    setAccessibleName(u"Grille %1 du bulletin"_s.arg(place));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize VueGrille::sizeHint() const {
    return {LargeurApercu * 3 / 5, HauteurApercu * 3 / 5};
}

void VueGrille::montrer(const Grille* grille, int marque) {
    grille_ = grille == nullptr ? std::nullopt : std::optional(*grille);
    marque_ = marque;
    setAccessibleDescription(
        grille == nullptr
            ? u"Pas de grille à cette place"_s
            : u"Numéros %1, chances %2"_s.arg(enClair(grille->numeros), enClair(grille->chances)));
    update();
}

void VueGrille::paintEvent(QPaintEvent*) {
    QPainter p(this);
    peindreApercu(p, rect(), grille_ ? &*grille_ : nullptr, place_, marque_);
}

}  // namespace norvane::ui
