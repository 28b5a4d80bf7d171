// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/PanneauOptions.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "impression/CommandesBulletins.h"
#include "impression/ListeCoches.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct Jour {
    const char16_t *nom, *libelle;
    std::int16_t OptionsBulletin::*champ;
};
constexpr std::array<Jour, 3> Jours = {
    {{u"CheckBoxLundi", u"LUNDI", &OptionsBulletin::Lundi},
     {u"CheckBoxMercredi", u"MERCREDI", &OptionsBulletin::Mercredi},
     {u"CheckBoxSamedi", u"SAMEDI", &OptionsBulletin::Samedi}}};

const QStringList ItemsSemaines = {u"2"_s, u"3"_s, u"4"_s, u"5"_s};
const QStringList ItemsJoker = {u"1€"_s, u"2€"_s, u"+ ou -1"_s};

}  // namespace

PanneauOptions::PanneauOptions(CommandesBulletins& commandes, QWidget* parent)
    : QWidget(parent), commandes_(commandes) {
    creerListes();
    appliquer_ = bouton(u"Button72"_s, u"OK"_s, u"Appliquer"_s, this);
    tous_ = bouton(u"Button79"_s, u"&Tous"_s,
                   u"Appliquer les paramètres actuels à tous les bulletins (2nd Tirage, "
                   u"Abonnements, Joker+, etc.)"_s,
                   this);
    connect(appliquer_, &QPushButton::clicked, &commandes_, &CommandesBulletins::Button72Click);
    connect(tous_, &QPushButton::clicked, &commandes_, &CommandesBulletins::Button79Click);

    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(legende(u"Options du bulletin"_s, this));
    pile->addLayout(creerJours());
    auto* semaines = rangee({semaines_, appliquer_});
    semaines->insertStretch(1, 1);
    pile->addLayout(colonne(u"SEMAINES"_s, semaines, this));
    pile->addLayout(creerJokers());
    auto* pied = rangee({groupe_, tous_});
    pied->insertStretch(1, 1);
    pile->addLayout(pied);
}

void PanneauOptions::creerListes() {
    semaines_ = new ListeCoches(u"RxCheckListBox2"_s, u"SEMAINES"_s, ItemsSemaines, this);
    joker1_ = new ListeCoches(u"RxCheckListBox4"_s, u"JOKER+ 1"_s, ItemsJoker, this);
    joker2_ = new ListeCoches(u"RxCheckListBox5"_s, u"JOKER+ 2"_s, ItemsJoker, this);
    poserIndice(semaines_, u"Nombre de semaines de l'abonnement"_s);
    for (ListeCoches* joker : {joker1_, joker2_})
        poserIndice(joker, u"Mise du numéro Joker+, et son option + ou -1"_s);
    connect(semaines_, &ListeCoches::StateChange, &commandes_,
            &CommandesBulletins::RxCheckListBox2StateChange);
    connect(joker1_, &ListeCoches::StateChange, &commandes_,
            &CommandesBulletins::RxCheckListBox4StateChange);
    connect(joker2_, &ListeCoches::StateChange, &commandes_,
            &CommandesBulletins::RxCheckListBox5StateChange);
}

QLayout* PanneauOptions::creerJokers() {
    auto* grille = new QGridLayout;
    grille->setSpacing(Unite / 2);
    grille->setColumnStretch(1, 1);
    for (int i = 0; ListeCoches * liste : {joker1_, joker2_}) {
        grille->addWidget(legende(liste->accessibleName(), this), i, 0);
        grille->addWidget(liste, i++, 1, Qt::AlignLeft);
    }
    return grille;
}

QLayout* PanneauOptions::creerJours() {
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(Unite);
    for (std::size_t i = 0; i < Jours.size(); ++i) {
        const Jour& jour = Jours[i];
        auto* coche = new QCheckBox(QString::fromUtf16(jour.libelle), this);
        coche->setObjectName(QString::fromUtf16(jour.nom));
        connect(coche, &QCheckBox::clicked, this,
                [this, champ = jour.champ](bool oui) { commandes_.cocherJour(champ, oui); });
        ligne->addWidget(jours_[i] = coche);
    }
    ligne->addStretch(1);
    groupe_ = new QCheckBox(u"GROUPE"_s, this);
    groupe_->setObjectName(u"CheckBoxGroupe"_s);
    groupe_->setEnabled(false);
    poserIndice(groupe_, u"Le jeu en groupe n'est pas marqué sur les bulletins"_s);
    return ligne;
}

void PanneauOptions::montrer() {
    const bool present = commandes_.nombre() > 0;
    const OptionsBulletin o = commandes_.options();
    semaines_->montrer([&](int item) { return o.Semaines == item + 2; });
    joker1_->montrer([&](int item) { return JokerCoche(o.Joker1, item); });
    joker2_->montrer([&](int item) { return JokerCoche(o.Joker2, item); });
    for (std::size_t i = 0; i < Jours.size(); ++i) {
        jours_[i]->setChecked(o.*Jours[i].champ == 1);
        jours_[i]->setEnabled(present);
    }
    for (QWidget* w :
         std::initializer_list<QWidget*>{semaines_, joker1_, joker2_, appliquer_, tous_})
        w->setEnabled(present);
}

QList<QWidget*> PanneauOptions::ordreTabulation() const {
    return {jours_[0], jours_[1], jours_[2], semaines_, appliquer_, joker1_, joker2_, tous_};
}

}  // namespace norvane::ui
