// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/PaireIntervalle.h"

#include <algorithm>
#include <limits>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"
#include "widgets/SpinTirage.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int ToutLaBase = std::numeric_limits<int>::max();
}  // namespace

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
        controles_ << spin;
    };
    ajouter(inf_, nomInf, u"Tirage inférieur :"_s);
    ajouter(sup_, nomSup, u"Tirage supérieur :"_s);

    grille->addLayout(creerRaccourcis(nomInf), rang, 0, 1, 3);
    relier(inf_);
    relier(sup_);
}

QLayout* PaireIntervalle::creerRaccourcis(const QString& nom) {
    auto* rangee = new QHBoxLayout;
    rangee->setSpacing(Unite);
    const auto ajouter = [&](const QString& suffixe, const QString& texte, const QString& indice,
                             int nombre) {
        auto* bouton = new QPushButton(texte, this);
        bouton->setObjectName(nom + suffixe);
        bouton->setAccessibleName(indice);
        bouton->setFixedWidth(bouton->fontMetrics().horizontalAdvance(texte) + 4 * Unite);
        poserIndice(bouton, indice);
        connect(bouton, &QPushButton::clicked, this, [this, nombre] { choisirDerniers(nombre); });
        controles_ << bouton;
        rangee->addWidget(bouton);
    };
    ajouter(u"Tout"_s, u"Toute la base"_s, u"Tous les tirages de la base"_s, ToutLaBase);
    rangee->addWidget(legende(u"Derniers :"_s, this));
    for (const int nombre : {10, 30, 100}) {
        ajouter(u"Derniers%1"_s.arg(nombre), QString::number(nombre),
                u"Les %1 derniers tirages"_s.arg(nombre), nombre);
    }
    rangee->addStretch(1);
    return rangee;
}

void PaireIntervalle::relier(SpinTirage* spin) {
    connect(spin, &SpinTirage::tirageChange, this, [this, spin](int tirage) {
        if (spin == inf_) {
            sup_->poserValeur(std::max(tirage, propreSup_));
        } else {
            inf_->poserValeur(std::min(tirage, propreInf_));
        }
        if (!spin->hasFocus()) tenir();
        Q_EMIT intervalleChange(inf_->value(), sup_->value());
    });
    connect(spin, &QAbstractSpinBox::editingFinished, this, &PaireIntervalle::tenir);
}

/// What stands holds from now on.
void PaireIntervalle::tenir() {
    propreInf_ = inf_->value();
    propreSup_ = sup_->value();
}

void PaireIntervalle::choisirDerniers(int nombre) {
    const int dernier = sup_->maximum();
    poser(dernier, std::max(1, dernier - nombre + 1), dernier);
    Q_EMIT intervalleChange(inf_->value(), sup_->value());
}

void PaireIntervalle::poser(int nbTirages, int inf, int sup) {
    const int maximum = std::max(1, nbTirages);
    inf_->poser(1, maximum, inf);
    sup_->poser(1, maximum, sup);
    tenir();
}

void PaireIntervalle::poserAttenteSaisie(bool attente) {
    inf_->poserAttenteSaisie(attente);
    sup_->poserAttenteSaisie(attente);
}

}  // namespace norvane::ui
