// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauDivision.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSpinBox>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PanneauDivision::PanneauDivision(Contexte& ctx, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      bouton_(bouton(u"DiviserListeMemoire"_s, u"&Diviser la liste en mémoire"_s, {}, this)),
      taille_(new QSpinBox(this)) {
    taille_->setObjectName(u"RxSpinEditDivListMem"_s);
    taille_->setAccessibleName(u"Combinaisons d'une sous-liste"_s);
    poserIndice(taille_, u"Nombre de combinaisons d'une sous-liste"_s);
    bouton_->setMinimumWidth(bouton_->sizeHint().width());
    auto* rang = new QHBoxLayout(this);
    rang->setContentsMargins(0, 0, 0, 0);
    rang->setSpacing(Unite);
    rang->addWidget(bouton_, 1);
    rang->addWidget(taille_);
    connect(bouton_, &QPushButton::clicked, this, &PanneauDivision::DiviserListeMemoireClick);
    suivre();
}

void PanneauDivision::suivre() {
    const Liste& liste = contexte_.atelier.ListeMemoire;
    const Division& division = liste.division;
    const bool choisie = division.enPreparation;
    bouton_->setText(choisie ? u"OK!"_s : u"&Diviser la liste en mémoire"_s);
    poserIndice(bouton_, choisie ? u"Générer toutes les sous-listes"_s
                                 : u"Cliquez ici pour diviser la liste en mémoire en plusieurs "
                                   u"sous-listes"_s);
    taille_->setRange(1, std::max(1, static_cast<int>(TailleSousListeMax(liste))));
    if (!choisie) taille_->setValue(std::max(1, static_cast<int>(division.TailleSousListe)));
    taille_->setEnabled(choisie);
}

void PanneauDivision::DiviserListeMemoireClick() {
    if (contexte_.refuserSiOccupe()) return;
    Liste& liste = contexte_.atelier.ListeMemoire;
    Messages& messages = *contexte_.services.messages;
    if (liste.vide()) {
        messages.MessageInfo(u"La liste en mémoire est vide... Calculez d'abord une liste."_s,
                             u"Message"_s);
        return;
    }
    if (!liste.division.enPreparation) {
        liste.division.enPreparation = true;
        contexte_.relais.annoncer({.listes = true});
        taille_->setFocus();
        taille_->selectAll();
        return;
    }
    Diviser(liste, static_cast<std::size_t>(taille_->value()));
    contexte_.relais.annoncer({.listes = true});
    const std::size_t nombre = liste.division.NbSousListes;
    const QString faites =
        nombre == 1
            ? u"1 sous-liste a été générée...\nPour la visualiser et la travailler, passez au "
              u"mode "_s
            : u"%1 sous-listes ont été générées...\nPour les visualiser et les travailler, "
              u"passez au mode "_s.arg(nombre);
    messages.MessageInfo(faites + u"\"Manipulation de Listes\"."_s, u"Message"_s);
}

QList<QWidget*> PanneauDivision::ordreTabulation() const {
    return {bouton_, taille_};
}

}  // namespace norvane::ui
