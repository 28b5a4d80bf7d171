// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "nc/PanneauSelectionNC.h"

#include <algorithm>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

#include "atelier/Cases.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"
#include "widgets/PlancheNumeros.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

/// Items 0 to 48 are the numbers, 50 to 59 the chances.
constexpr NomsPlanche PlancheNC{u"RxCheckListBox3", u"RxCheckListBox3Item%1", 0, 50};

}  // namespace

QComboBox* choixTypes(const QString& nom, const QString& sens, const QString& indice,
                      QWidget* parent) {
    auto* choix = new QComboBox(parent);
    choix->setObjectName(nom);
    choix->setAccessibleName(sens);
    poserIndice(choix, indice);
    for (const TypeGrille& type : TypesVendus) choix->addItem(versQt(LibelleType(type)));
    choix->setMinimumHeight(choix->fontMetrics().height() + 2 * Unite);
    return choix;
}

TypeGrille typeChoisi(const QComboBox& choix) {
    return TypesVendus.at(static_cast<std::size_t>(choix.currentIndex()));
}

void montrerType(QComboBox& choix, TypeGrille type) {
    const QSignalBlocker silence(&choix);
    const auto* place = std::ranges::find(TypesVendus, type);
    choix.setCurrentIndex(static_cast<int>(place - TypesVendus.begin()));
}

PanneauSelectionNC::PanneauSelectionNC(QWidget* parent)
    : QWidget(parent), planche_(new PlancheNumeros(this, PlancheNC)) {
    auto* fiche = new Fiche(this);
    numeros_ = valeur(u"LabelNumerosNC"_s, u"Numéros cochés"_s, fiche);
    chances_ = valeur(u"LabelChancesNC"_s, u"Chances cochées"_s, fiche);
    vider_ = bouton(u"Button61"_s, u"V&ider"_s, u"Décocher toutes les cases..."_s, fiche);
    valider_ = bouton(u"Button62"_s, u"&Valider"_s, u"Valider votre sélection"_s, fiche);
    types_ = choixTypes(u"ComboBox5"_s, u"Type de la grille aléatoire"_s,
                        u"Type de la grille à générer aléatoirement"_s, fiche);
    tirer_ = bouton(u"Button63"_s, u"&Aléatoire"_s, u"Générer aléatoirement votre grille"_s, fiche);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(2 * Unite);
    ligne->addWidget(numeros_);
    ligne->addWidget(chances_);
    ligne->addStretch(1);
    for (QWidget* w : {static_cast<QWidget*>(vider_), static_cast<QWidget*>(valider_)}) {
        ligne->addWidget(w);
    }
    ligne->addStretch(1);
    ligne->addWidget(types_);
    ligne->addWidget(tirer_);
    fiche->pile->addLayout(ligne);

    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(2 * Unite);
    pile->addWidget(planche_, 1);
    pile->addWidget(fiche);
    connect(planche_, &PlancheNumeros::appui, this, &PanneauSelectionNC::bascule);
    connect(vider_, &QPushButton::clicked, this, &PanneauSelectionNC::Button61Click);
    connect(valider_, &QPushButton::clicked, this, &PanneauSelectionNC::Button62Click);
    connect(tirer_, &QPushButton::clicked, this,
            [this] { Q_EMIT Button63Click(typeChoisi(*types_)); });
    montrer({});
}

void PanneauSelectionNC::montrer(const LigneNC& selection) {
    planche_->tenir({selection.numeros, selection.chances});
    numeros_->setText(u"Numéros: %1"_s.arg(selection.numeros.taille()));
    chances_->setText(u"Chances: %1"_s.arg(selection.chances.taille()));
}

QList<QWidget*> PanneauSelectionNC::ordreTabulation() const {
    return {planche_->bouton(0), vider_, valider_, types_, tirer_};
}

}  // namespace norvane::ui
