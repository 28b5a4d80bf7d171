// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The controls of the page and where they stand.

#include "resultats/PageResultats.h"

#include <algorithm>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedWidget>

#include "base/Dates.h"
#include "base/Textes.h"
#include "common/Theme.h"
#include "resultats/CalculGains.h"
#include "resultats/FicheGrille.h"
#include "resultats/PanneauAleatoire.h"
#include "resultats/SaisieGrilles.h"
#include "resultats/SaisieJoker.h"
#include "widgets/BandeTirage.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"
#include "widgets/PlancheNumeros.h"
#include "widgets/TableRapports.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PageResultats::PageResultats(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo1"_s, u"Résultats"_s, parent) {
    construire();
    poserLimites();
    saisie_ = new SaisieGrilles(contexte, *planche_, *fiche_, *aleatoire_, *joker_);
    saisie_->setParent(this);
    gains_ = new CalculGains(contexte, *VerifGains, *jauge_);
    gains_->setParent(this);
    relier();
    relierBillets();
    majCommandes();
    majFicheGrille();
}

void PageResultats::construire() {
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(2 * Unite);
    gauche->addWidget(creerFicheTirage());
    planche_ = new PlancheNumeros(this);
    gauche->addWidget(planche_, 1);
    auto* droite = new QVBoxLayout;
    droite->setSpacing(2 * Unite);
    droite->addWidget(creerFicheRapports());
    fiche_ = new FicheGrille(this);
    droite->addWidget(fiche_, 1);
    auto* haut = new QHBoxLayout;
    haut->setSpacing(2 * Unite);
    haut->addLayout(gauche, 19);
    haut->addLayout(droite, 10);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    page->addLayout(haut, 1);
    page->addLayout(creerBoutons());

    auto* parcours = new QPushButton(u"Parcours des tirages"_s, this);
    parcours->setObjectName(u"Parcours"_s);
    parcours->hide();
}

QFrame* PageResultats::creerFicheTirage() {
    auto* fiche = new Fiche(this);
    DateTimePicker = new QDateEdit(fiche);
    DateTimePicker->setObjectName(u"DateTimePicker"_s);
    DateTimePicker->setLocale(QLocale(QLocale::French, QLocale::France));
    DateTimePicker->setDisplayFormat(u"dddd d MMMM yyyy"_s);
    DateTimePicker->setCalendarPopup(true);
    DateTimePicker->setAccessibleName(u"Date du tirage"_s);
    poserIndice(DateTimePicker, u"Sélection de tirages par date"_s);
    QCalendarWidget* calendrier = DateTimePicker->calendarWidget();
    calendrier->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendrier->setFirstDayOfWeek(Qt::Monday);
    // Only the days of draws stand out, see marquerCalendrier.
    calendrier->setWeekdayTextFormat(Qt::Saturday, {});
    calendrier->setWeekdayTextFormat(Qt::Sunday, {});
    // The longest date keeps the control from moving with each draw.
    DateTimePicker->setMinimumWidth(
        DateTimePicker->fontMetrics().horizontalAdvance(u"mercredi 24 septembre 2024"_s) + 54);

    ComboBox3 = new QComboBox(fiche);
    ComboBox3->setObjectName(u"ComboBox3"_s);
    ComboBox3->addItems({u"1er"_s, u"2nd"_s});
    ComboBox3->setAccessibleName(u"1er ou 2nd Tirage"_s);
    poserIndice(ComboBox3, u"Sélection du 1er ou 2nd Tirage"_s);

    EditTirGlob = new ChampNumero(u"EditTirGlob"_s, fiche);
    EditTirGlob->setAccessibleName(u"Numéro du tirage"_s);
    EditTirGlob->setFixedWidth(EditTirGlob->fontMetrics().horizontalAdvance(u"000000"_s) + 16);
    UpDown1 = new HautBas(u"UpDown1"_s, fiche);
    for (QWidget* w : {static_cast<QWidget*>(EditTirGlob), static_cast<QWidget*>(UpDown1)}) {
        poserIndice(w, u"Sélection de tirages par numéro"_s);
    }
    surTotal_ = legende({}, fiche);

    LabelTirageFixeNum = valeur(u"LabelTirageFixeNum"_s, u"N° dans l'année"_s, fiche);
    LabelTirageFixeAn = valeur(u"LabelTirageFixeAn"_s, u"Année"_s, fiche);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(3 * Unite);
    ligne->addLayout(colonne(u"Date"_s, rangee({DateTimePicker}), fiche));
    ligne->addLayout(colonne(u"Tirage"_s, rangee({ComboBox3}), fiche));
    ligne->addLayout(colonne(u"Numéro"_s, rangee({EditTirGlob, UpDown1, surTotal_}), fiche));
    ligne->addStretch(1);
    ligne->addLayout(colonne(u"N°"_s, rangee({LabelTirageFixeNum}), fiche));
    ligne->addLayout(colonne(u"Année"_s, rangee({LabelTirageFixeAn}), fiche));
    LabelTirageFixeNum->setMinimumWidth(
        LabelTirageFixeNum->fontMetrics().horizontalAdvance(u"000"_s));
    LabelTirageFixeAn->setMinimumWidth(
        LabelTirageFixeAn->fontMetrics().horizontalAdvance(u"0000"_s));
    fiche->pile->addLayout(ligne);
    fiche->pile->addSpacing(Unite);

    bande_ = new BandeTirage(contexte.Echelle, fiche);
    MaskEdit1 = new QLineEdit(fiche);
    MaskEdit1->setObjectName(u"MaskEdit1"_s);
    MaskEdit1->setReadOnly(true);
    MaskEdit1->setAlignment(Qt::AlignCenter);
    MaskEdit1->setAccessibleName(u"Numéro Joker+"_s);
    poserIndice(MaskEdit1, u"Numéro Joker+"_s);
    grossir(MaskEdit1, 1.15);
    MaskEdit1->setFixedWidth(MaskEdit1->fontMetrics().horizontalAdvance(u"0.0.0.0.0.0.0"_s) + 26);
    auto* boules = new QHBoxLayout;
    boules->setSpacing(0);
    boules->addWidget(bande_, 0, Qt::AlignBottom);
    boules->addStretch(1);
    // The place stays when the entry of a receipt borrows the field.
    caseJoker_ = new QWidget(fiche);
    caseJoker_->setMinimumWidth(MaskEdit1->width());
    caseJoker_->setLayout(colonne(u"Joker+"_s, placeJoker_ = rangee({MaskEdit1}), caseJoker_));
    caseJoker_->layout()->setContentsMargins(0, 0, 0, 0);
    QSizePolicy garde = caseJoker_->sizePolicy();
    garde.setRetainSizeWhenHidden(true);
    caseJoker_->setSizePolicy(garde);
    boules->addWidget(caseJoker_);
    fiche->pile->addLayout(boules);
    return fiche;
}

QFrame* PageResultats::creerFicheRapports() {
    auto* fiche = new Fiche(this);
    titreRapports_ = legende({}, fiche);
    AdvStringGrid6 = new TableRapports(u"AdvStringGrid6"_s, NbRangsLoto, contexte.Echelle, fiche);
    AdvStringGrid8 = new TableRapports(u"AdvStringGrid8"_s, NbRangs2nd, contexte.Echelle, fiche);
    rapports_ = new QStackedWidget(fiche);
    rapports_->addWidget(AdvStringGrid6);
    rapports_->addWidget(AdvStringGrid8);
    rapports_->setFixedHeight(AdvStringGrid6->sizeHint().height());
    aleatoire_ = new PanneauAleatoire(fiche);
    joker_ = new SaisieJoker(contexte, fiche);
    joker_->emprunter(MaskEdit1);
    volet_ = new QStackedWidget(fiche);
    for (QWidget* w : {static_cast<QWidget*>(rapports_), static_cast<QWidget*>(aleatoire_),
                       static_cast<QWidget*>(joker_)}) {
        volet_->addWidget(w);
    }
    fiche->pile->addWidget(titreRapports_);
    fiche->pile->addWidget(volet_);
    return fiche;
}

QHBoxLayout* PageResultats::creerBoutons() {
    CommunsButton = bouton(u"CommunsButton"_s, u"Communs"_s,
                           u"Chances et Numéros communs par rapport au tirage précédent"_s, this);
    CommunsButton->setCheckable(true);
    // Its caption turns bold: the wider text must not move the row.
    QFont gras = CommunsButton->font();
    gras.setBold(true);
    CommunsButton->setMinimumWidth(QFontMetrics(gras).horizontalAdvance(CommunsButton->text()) +
                                   6 * Unite);
    ReInit =
        bouton(u"ReInit"_s, u"&Choix libre"_s, u"Sélection libre de numéros à vérifier"_s, this);
    DeSelect = bouton(u"DeSelect"_s, u"&Désélectionner"_s,
                      u"Désélectionner tous les numéros cochés"_s, this);
    SelectGrilles =
        bouton(u"SelectGrilles"_s, u"&Sélection"_s, u"Sélection de grilles à vérifier"_s, this);
    Consultation = bouton(u"Consultation"_s, u"C&onsultation"_s,
                          u"Vérification des grilles en mémoire"_s, this);
    NormalMode = bouton(u"NormalMode"_s, u"&Terminer"_s, u"Retour au mode Normal"_s, this);
    MajBaseManuelle = bouton(u"MajBaseManuelle"_s, u"&Mise à jour"_s,
                             u"Mise à jour des tirages (mode manuel)"_s, this);
    MajBaseManuelle->setEnabled(false);  // editing by hand comes with a later version
    ChargerGrilles = bouton(u"ChargerGrilles"_s, u"O&uvrir"_s, u"Ouvrir Grilles ou Reçus"_s, this);
    ButtonSauverGrilles = bouton(u"ButtonSauverGrilles"_s, u"&Enregistrer"_s,
                                 u"Enregistrer les grilles sélectionnées"_s, this);
    VerifGains = bouton(u"VerifGains"_s, u"&Vérifier gains"_s, {}, this);
    jauge_ = new QProgressBar(this);
    jauge_->setObjectName(u"ProgressBarBilan"_s);
    jauge_->setAccessibleName(u"Avancement du bilan"_s);
    jauge_->setFixedWidth(24 * Unite);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(Unite + 2);
    // What comes and goes stands where it moves no other: the pointer stays on its button.
    for (QPushButton* b : {ReInit, CommunsButton, DeSelect}) ligne->addWidget(b);
    ligne->addStretch(1);
    ligne->addWidget(jauge_);
    for (QPushButton* b : {NormalMode, VerifGains, ChargerGrilles, ButtonSauverGrilles,
                           SelectGrilles, Consultation, MajBaseManuelle}) {
        ligne->addWidget(b);
    }
    QSizePolicy garde = ButtonSauverGrilles->sizePolicy();
    garde.setRetainSizeWhenHidden(true);
    ButtonSauverGrilles->setSizePolicy(garde);
    return ligne;
}

void PageResultats::relier() {
    connect(DateTimePicker, &QDateEdit::dateChanged, this, &PageResultats::ChoisirParDate);
    connect(ComboBox3, &QComboBox::currentIndexChanged, this, &PageResultats::ChoisirSousTirage);
    connect(EditTirGlob, &QLineEdit::textChanged, this, &PageResultats::ChoisirParNumero);
    connect(EditTirGlob, &ChampNumero::deplacement, this, &PageResultats::deplacer);
    connect(EditTirGlob, &ChampNumero::extremite, this,
            [this](bool derniere) { montrerTirage(derniere ? base().NbTirages : 1); });
    connect(EditTirGlob, &QLineEdit::editingFinished, this, [this] {
        // An emptied field takes the draw on show back.
        if (EditTirGlob->text().isEmpty() && indice_ >= 0) montrerTirage(indice_ + 1);
    });
    connect(UpDown1, &HautBas::deplacement, this, &PageResultats::deplacer);
    connect(planche_, &PlancheNumeros::appui, this, &PageResultats::presser);
    connect(planche_, &PlancheNumeros::etatChange, this, [this] {
        if (saisie_->etat() == EtatTickets::Normal) majFicheGrille();
    });
    connect(CommunsButton, &QPushButton::toggled, this, [this](bool bas) {
        QFont fonte = CommunsButton->font();
        fonte.setBold(bas);
        CommunsButton->setFont(fonte);
        afficherCellules();
    });
    connect(DeSelect, &QPushButton::clicked, this, &PageResultats::DeSelectClick);
    connect(ReInit, &QPushButton::clicked, this, &PageResultats::ReInitClick);
    connect(DateTimePicker->calendarWidget(), &QCalendarWidget::currentPageChanged, this,
            &PageResultats::marquerCalendrier);
}

void PageResultats::relierBillets() {
    const auto geste = [this](QPushButton* b, void (SaisieGrilles::*methode)()) {
        connect(b, &QPushButton::clicked, saisie_, methode);
    };
    geste(SelectGrilles, &SaisieGrilles::SelectGrillesClick);
    geste(NormalMode, &SaisieGrilles::NormalModeClick);
    geste(Consultation, &SaisieGrilles::ConsultationClick);
    geste(ButtonSauverGrilles, &SaisieGrilles::ButtonSauverGrillesClick);
    geste(ChargerGrilles, &SaisieGrilles::ChargerGrillesClick);
    connect(VerifGains, &QPushButton::clicked, this, [this] { gains_->VerifGainsClick(indice_); });
    connect(saisie_, &SaisieGrilles::etatChange, this, &PageResultats::changerMode);
    connect(saisie_, &SaisieGrilles::plancheRendue, this, [this] {
        rendrePlanche();
        majCommandes();
        majFicheGrille();
        SelectGrilles->setFocus();
    });
    connect(saisie_, &SaisieGrilles::dateDemandee, this, &PageResultats::choisirDate);
    connect(saisie_, &SaisieGrilles::gainsChange, this, [this](const SaisieGrilles::Gains& gains) {
        AdvStringGrid6->setFacteurs(gains.second ? ComptesRangs{} : gains.comptes);
        AdvStringGrid8->setFacteurs(gains.second ? gains.comptes : ComptesRangs{});
    });
    connect(joker_, &SaisieJoker::etapeChange, this, [this] {
        majCommandes();
        majFicheGrille();
    });
    connect(joker_, &SaisieJoker::masqueRendu, this, [this] {
        placeJoker_->addWidget(MaskEdit1);
        MaskEdit1->show();
        AfficherNumeroAnnee();
        majCommandes();
    });
    connect(gains_, &CalculGains::actionChange, this, &PageResultats::majCommandes);
}

void PageResultats::poserLimites() {
    const QScopedValueRollback garde(garde_, true);
    const auto enDate = [](int date) { return QDate(date / 10000, date / 100 % 100, date % 100); };
    QDate fin = contexte.services.horloge->aujourdhui();
    // A clock that runs behind the base must not hide draws.
    if (base().NbTirages > 0) fin = std::max(fin, enDate(base().enUsage().back().DateTirage));
    DateTimePicker->setDateRange(enDate(DatePremierTirage), fin);
    surTotal_->setText(u"sur %1"_s.arg(versQt(FormaterCompte(base().NbTirages))));
    const QCalendarWidget* calendrier = DateTimePicker->calendarWidget();
    marquerCalendrier(calendrier->yearShown(), calendrier->monthShown());
}

}  // namespace norvane::ui
