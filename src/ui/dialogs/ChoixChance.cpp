// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/ChoixChance.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/Tirage.h"
#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

TChoixChance::TChoixChance(std::size_t nombre, QWidget* parent)
    : QDialog(parent), choix_(new QComboBox(this)) {
    setObjectName(u"TChoixChance"_s);
    setWindowTitle(u"Copier vers les bulletins"_s);
    choix_->setObjectName(u"ComboBoxChance"_s);
    choix_->addItem(u"Au hasard pour chaque grille"_s);
    for (int chance = 1; chance <= ChanceMax; ++chance) choix_->addItem(QString::number(chance));
    auto* question = new QLabel(nombre == 1 ? u"Numéro &Chance de la grille :"_s
                                            : u"Numéro &Chance des %1 grilles :"_s.arg(nombre),
                                this);
    question->setBuddy(choix_);
    auto* boutons = new QDialogButtonBox(this);
    boutons->addButton(u"C&opier"_s, QDialogButtonBox::AcceptRole)->setDefault(true);
    boutons->addButton(u"&Annuler"_s, QDialogButtonBox::RejectRole);
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(4 * Unite, 4 * Unite, 4 * Unite, 3 * Unite);
    pile->setSpacing(2 * Unite);
    pile->addWidget(question);
    pile->addWidget(choix_);
    pile->addSpacing(Unite);
    pile->addWidget(boutons);
    pile->setSizeConstraint(QLayout::SetFixedSize);
}

int TChoixChance::chance() const {
    return choix_->currentIndex();
}

}  // namespace norvane::ui
