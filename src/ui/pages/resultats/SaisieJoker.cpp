// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/SaisieJoker.h"

#include <algorithm>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>

#include "base/Dates.h"
#include "common/Theme.h"
#include "pages/Page.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int ComptesProposes = 10;
constexpr int NonParticipant = 0;
constexpr int CompteLibre = -1;  // identifier of the free radio button

/// Draws take place on Monday, Wednesday and Saturday.
bool jourDeTirage(int date) {
    const int jour = JourSemaine(date);
    return jour == 0 || jour == 2 || jour == 5;
}

int enEntier(const QDate& d) {
    return d.year() * 10000 + d.month() * 100 + d.day();
}

}  // namespace

SaisieJoker::SaisieJoker(Contexte& ctx, QWidget* parent) : QWidget(parent), contexte_(ctx) {
    pages_ = new QStackedWidget(this);
    pages_->addWidget(creerCompte());
    pages_->addWidget(creerSaisie());
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->addWidget(pages_);
}

QWidget* SaisieJoker::creerCompte() {
    auto* page = new QWidget(pages_);
    auto* pile = new QVBoxLayout(page);
    pile->setContentsMargins(0, Unite, 0, 0);
    pile->setSpacing(2 * Unite);
    auto* question = new QLabel(u"Combien de Numéros Joker+ porte le reçu ?"_s, page);
    pile->addWidget(question);
    comptes_ = new QButtonGroup(this);
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
    pile->addLayout(grille);
    libre_ = new QRadioButton(u"Un autre nombre :"_s, page);
    libre_->setObjectName(u"RadioJokerLibre"_s);
    comptes_->addButton(libre_, CompteLibre);
    Edit26 = new ChampNumero(u"Edit26"_s, page);
    Edit26->setMaxLength(3);
    Edit26->setAccessibleName(u"Nombre de Numéros Joker+"_s);
    Edit26->setFixedWidth(Edit26->fontMetrics().horizontalAdvance(u"0000"_s) + 16);
    auto* libre = rangee({libre_, Edit26});
    libre->addStretch(1);
    pile->addLayout(libre);
    auto* aucun = new QRadioButton(u"Non participant"_s, page);
    aucun->setObjectName(u"RadioJoker0"_s);
    comptes_->addButton(aucun, NonParticipant);
    pile->addWidget(aucun);
    Button66 = bouton(u"Button66"_s, u"&Valider"_s, u"Valider le nombre de Numéros Joker+"_s, page);
    pile->addWidget(Button66, 0, Qt::AlignLeft);
    pile->addStretch(1);

    connect(Button66, &QPushButton::clicked, this, &SaisieJoker::Button66Click);
    const auto suivre = [this] { Button66->setEnabled(compteChoisi() >= 0); };
    connect(comptes_, &QButtonGroup::idToggled, this, suivre);
    connect(Edit26, &QLineEdit::textChanged, this, [this, suivre](const QString& texte) {
        if (!texte.isEmpty()) libre_->setChecked(true);
        suivre();
    });
    connect(Edit26, &QLineEdit::returnPressed, Button66, &QPushButton::click);
    connect(Edit26, &ChampNumero::deplacement, this, [this](int pas) {
        Edit26->setText(QString::number(std::clamp(Edit26->text().toInt() + pas, 0, 999)));
    });
    return page;
}

QWidget* SaisieJoker::creerSaisie() {
    auto* page = new QWidget(pages_);
    auto* pile = new QVBoxLayout(page);
    pile->setContentsMargins(0, Unite, 0, 0);
    pile->setSpacing(2 * Unite);
    LabelJackpotNumero = valeur(u"LabelJackpotNumero"_s, u"Numéro en cours de saisie"_s, page);
    LabelJackpot = legende({}, page);
    LabelJackpot->setObjectName(u"LabelJackpot"_s);
    auto* tete = rangee({LabelJackpotNumero, LabelJackpot});
    tete->insertStretch(1, 1);
    pile->addLayout(tete);

    place_ = new QVBoxLayout;
    pile->addLayout(place_);
    mise_ = creerMise();
    pile->addWidget(mise_);

    dateParticipation_ = new QDateEdit(page);
    dateParticipation_->setObjectName(u"DateParticipation"_s);
    dateParticipation_->setLocale(QLocale(QLocale::French, QLocale::France));
    dateParticipation_->setDisplayFormat(u"dd/MM/yyyy"_s);
    dateParticipation_->setMinimumDate(QDate(2008, 10, 6));
    dateParticipation_->setCalendarPopup(true);
    dateParticipation_->calendarWidget()->setVerticalHeaderFormat(
        QCalendarWidget::NoVerticalHeader);
    dateParticipation_->calendarWidget()->setFirstDayOfWeek(Qt::Monday);
    dateParticipation_->setAccessibleName(u"Date de participation"_s);
    dateParticipation_->setFixedWidth(
        dateParticipation_->fontMetrics().horizontalAdvance(u"00/00/0000"_s) + 60);
    poserIndice(dateParticipation_, u"Un jour de tirage : lundi, mercredi ou samedi"_s);
    dateLongue_ = legende({}, page);
    pile->addWidget(dateParticipation_);
    pile->addWidget(dateLongue_);
    ButtonValiderJack = bouton(u"ButtonValiderJack"_s, u"&Valider"_s, {}, page);
    pile->addWidget(ButtonValiderJack, 0, Qt::AlignLeft);
    pile->addStretch(1);

    connect(ButtonValiderJack, &QPushButton::clicked, this, &SaisieJoker::ButtonValiderJackClick);
    connect(dateParticipation_, &QDateEdit::dateChanged, this,
            [this](QDate date) { dateLongue_->setText(versQt(DateLongue(enEntier(date)))); });
    return page;
}

QWidget* SaisieJoker::creerMise() {
    auto* cadre = new QWidget(pages_);
    RxCheckListBox7 = new QListWidget(cadre);
    RxCheckListBox7->setObjectName(u"RxCheckListBox7"_s);
    RxCheckListBox7->setAccessibleName(u"Mise du Numéro Joker+"_s);
    for (const QString& texte : {u"1€"_s, u"2€"_s}) {
        auto* ligne = new QListWidgetItem(texte, RxCheckListBox7);
        ligne->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        ligne->setCheckState(Qt::Unchecked);
        ligne->setSizeHint(QSize(0, cadre->fontMetrics().height() + Unite));
    }
    RxCheckListBox7->item(0)->setCheckState(Qt::Checked);
    RxCheckListBox7->setFixedSize(
        RxCheckListBox7->fontMetrics().horizontalAdvance(u"000000"_s) + 50,
        2 * RxCheckListBox7->sizeHintForRow(0) + 4);
    connect(RxCheckListBox7, &QListWidget::itemChanged, this,
            [this](QListWidgetItem* ligne) { uneSeuleMise(RxCheckListBox7->row(ligne)); });
    CheckBoxPM1 = new QCheckBox(u"+ou-1"_s, cadre);
    CheckBoxPM1->setObjectName(u"CheckBoxPM1"_s);
    poserIndice(CheckBoxPM1, u"Option +OU-1 de ce Numéro Joker+"_s);
    auto* ligne = rangee({legende(u"Mise"_s, cadre), RxCheckListBox7, CheckBoxPM1});
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(2 * Unite);
    ligne->addStretch(1);
    cadre->setLayout(ligne);
    return cadre;
}

/// The stakes exclude each other, and one is always ticked.
void SaisieJoker::uneSeuleMise(int ligne) {
    const QSignalBlocker silence(RxCheckListBox7);
    const bool cochee = RxCheckListBox7->item(ligne)->checkState() == Qt::Checked;
    const int choisie = cochee ? ligne : 1 - ligne;
    for (int i = 0; i < RxCheckListBox7->count(); ++i) {
        RxCheckListBox7->item(i)->setCheckState(i == choisie ? Qt::Checked : Qt::Unchecked);
    }
}

void SaisieJoker::commencer() {
    contexte_.atelier.ListeJoker.clear();
    rendreMasque();
    comptes_->button(1)->setChecked(true);
    Edit26->clear();
    passer(Etape::Compte);
    comptes_->button(1)->setFocus();
}

int SaisieJoker::compteChoisi() const {
    const int choisi = comptes_->checkedId();
    if (choisi != CompteLibre) return choisi;
    return Edit26->text().isEmpty() ? -1 : Edit26->text().toInt();
}

void SaisieJoker::Button66Click() {
    if (contexte_.refuserSiOccupe() || compteChoisi() < 0) return;
    Messages& messages = *contexte_.services.messages;
    const int compte = compteChoisi();
    const int reponse = messages.AvertissementAnnuler(
        compte > 0 ? u"Vous avez %1 Numéro(s) Joker+ à saisir..."_s.arg(compte)
                   : u"Joker+ non participant..."_s,
        u"Avertissement"_s,
        u"Si cela est exact, cliquez sur le bouton OK. Sinon cliquez sur le bouton ANNULER, puis "
        u"modifier votre choix..."_s);
    if (reponse != CodeBouton1) return;
    compte_ = compte;
    if (compte == 0) {
        passer(Etape::Date);
        return;
    }
    messages.MessageInfo(u"Saisissez à présent vos Numéros Joker+..."_s, u"Message"_s);
    place_->addWidget(masque_, 0, Qt::AlignLeft);
    masque_->setReadOnly(false);
    masque_->setEnabled(true);
    masque_->setInputMask(u"9.9.9.9.9.9.9;_"_s);
    masque_->show();
    connect(masque_, &QLineEdit::returnPressed, ButtonValiderJack, &QPushButton::click);
    passer(Etape::Numeros);
}

void SaisieJoker::passer(Etape etape) {
    etape_ = etape;
    pages_->setCurrentIndex(etape == Etape::Compte ? 0 : 1);
    const bool date = etape == Etape::Date;
    mise_->setVisible(!date);
    dateParticipation_->setVisible(date);
    dateLongue_->setVisible(date);
    LabelJackpot->setVisible(!date);
    if (etape == Etape::Numeros) demanderNumero();
    if (date) {
        LabelJackpotNumero->setText(u"Date de participation :"_s);
        poserIndice(ButtonValiderJack, u"Valider la date de participation"_s);
        QDate prochain = contexte_.services.horloge->aujourdhui();
        while (!jourDeTirage(enEntier(prochain))) prochain = prochain.addDays(1);
        dateParticipation_->setDate(prochain);
        dateLongue_->setText(versQt(DateLongue(enEntier(prochain))));
        contexte_.services.messages->MessageInfo(u"Saisissez à présent la date de participation"_s,
                                                 u"Message"_s);
        dateParticipation_->setFocus();
    }
    Q_EMIT etapeChange();
}

void SaisieJoker::demanderNumero() {
    const int saisis = static_cast<int>(contexte_.atelier.ListeJoker.size());
    const int reste = compte_ - saisis;
    LabelJackpotNumero->setText(u"JOKER+ N°%1 :"_s.arg(saisis + 1));
    LabelJackpot->setText(
        (reste > 1 ? u"%1 Numéros restant à saisir"_s : u"%1 Numéro restant à saisir"_s)
            .arg(reste));
    poserIndice(ButtonValiderJack, u"Valider ce Numéro Joker+"_s);
    masque_->clear();
    masque_->setFocus();
    masque_->setCursorPosition(0);
}

void SaisieJoker::ButtonValiderJackClick() {
    if (contexte_.refuserSiOccupe()) return;
    if (etape_ == Etape::Numeros) {
        validerNumero();
    } else if (etape_ == Etape::Date) {
        validerDate();
    }
}

void SaisieJoker::validerNumero() {
    if (!masque_->hasAcceptableInput()) {
        contexte_.services.messages->MessageAvertissement(u"Erreur de saisie, Numéro Joker+..."_s,
                                                          u"Attention"_s);
        masque_->setFocus();
        return;
    }
    const int numero = masque_->text().remove(u'.').toInt();
    LigneJoker ligne{};
    int diviseur = 1000000;
    for (std::int32_t& chiffre : ligne.chiffres) {
        chiffre = numero / diviseur % 10;
        diviseur /= 10;
    }
    const int mise = RxCheckListBox7->item(1)->checkState() == Qt::Checked ? 2 : 1;
    ligne.code = mise + (CheckBoxPM1->isChecked() ? 2 : 0);
    auto& liste = contexte_.atelier.ListeJoker;
    liste.push_back(ligne);
    if (static_cast<int>(liste.size()) < compte_) {
        demanderNumero();
        Q_EMIT etapeChange();
        return;
    }
    rendreMasque();
    passer(Etape::Date);
}

void SaisieJoker::validerDate() {
    const int date = enEntier(dateParticipation_->date());
    if (!jourDeTirage(date)) {
        contexte_.services.messages->MessageAvertissement(
            u"Cette date ne correspond à aucun Tirage..."_s, u"Attention"_s);
        dateParticipation_->setFocus();
        return;
    }
    Q_EMIT dateValidee(date);
}

void SaisieJoker::rendreMasque() {
    if (masque_ == nullptr || masque_->inputMask().isEmpty()) return;
    disconnect(masque_, &QLineEdit::returnPressed, ButtonValiderJack, nullptr);
    masque_->setInputMask({});
    masque_->setReadOnly(true);
    place_->removeWidget(masque_);
    Q_EMIT masqueRendu();
}

}  // namespace norvane::ui
