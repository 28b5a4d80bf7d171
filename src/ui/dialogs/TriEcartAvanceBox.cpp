// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/TriEcartAvanceBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "comb/Combinaison.h"
#include "common/Contexte.h"
#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int TailleTriMin = 4;
// What an inactive one opens on.
constexpr int TailleDepart = 5;
constexpr int RangDepart = 2;

QSpinBox* creerChamp(const QString& nom, const QString& indice, QWidget* parent) {
    auto* champ = new QSpinBox(parent);
    champ->setObjectName(nom);
    poserIndice(champ, indice);
    return champ;
}

}  // namespace

TTriEcartAvanceBox::TTriEcartAvanceBox(const TriEcartAvance& reglage, int tailleIntervalle,
                                       QWidget* parent)
    : QDialog(parent),
      taille_(new QComboBox(this)),
      rang_(creerChamp(u"RxSpinEditRang"_s, u"Nombre de bons numéros du rang"_s, this)),
      seuil_(creerChamp(u"RxSpinEditEcart"_s,
                        u"Les combinaisons dont l'écart est plus court quittent la liste"_s, this)),
      activer_(new QCheckBox(u"&Activer/Désactiver"_s, this)) {
    setObjectName(u"TTriEcartAvanceBox"_s);
    setWindowTitle(u"Tri par Ecart Avancé"_s);
    taille_->setObjectName(u"ComboBoxTaille"_s);
    activer_->setObjectName(u"CheckBoxActiver"_s);
    for (int n = TailleTriMin; n <= TailleCombMax; ++n) taille_->addItem(u"COMB%1"_s.arg(n), n);
    auto* champs = new QFormLayout;
    champs->setHorizontalSpacing(2 * Unite);
    champs->addRow(u"Appliquer le tri à"_s, taille_);
    champs->addRow(u"sur le Rang :"_s, rang_);
    champs->addRow(u"Ecart supérieur ou égal à :"_s, seuil_);
    auto* boutons = new QDialogButtonBox(this);
    boutons->addButton(u"&OK"_s, QDialogButtonBox::AcceptRole)->setDefault(true);
    boutons->addButton(u"Annu&ler"_s, QDialogButtonBox::RejectRole);
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(4 * Unite, 4 * Unite, 4 * Unite, 3 * Unite);
    pile->setSpacing(2 * Unite);
    pile->addLayout(champs);
    pile->addWidget(activer_);
    pile->addWidget(boutons);
    pile->setSizeConstraint(QLayout::SetFixedSize);

    taille_->setCurrentIndex(taille_->findData(reglage.actif ? reglage.taille : TailleDepart));
    borner();
    rang_->setValue(reglage.actif ? reglage.rang : RangDepart);
    seuil_->setRange(0, tailleIntervalle);
    seuil_->setValue(reglage.seuil);
    activer_->setChecked(reglage.actif);
    connect(taille_, &QComboBox::currentIndexChanged, this, [this] {
        borner();
        rang_->setValue(NbBoules);
    });
}

int TTriEcartAvanceBox::taille() const {
    return taille_->currentData().toInt();
}

void TTriEcartAvanceBox::borner() {
    rang_->setRange(0, BonsPremierRang(taille()));
}

TriEcartAvance TTriEcartAvanceBox::reglage() const {
    return {.actif = activer_->isChecked(),
            .taille = taille(),
            .rang = rang_->value(),
            .seuil = seuil_->value()};
}

}  // namespace norvane::ui
