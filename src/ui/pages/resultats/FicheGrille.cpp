// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/FicheGrille.h"

#include <QCheckBox>
#include <QGraphicsOpacityEffect>
#include <QHBoxLayout>
#include <QLabel>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStackedWidget>

#include "base/Textes.h"
#include "base/Tirage.h"
#include "common/Theme.h"
#include "pages/Page.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int PlacesNumeros = 9;  // the largest ticket sold
constexpr int DureeFondu = 4000;  // ms: long enough to be read

/// A place that stays when what stands on it goes.
void garderPlace(QWidget* widget) {
    QSizePolicy politique = widget->sizePolicy();
    politique.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(politique);
}

QLabel* montant(const QString& nom, const QString& libelle, QWidget* parent) {
    auto* etiquette = new QLabel(parent);
    etiquette->setObjectName(nom);
    etiquette->setAccessibleName(libelle);
    QFont fonte = etiquette->font();
    fonte.setBold(true);
    etiquette->setFont(fonte);
    return etiquette;
}

}  // namespace

FicheGrille::FicheGrille(QWidget* parent) : QWidget(parent) {
    auto* dehors = new QHBoxLayout(this);
    dehors->setContentsMargins(0, 0, 0, 0);
    auto* fiche = new Fiche(this);
    dehors->addWidget(fiche);
    corps_ = new QStackedWidget(fiche);
    texte_ = new QLabel(corps_);
    texte_->setObjectName(u"LabelMemoire"_s);
    texte_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    texte_->setWordWrap(true);
    corps_->addWidget(texte_);
    grille_ = creerGrille(corps_);
    corps_->addWidget(grille_);
    fiche->pile->setSpacing(Unite - 1);
    fiche->pile->addLayout(creerTete(fiche));
    fiche->pile->addWidget(corps_, 1);
    fiche->pile->addLayout(creerPied(fiche));
}

QLayout* FicheGrille::creerTete(QWidget* parent) {
    LabelSelection = valeur(u"LabelSelection"_s, {}, parent);
    Edit1 = new ChampNumero(u"Edit1"_s, parent);
    Edit1->setAccessibleName(u"Numéro de la grille"_s);
    Edit1->setFixedWidth(Edit1->fontMetrics().horizontalAdvance(u"000000"_s) + 16);
    UpDown = new HautBas(u"UpDown"_s, parent);
    for (QWidget* w : {static_cast<QWidget*>(Edit1), static_cast<QWidget*>(UpDown)}) {
        poserIndice(w, u"Sélection de grilles par numéro"_s);
    }
    surGrilles_ = legende({}, parent);
    // The longest count keeps the control from moving as the list grows.
    surGrilles_->setMinimumWidth(surGrilles_->fontMetrics().horizontalAdvance(u"sur 9 999"_s));
    choix_ = new QWidget(parent);
    auto* choix = rangee({Edit1, UpDown, surGrilles_});
    choix->setContentsMargins(0, 0, 0, 0);
    choix_->setLayout(choix);
    garderPlace(choix_);
    auto* tete = new QHBoxLayout;
    tete->addWidget(LabelSelection);
    tete->addStretch(1);
    tete->addWidget(choix_);
    return tete;
}

QWidget* FicheGrille::creerGrille(QWidget* parent) {
    auto* cadre = new QWidget(parent);
    Panel3 = new RangeeGrille(u"Panel3"_s, GenreStats::Numeros, PlacesNumeros, cadre);
    Panel5 = new RangeeGrille(u"Panel5"_s, GenreStats::Chances, ChanceMax, cadre);

    LabelCompteGrille = montant(u"LabelCompteGrille"_s, u"Type de la grille"_s, cadre);
    LabelMiseF = montant(u"LabelMiseF"_s, u"Mise de la grille"_s, cadre);
    CheckBox2ND = new QCheckBox(u"Option 2nd Tirage"_s, cadre);
    CheckBox2ND->setObjectName(u"CheckBox2ND"_s);
    poserIndice(CheckBox2ND, u"Participation de la grille au 2nd Tirage"_s);
    auto* mise = new QHBoxLayout;
    mise->setSpacing(Unite);
    mise->addWidget(LabelCompteGrille);
    mise->addSpacing(2 * Unite);
    mise->addWidget(legende(u"Mise"_s, cadre));
    mise->addWidget(LabelMiseF);
    mise->addStretch(1);
    mise->addWidget(CheckBox2ND);

    note_ = legende({}, cadre);
    note_->setObjectName(u"LabelNote"_s);
    LabelNumSortis = montant(u"LabelNumSortis"_s, u"Numéros et chances sortis"_s, cadre);
    LabelGainF = montant(u"LabelGainF"_s, u"Gain de la grille"_s, cadre);
    auto* resultat = new QWidget(cadre);
    auto* ligne = rangee({legende(u"Sortis"_s, cadre), LabelNumSortis});
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(Unite);
    ligne->addSpacing(2 * Unite);
    ligne->addWidget(legende(u"Gain"_s, cadre));
    ligne->addWidget(LabelGainF);
    ligne->addStretch(1);
    resultat->setLayout(ligne);
    LabelGrillesVides = new QLabel(u"Plus de Grilles en mémoire"_s, cadre);
    LabelGrillesVides->setObjectName(u"LabelGrillesVides"_s);
    auto* opacite = new QGraphicsOpacityEffect(LabelGrillesVides);
    LabelGrillesVides->setGraphicsEffect(opacite);
    fondu_ = new QPropertyAnimation(opacite, "opacity", this);
    fondu_->setDuration(DureeFondu);
    fondu_->setKeyValueAt(0.0, 1.0);
    fondu_->setKeyValueAt(0.5, 1.0);
    fondu_->setKeyValueAt(1.0, 0.0);
    connect(fondu_, &QPropertyAnimation::finished, LabelGrillesVides, &QWidget::hide);
    LabelGrillesVides->hide();

    auto* notes = new QWidget(cadre);
    auto* ligneNotes = rangee({LabelGrillesVides, note_});
    ligneNotes->setContentsMargins(0, 0, 0, 0);
    ligneNotes->addStretch(1);
    notes->setLayout(ligneNotes);
    ligneResultat_ = new QStackedWidget(cadre);
    ligneResultat_->addWidget(notes);
    ligneResultat_->addWidget(resultat);
    ligneResultat_->setFixedHeight(note_->fontMetrics().height() + 2);

    auto* pile = new QVBoxLayout(cadre);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite - 1);
    pile->addWidget(Panel3, 8);
    pile->addWidget(Panel5, 8);
    pile->addLayout(mise);
    pile->addWidget(ligneResultat_);
    pile->addStretch(1);
    return cadre;
}

QLayout* FicheGrille::creerPied(QWidget* parent) {
    RadioButtonSimple = new QRadioButton(u"Grilles"_s, parent);
    RadioButtonSimple->setObjectName(u"RadioButtonSimple"_s);
    RadioButtonSimple->setChecked(true);
    poserIndice(RadioButtonSimple, u"Consultation des grilles au choix"_s);
    RadioButtonJeu = new QRadioButton(u"Reçu"_s, parent);
    RadioButtonJeu->setObjectName(u"RadioButtonJeu"_s);
    poserIndice(RadioButtonJeu, u"Consultation du Reçu de Jeu"_s);
    AddGrille =
        bouton(u"AddGrille"_s, u"Ajouter &Grille"_s, u"Ajouter une grille en mémoire"_s, parent);
    SupprGrille =
        bouton(u"SupprGrille"_s, u"Su&pprimer"_s, u"Supprimer la grille courante"_s, parent);
    SupprAllGrilles = bouton(u"SupprAllGrilles"_s, u"Tout supp&rimer"_s,
                             u"Supprimer toutes les grilles"_s, parent);
    for (QPushButton* b : {AddGrille, SupprGrille, SupprAllGrilles}) {
        b->setMinimumSize(b->minimumWidth() - 2 * Unite, b->minimumHeight() - Unite);
        garderPlace(b);
    }
    // The first button and the choice of the list never show together: they share one place.
    auto* place = new QWidget(parent);
    auto* partage = new QGridLayout(place);
    partage->setContentsMargins(0, 0, 0, 0);
    auto* radios = rangee({RadioButtonSimple, RadioButtonJeu});
    radios->setSpacing(2 * Unite);
    partage->addLayout(radios, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    partage->addWidget(AddGrille, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(Unite);
    pied->addWidget(place);
    pied->addStretch(1);
    pied->addWidget(SupprGrille);
    pied->addWidget(SupprAllGrilles);
    return pied;
}

void FicheGrille::montrerTexte(const QString& titre, const QString& texte) {
    LabelSelection->setText(titre);
    texte_->setText(texte);
    corps_->setCurrentWidget(texte_);
    choix_->hide();
    annoncerVide(false);
    LabelMiseF->clear();
    LabelCompteGrille->clear();
}

void FicheGrille::montrerGrille(const QString& titre, const VueGrille& vue) {
    LabelSelection->setText(titre);
    corps_->setCurrentWidget(grille_);
    choix_->show();
    Panel3->poser(vue.numeros);
    Panel5->poser(vue.chances);
    LabelCompteGrille->setText(u"%1 + %2C"_s.arg(vue.numeros.size()).arg(vue.chances.size()));
    LabelMiseF->setText(vue.mise);
    poserIndice(LabelMiseF, vue.francs);
    note_->setText(vue.note);
    LabelNumSortis->setText(vue.sortis);
    LabelGainF->setText(vue.gain);
    poserIndice(LabelGainF, vue.gainFrancs);
    ligneResultat_->setCurrentIndex(vue.resultat ? 1 : 0);
    const QSignalBlocker silence(Edit1);
    const QString numero = QString::number(vue.numero);
    // Text that is right already keeps its cursor: the user may be typing in it.
    if (Edit1->text() != numero) Edit1->setText(numero);
    QString nombre = versQt(FormaterCompte(vue.nombre));
    surGrilles_->setText(u"sur %1"_s.arg(nombre.isEmpty() ? u"0"_s : nombre));
}

void FicheGrille::annoncerVide(bool vide) {
    fondu_->stop();
    LabelGrillesVides->setVisible(vide);
    if (vide) fondu_->start();
}

}  // namespace norvane::ui
