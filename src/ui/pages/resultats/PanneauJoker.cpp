// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/PanneauJoker.h"

#include <algorithm>
#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>

#include "base/Dates.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "resultats/ChampJoker.h"
#include "widgets/ChampDate.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int ComptesProposes = 10;
constexpr int NonParticipant = 0;
constexpr int CompteMax = 999;
constexpr int CompteLibre = CompteMax + 1;  // identifier of the free radio button
constexpr int DerniereDate = 2099'12'31;

}  // namespace

PanneauJoker::PanneauJoker(Contexte& ctx, QWidget* parent)
    : QWidget(parent), contexte_(ctx), saisie_(ctx.atelier.saisie) {
    setObjectName(u"PanneauJoker"_s);
    pages_ = new QStackedWidget(this);
    pages_->addWidget(creerCompte());
    pages_->addWidget(creerSaisie());
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->addWidget(pages_);
}

QWidget* PanneauJoker::creerCompte() {
    auto* page = new QWidget(pages_);
    auto* pile = new QVBoxLayout(page);
    pile->setContentsMargins(0, Unite, 0, 0);
    pile->setSpacing(2 * Unite);
    pile->addWidget(new QLabel(u"Combien de Numéros Joker+ porte le reçu ?"_s, page));
    comptes_ = new QButtonGroup(this);
    pile->addLayout(creerComptes(page));
    libre_ = new QRadioButton(u"Un autre nombre :"_s, page);
    libre_->setObjectName(u"RadioJokerLibre"_s);
    comptes_->addButton(libre_, CompteLibre);
    compteLibre_ = new ChampNumero(u"Edit26"_s, page);
    compteLibre_->setMaxLength(3);
    compteLibre_->setAccessibleName(u"Nombre de Numéros Joker+"_s);
    compteLibre_->setFixedWidth(compteLibre_->fontMetrics().horizontalAdvance(u"0000"_s) + 16);
    auto* libre = rangee({libre_, compteLibre_});
    libre->addStretch(1);
    pile->addLayout(libre);
    auto* aucun = new QRadioButton(u"Non participant"_s, page);
    aucun->setObjectName(u"RadioJoker0"_s);
    comptes_->addButton(aucun, NonParticipant);
    pile->addWidget(aucun);
    auto* valider =
        bouton(u"Button66"_s, u"&Valider"_s, u"Valider le nombre de Numéros Joker+"_s, page);
    pile->addWidget(valider, 0, Qt::AlignLeft);
    pile->addStretch(1);

    connect(valider, &QPushButton::clicked, this, [this] {
        if (compteChoisi() >= 0) Q_EMIT Button66Click(compteChoisi());
    });
    const auto suivre = [this, valider] { valider->setEnabled(compteChoisi() >= 0); };
    connect(comptes_, &QButtonGroup::idToggled, this, suivre);
    connect(compteLibre_, &QLineEdit::textChanged, this, [this, suivre](const QString& texte) {
        if (!texte.isEmpty()) libre_->setChecked(true);
        suivre();
    });
    connect(compteLibre_, &QLineEdit::returnPressed, valider, &QPushButton::click);
    connect(compteLibre_, &ChampNumero::deplacement, this, [this](int pas) {
        compteLibre_->setText(
            QString::number(std::clamp(compteLibre_->text().toInt() + pas, 0, CompteMax)));
    });
    return page;
}

/// The counts from 1 to 10, five a row.
QLayout* PanneauJoker::creerComptes(QWidget* page) {
    auto* grille = new QGridLayout;
    grille->setHorizontalSpacing(3 * Unite);
    grille->setVerticalSpacing(Unite);
    for (int n = 1; n <= ComptesProposes; ++n) {
        auto* radio = new QRadioButton(QString::number(n), page);
        radio->setObjectName(u"RadioJoker%1"_s.arg(n));
        radio->setAccessibleName(n == 1 ? u"1 Numéro Joker+"_s : u"%1 Numéros Joker+"_s.arg(n));
        comptes_->addButton(radio, n);
        grille->addWidget(radio, (n - 1) / 5, (n - 1) % 5);
    }
    return grille;
}

QWidget* PanneauJoker::creerSaisie() {
    auto* page = new QWidget(pages_);
    auto* pile = new QVBoxLayout(page);
    pile->setContentsMargins(0, Unite, 0, 0);
    pile->setSpacing(2 * Unite);
    numero_ = valeur(u"LabelJackpotNumero"_s, u"Numéro en cours de saisie"_s, page);
    restants_ = legende({}, page);
    restants_->setObjectName(u"LabelJackpot"_s);
    auto* tete = rangee({numero_, restants_});
    tete->insertStretch(1, 1);
    pile->addLayout(tete);
    chiffres_ = champJoker(u"ChiffresJoker"_s, page);
    // Blanks are allowed, so that Enter on them is heard and answered.
    chiffres_->setInputMask(u"0.0.0.0.0.0.0;_"_s);
    pile->addWidget(chiffres_, 0, Qt::AlignLeft);
    mise_ = creerMise(page);
    pile->addWidget(mise_);
    creerDate(page);
    pile->addWidget(date_);
    pile->addWidget(date_->mots());
    valider_ = bouton(u"ButtonValiderJack"_s, u"&Valider"_s, {}, page);
    retour_ = bouton(u"JokerPrecedent"_s, u"&Précédent"_s, {}, page);
    auto* pied = rangee({valider_, retour_});
    pied->addStretch(1);
    pile->addLayout(pied);
    pile->addStretch(1);
    connect(valider_, &QPushButton::clicked, this, &PanneauJoker::valider);
    connect(retour_, &QPushButton::clicked, this, &PanneauJoker::retour);
    connect(chiffres_, &QLineEdit::returnPressed, valider_, &QPushButton::click);
    return page;
}

QWidget* PanneauJoker::creerMise(QWidget* page) {
    auto* cadre = new QWidget(page);
    mises_ = new QListWidget(cadre);
    mises_->setObjectName(u"RxCheckListBox7"_s);
    mises_->setAccessibleName(u"Mise du Numéro Joker+"_s);
    for (const QString& texte : {u"1€"_s, u"2€"_s}) {
        auto* ligne = new QListWidgetItem(texte, mises_);
        ligne->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        ligne->setCheckState(Qt::Unchecked);
        ligne->setSizeHint(QSize(0, cadre->fontMetrics().height() + Unite));
    }
    mises_->item(0)->setCheckState(Qt::Checked);
    mises_->setFixedSize(mises_->fontMetrics().horizontalAdvance(u"000000"_s) + 50,
                         2 * mises_->sizeHintForRow(0) + 4);
    connect(mises_, &QListWidget::itemChanged, this,
            [this](QListWidgetItem* ligne) { uneSeuleMise(mises_->row(ligne)); });
    plusOuMoins_ = new QCheckBox(u"+ou-1"_s, cadre);
    plusOuMoins_->setObjectName(u"CheckBoxPM1"_s);
    poserIndice(plusOuMoins_, u"Option +OU-1 de ce Numéro Joker+"_s);
    auto* ligne = rangee({legende(u"Mise"_s, cadre), mises_, plusOuMoins_});
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(2 * Unite);
    ligne->addStretch(1);
    cadre->setLayout(ligne);
    return cadre;
}

void PanneauJoker::creerDate(QWidget* page) {
    date_ = new ChampDate(u"DateParticipation"_s, page);
    date_->setAccessibleName(u"Date de participation"_s);
    date_->poserLimites(DateNouveauLoto, DerniereDate);
    date_->poserMarques(EstJourDeTirage);
    poserIndice(date_, u"Un jour de tirage : lundi, mercredi ou samedi"_s);
    connect(date_, &QLineEdit::returnPressed, this, &PanneauJoker::valider);
}

/// The stakes exclude each other, and one is always ticked.
void PanneauJoker::uneSeuleMise(int ligne) {
    const QSignalBlocker silence(mises_);
    const bool cochee = mises_->item(ligne)->checkState() == Qt::Checked;
    const int choisie = cochee ? ligne : 1 - ligne;
    for (int i = 0; i < mises_->count(); ++i) {
        mises_->item(i)->setCheckState(i == choisie ? Qt::Checked : Qt::Unchecked);
    }
}

int PanneauJoker::compteChoisi() const {
    const int choisi = comptes_->checkedId();
    if (choisi != CompteLibre) return choisi;
    return compteLibre_->text().isEmpty() ? -1 : compteLibre_->text().toInt();
}

void PanneauJoker::valider() {
    if (saisie_.etape() == EtapeJoker::Date) {
        Q_EMIT dateValidee(date_->valable() ? date_->date() : 0);
    } else {
        const int mises = mises_->item(1)->checkState() == Qt::Checked ? 2 : 1;
        Q_EMIT numeroValide(chiffres_->text().remove(u'.'), mises, plusOuMoins_->isChecked());
    }
}

void PanneauJoker::entrer() {
    const EtapeJoker etape = saisie_.etape();
    if (etape == EtapeJoker::Compte) {
        comptes_->button(1)->setChecked(true);
        compteLibre_->clear();
    } else if (etape == EtapeJoker::Numeros) {
        demanderNumero();
    } else {
        demanderDate();
    }
    pages_->setCurrentIndex(etape == EtapeJoker::Compte ? 0 : 1);
    const auto montrer = [](std::initializer_list<QWidget*> widgets, bool visibles) {
        for (QWidget* w : widgets) w->setVisible(visibles);
    };
    // What comes has the focus before the rest goes: it must not wander off meanwhile.
    const bool date = etape == EtapeJoker::Date;
    montrer({date_, date_->mots()}, date);
    if (!date) montrer({chiffres_, mise_, restants_}, true);
    viser();
    if (date) montrer({chiffres_, mise_, restants_}, false);
}

void PanneauJoker::demanderNumero() {
    const int reste = saisie_.jokersRestants();
    numero_->setText(u"JOKER+ N°%1 :"_s.arg(saisie_.compteJoker() - reste + 1));
    restants_->setText(
        (reste > 1 ? u"%1 Numéros restant à saisir"_s : u"%1 Numéro restant à saisir"_s)
            .arg(reste));
    poserIndice(valider_, u"Valider ce Numéro Joker+"_s);
    poserIndice(retour_, saisie_.jokersRestants() < saisie_.compteJoker()
                             ? u"Revenir au Numéro Joker+ précédent"_s
                             : u"Revenir au nombre de Numéros Joker+"_s);
    // Its own options, or none: those of the number before are not this one's.
    const LigneJoker repris = saisie_.jokerRepris().value_or(LigneJoker{{}, 1});
    mises_->item(1 - repris.code % 2)->setCheckState(Qt::Checked);
    plusOuMoins_->setChecked(repris.code > 2);
    chiffres_->clear();
    if (saisie_.jokerRepris()) {
        QString chiffres;
        for (const int chiffre : repris.chiffres) chiffres += QString::number(chiffre);
        chiffres_->setText(chiffres);
    }
    chiffres_->setCursorPosition(0);
}

void PanneauJoker::demanderDate() {
    numero_->setText(u"Date de participation :"_s);
    poserIndice(valider_, u"Valider la date de participation"_s);
    poserIndice(retour_, saisie_.compteJoker() > 0 ? u"Revenir au Numéro Joker+ précédent"_s
                                                   : u"Revenir au nombre de Numéros Joker+"_s);
    const QDate jour = contexte_.services.horloge->aujourdhui();
    date_->poser(ProchainJourDeTirage(jour.year() * 10000 + jour.month() * 100 + jour.day()));
}

void PanneauJoker::viser() {
    switch (saisie_.etape()) {
        case EtapeJoker::Compte:
            comptes_->checkedButton()->setFocus();
            break;
        case EtapeJoker::Numeros:
            chiffres_->setFocus();
            break;
        case EtapeJoker::Date:
            date_->viser();
    }
}

}  // namespace norvane::ui
