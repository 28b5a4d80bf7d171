// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/PaireIntervalle.h"

#include <algorithm>
#include <QGridLayout>
#include <QLabel>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/SpinTirage.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PaireIntervalle::PaireIntervalle(const QString& nomInf, const QString& nomSup,
                                 const QString& indice, QWidget* parent)
    : QWidget(parent), inf_(new SpinTirage(this)), sup_(new SpinTirage(this)) {
    auto* grille = new QGridLayout(this);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(2 * Unite);
    grille->setVerticalSpacing(Unite);
    grille->setColumnStretch(2, 1);
    int rang = 0;
    const auto ajouter = [&](SpinTirage* spin, const QString& nom, const QString& texte) {
        auto* libelle = new QLabel(texte, this);
        libelle->setBuddy(spin);
        spin->setObjectName(nom);
        spin->setAccessibleName(texte);
        poserIndice(spin, indice);
        poserIndice(libelle, indice);
        grille->addWidget(libelle, rang, 0);
        grille->addWidget(spin, rang++, 1);
    };
    ajouter(inf_, nomInf, u"Tirage inférieur :"_s);
    ajouter(sup_, nomSup, u"Tirage supérieur :"_s);

    connect(inf_, &SpinTirage::tirageChange, this, [this](int tirage) {
        if (tirage > sup_->value()) sup_->poserValeur(tirage);
        Q_EMIT intervalleChange(inf_->value(), sup_->value());
    });
    connect(sup_, &SpinTirage::tirageChange, this, [this](int tirage) {
        if (tirage < inf_->value()) inf_->poserValeur(tirage);
        Q_EMIT intervalleChange(inf_->value(), sup_->value());
    });
}

void PaireIntervalle::poser(int nbTirages, int inf, int sup) {
    const int maximum = std::max(1, nbTirages);
    inf_->poser(1, maximum, inf);
    sup_->poser(1, maximum, sup);
}

void PaireIntervalle::poserAttenteSaisie(bool attente) {
    inf_->poserAttenteSaisie(attente);
    sup_->poserAttenteSaisie(attente);
}

}  // namespace norvane::ui
