// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/PanneauAleatoire.h"

#include <algorithm>
#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "base/Textes.h"
#include "common/Theme.h"
#include "pages/Page.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PanneauAleatoire::PanneauAleatoire(QWidget* parent) : QWidget(parent) {
    setObjectName(u"PanneauAleatoire"_s);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(creerTypes(), 1);
    pile->addLayout(creerNombre());
    effet_ = legende({}, this);
    effet_->setObjectName(u"LabelEffet"_s);
    pile->addWidget(effet_);
}

/// One column for each count of numbers, one row for each count of chances.
QWidget* PanneauAleatoire::creerTypes() {
    auto* cadre = new QFrame(this);
    cadre->setObjectName(u"GroupBox2"_s);
    cadre->setAccessibleName(u"Type des grilles"_s);
    auto* grille = new QGridLayout(cadre);
    grille->setContentsMargins(0, 0, 0, 0);
    grille->setHorizontalSpacing(Unite);
    grille->setVerticalSpacing(0);
    types_ = new QButtonGroup(this);
    int place = 0;
    for (const TypeGrille& type : TypesVendus) {
        auto* radio = new QRadioButton(versQt(LibelleType(type)), cadre);
        types_->addButton(radio, place++);
        grille->addWidget(radio, type.c - 1, type.n - TypesVendus.front().n);
    }
    types_->button(0)->setChecked(true);
    return cadre;
}

QLayout* PanneauAleatoire::creerNombre() {
    tirer_ = bouton(u"ButtonAleatoire"_s, u"Grille(s) &Aléatoire(s)"_s,
                    u"Une grille sur la planche, ou plusieurs ajoutées à la liste"_s, this);
    tirer_->setMinimumHeight(tirer_->minimumHeight() - Unite);
    nombre_ = new ChampNumero(u"Edit24"_s, this);
    nombre_->setAccessibleName(u"Nombre de grilles aléatoires"_s);
    nombre_->setFixedWidth(nombre_->fontMetrics().horizontalAdvance(u"000000"_s) + 16);
    auto* fleches = new HautBas(u"UpDown24"_s, this);
    for (QWidget* w : {static_cast<QWidget*>(nombre_), static_cast<QWidget*>(fleches)}) {
        poserIndice(w, u"Sélection du nombre de grilles à générer aléatoirement"_s);
    }
    surReste_ = legende({}, this);
    surReste_->setObjectName(u"LabelReste"_s);
    connect(tirer_, &QPushButton::clicked, this, [this] {
        Q_EMIT ButtonAleatoireClick(TypesVendus[static_cast<std::size_t>(types_->checkedId())],
                                    nombre());
    });
    connect(nombre_, &QLineEdit::textChanged, this, &PanneauAleatoire::borner);
    connect(nombre_, &ChampNumero::deplacement, this, &PanneauAleatoire::deplacer);
    connect(nombre_, &ChampNumero::extremite, this,
            [this](bool dernier) { nombre_->setText(QString::number(dernier ? reste_ : 1)); });
    connect(fleches, &HautBas::deplacement, this, &PanneauAleatoire::deplacer);
    auto* ligne = rangee({tirer_, nombre_, fleches, surReste_});
    ligne->insertSpacing(1, Unite);
    ligne->addStretch(1);
    return ligne;
}

void PanneauAleatoire::poserReste(int reste, int libres) {
    if (reste == reste_ && libres == libres_) return;
    const bool autre = reste != reste_;
    reste_ = reste;
    libres_ = libres;
    surReste_->setText(u"sur %1"_s.arg(versQt(FormaterCompte(reste))));
    if (autre) nombre_->setText(QString::number(reste));
    borner();
}

int PanneauAleatoire::nombre() const {
    return nombre_->text().toInt();
}

void PanneauAleatoire::deplacer(int pas) {
    nombre_->setText(QString::number(std::clamp(nombre() + pas, 0, reste_)));
}

void PanneauAleatoire::borner() {
    const bool coupe = nombre() > reste_;
    if (coupe) {
        const QSignalBlocker silence(nombre_);
        nombre_->setText(QString::number(reste_));
    }
    tirer_->setEnabled(!nombre_->text().isEmpty());
    effet_->setText(effet(coupe));
}

QString PanneauAleatoire::effet(bool coupe) const {
    const int n = nombre();
    if (n == 1) return u"Une grille tirée sur la planche"_s;
    if (n == 0) return {};
    const QString grilles = u"%1 grille%2"_s.arg(versQt(FormaterCompte(std::min(n, libres_))),
                                                 libres_ > 1 ? u"s" : u"");
    if (coupe) return u"La liste n'a plus de place que pour "_s + grilles;
    return (n < libres_ ? u"%1 de plus dans la liste"_s : u"%1 de plus, et la liste est pleine"_s)
        .arg(grilles);
}

}  // namespace norvane::ui
