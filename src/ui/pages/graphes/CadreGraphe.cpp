// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphes/CadreGraphe.h"

#include <cmath>
#include <QGridLayout>
#include <QScrollBar>
#include <QSignalBlocker>

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double Finesse = 100;  // steps of a bar for one unit of its axis

int pas(double longueur) {
    return static_cast<int>(std::lround(longueur * Finesse));
}

/// `avant` is what lies off the window at the side that the bar counts from.
void poserBarre(QScrollBar* barre, double avant, double fenetre, double limites) {
    const QSignalBlocker muet(barre);
    barre->setRange(0, pas(limites - fenetre));
    barre->setPageStep(pas(fenetre));
    barre->setSingleStep(pas(1));
    barre->setValue(pas(avant));
    barre->setVisible(barre->maximum() > 0);
}

QScrollBar* creerBarre(Qt::Orientation sens, const QString& nom, const QString& libelle,
                       QWidget* parent) {
    auto* barre = new QScrollBar(sens, parent);
    barre->setObjectName(nom);
    barre->setAccessibleName(libelle);
    // The chart keeps its size when a bar comes or goes.
    QSizePolicy place = barre->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    barre->setSizePolicy(place);
    return barre;
}

}  // namespace

CadreGraphe::CadreGraphe(const QString& nomVue, QWidget* parent)
    : QWidget(parent),
      vue(new VueGraphe(nomVue, this)),
      horizontale_(creerBarre(Qt::Horizontal, nomVue + u"DefilementPlaces"_s,
                              u"Défilement des numéros et chances"_s, this)),
      verticale_(creerBarre(Qt::Vertical, nomVue + u"DefilementHauteurs"_s,
                            u"Défilement vertical du graphe"_s, this)) {
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setSpacing(0);
    grille->addWidget(vue, 0, 0);
    grille->addWidget(verticale_, 0, 1);
    grille->addWidget(horizontale_, 1, 0);
    // The values of the bars are wishes: their window comes back with the next scene.
    connect(horizontale_, &QScrollBar::valueChanged, this, [this](int valeur) {
        const double avant = valeur / Finesse;
        vue->defiler(avant - (vue->scene().x.de - vue->limitesX().de), 0);
    });
    connect(verticale_, &QScrollBar::valueChanged, this, [this](int valeur) {
        const double avant = valeur / Finesse;
        vue->defiler(0, vue->limitesY().a - avant - vue->scene().y.a);
    });
}

void CadreGraphe::montrer(const SceneGraphe& scene, const Etendue& limitesX,
                          const Etendue& limitesY) {
    poserBarre(horizontale_, scene.x.de - limitesX.de, scene.x.longueur(), limitesX.longueur());
    poserBarre(verticale_, limitesY.a - scene.y.a, scene.y.longueur(), limitesY.longueur());
    vue->montrer(scene, limitesX, limitesY);
}

}  // namespace norvane::ui
