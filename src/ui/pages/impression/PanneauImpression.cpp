// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/PanneauImpression.h"

#include <algorithm>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "impression/CommandesBulletins.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double DecalageMax = 50;  // millimetres
constexpr double PasDecalage = 0.1;
const QString Imprimer = u"&IMPRIMER\r\nBULLETIN(S)"_s;
const QString Arreter = u"STOP"_s;

/// In the order of EtendueBulletins.
struct Choix {
    const char16_t *nom, *libelle;
};
constexpr std::array<Choix, 3> Etendues = {{{u"RadioButton8", u"Tous"},
                                            {u"RadioButton9", u"Bulletin en cours "},
                                            {u"RadioButton10", u"Du"}}};

QDoubleSpinBox* champDecalage(const QString& nom, const QString& libelle, QWidget* parent) {
    auto* champ = new QDoubleSpinBox(parent);
    champ->setObjectName(nom);
    champ->setAccessibleName(libelle);
    champ->setRange(-DecalageMax, DecalageMax);
    champ->setSingleStep(PasDecalage);
    champ->setDecimals(2);
    champ->setAlignment(Qt::AlignRight);
    return champ;
}

QSpinBox* champBulletin(const QString& nom, const QString& libelle, QWidget* parent) {
    auto* champ = new QSpinBox(parent);
    champ->setObjectName(nom);
    champ->setAccessibleName(libelle);
    champ->setMinimum(1);
    champ->setAlignment(Qt::AlignRight);
    return champ;
}

}  // namespace

PanneauImpression::PanneauImpression(CommandesBulletins& commandes, QWidget* parent)
    : QWidget(parent), commandes_(commandes) {
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addLayout(creerMarques());
    pile->addLayout(creerDecalages());
    pile->addSpacing(Unite);
    pile->addLayout(creerEtendue());
    pile->addLayout(creerBoutons());
}

QLayout* PanneauImpression::creerMarques() {
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(2 * Unite);
    marques_ = new QButtonGroup(this);
    for (int taille = 1; taille <= MarqueMax; ++taille) {
        auto* radio = new QRadioButton(QString::number(taille), this);
        radio->setObjectName(u"RadioMarque%1"_s.arg(taille));
        radio->setAccessibleName(u"Taille des marques : %1"_s.arg(taille));
        marques_->addButton(radio, taille);
        ligne->addWidget(radio);
    }
    ligne->addStretch(1);
    connect(marques_, &QButtonGroup::idClicked, &commandes_, &CommandesBulletins::choisirMarque);
    return colonne(u"Taille des marques :"_s, ligne, this);
}

QLayout* PanneauImpression::creerDecalages() {
    haut_ = champDecalage(u"RxSpinEditDecalageHaut"_s, u"Décalage du bord haut, en mm"_s, this);
    gauche_ =
        champDecalage(u"RxSpinEditDecalageGauche"_s, u"Décalage du bord gauche, en mm"_s, this);
    for (QDoubleSpinBox* champ : {haut_, gauche_})
        connect(champ, &QDoubleSpinBox::valueChanged, this,
                [this] { commandes_.choisirDecalages(haut_->value(), gauche_->value()); });
    sauver_ = bouton(u"ButtonSauverParams"_s, u"&Sauvegarder les décalages"_s,
                     u"Garder les décalages dans NORVANE.INI"_s, this);
    connect(sauver_, &QPushButton::clicked, &commandes_,
            &CommandesBulletins::ButtonSauverParamsClick);
    auto* champs =
        rangee({new QLabel(u"Haut"_s, this), haut_, new QLabel(u"Gauche"_s, this), gauche_});
    champs->insertSpacing(2, Unite);
    champs->addStretch(1);
    auto* pile = colonne(u"Décalage Imprimante (en mm) :"_s, champs, this);
    pile->addSpacing(2);
    pile->addWidget(sauver_);
    return pile;
}

QLayout* PanneauImpression::creerEtendue() {
    etendue_ = new QButtonGroup(this);
    for (std::size_t i = 0; i < Etendues.size(); ++i) {
        auto* radio = new QRadioButton(QString::fromUtf16(Etendues[i].libelle), this);
        radio->setObjectName(QString::fromUtf16(Etendues[i].nom));
        etendue_->addButton(radio, static_cast<int>(i));
    }
    connect(etendue_, &QButtonGroup::idClicked, this,
            [this](int choix) { commandes_.choisirEtendue(static_cast<EtendueBulletins>(choix)); });
    du_ = champBulletin(u"RxSpinEdit1"_s, u"Premier bulletin"_s, this);
    au_ = champBulletin(u"RxSpinEdit2"_s, u"Dernier bulletin"_s, this);
    for (QSpinBox* champ : {du_, au_})
        connect(champ, &QSpinBox::valueChanged, this, [this] {
            commandes_.choisirPlage({du_->value(), au_->value()});
        });
    auto* premiers = rangee({etendue_->button(0), etendue_->button(1)});
    premiers->insertSpacing(1, Unite);
    premiers->addStretch(1);
    auto* plage = rangee({etendue_->button(2), du_, new QLabel(u"au"_s, this), au_});
    plage->addStretch(1);
    auto* pile = new QVBoxLayout;
    pile->setSpacing(Unite / 2);
    pile->addLayout(premiers);
    pile->addLayout(plage);
    return colonne(u"Bulletins à imprimer"_s, pile, this);
}

QLayout* PanneauImpression::creerBoutons() {
    epreuve_ = new QCheckBox(u"Épreuve : dessiner le bulletin"_s, this);
    epreuve_->setObjectName(u"CheckBoxEpreuve"_s);
    poserIndice(epreuve_,
                u"Imprimer aussi les cases, pour relire les marques sur du papier blanc"_s);
    connect(epreuve_, &QCheckBox::clicked, &commandes_, &CommandesBulletins::choisirEpreuve);
    calibrer_ = bouton(u"BoutonCalibrage"_s, u"Page de\n&calibrage"_s,
                       u"Imprimer des règles et le contour de toutes les cases, pour mesurer les "
                       u"décalages"_s,
                       this);
    connect(calibrer_, &QPushButton::clicked, &commandes_, &CommandesBulletins::calibrer);
    imprimer_ = bouton(u"BitBtnWithColor18"_s, Imprimer, u"Imprimer les bulletins choisis"_s, this);
    grossir(imprimer_, 1.1);
    for (QPushButton* b : {calibrer_, imprimer_})
        b->setFixedHeight(2 * imprimer_->fontMetrics().lineSpacing() + 2 * Unite);
    connect(imprimer_, &QPushButton::clicked, &commandes_,
            &CommandesBulletins::BitBtnWithColor18Click);
    jauge_ = new QProgressBar(this);
    jauge_->setObjectName(u"JaugeImpression"_s);
    jauge_->setAccessibleName(u"Avancement de l'impression"_s);
    jauge_->setTextVisible(false);
    jauge_->setFixedHeight(2 * Unite);
    auto* pile = new QVBoxLayout;
    pile->setSpacing(Unite);
    pile->addWidget(epreuve_);
    auto* boutons = rangee({calibrer_, imprimer_});
    boutons->setStretch(1, 1);
    pile->addLayout(boutons);
    pile->addWidget(jauge_);
    return pile;
}

void PanneauImpression::montrer() {
    const EtatBulletins& etat = commandes_.etat();
    marques_->button(etat.marque)->setChecked(true);
    etendue_->button(static_cast<int>(etat.etendue))->setChecked(true);
    epreuve_->setChecked(etat.epreuve);
    const auto poser = [](auto* champ, auto valeur, auto dernier) {
        const QSignalBlocker muet(champ);
        champ->setMaximum(dernier);
        champ->setValue(valeur);
    };
    const int nombre = std::max(commandes_.nombre(), 1);
    poser(du_, etat.plage.du, nombre);
    poser(au_, etat.plage.au, nombre);
    poser(haut_, commandes_.decalageHaut(), DecalageMax);
    poser(gauche_, commandes_.decalageGauche(), DecalageMax);
}

void PanneauImpression::montrerImpression() {
    const bool enCours = commandes_.imprime();
    imprimer_->setText(enCours ? Arreter : Imprimer);
    calibrer_->setEnabled(!enCours);
}

QList<QWidget*> PanneauImpression::ordreTabulation() const {
    QList<QWidget*> ordre;
    for (auto* radio : marques_->buttons()) ordre << radio;
    ordre << haut_ << gauche_ << sauver_;
    for (auto* radio : etendue_->buttons()) ordre << radio;
    return ordre << du_ << au_ << epreuve_ << calibrer_ << imprimer_;
}

}  // namespace norvane::ui
