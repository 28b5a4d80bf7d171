// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/FicheGrille.h"

#include <algorithm>
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
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"
#include "widgets/RangeeGrille.h"

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

QLabel* etiquetteGrasse(const QString& nom, const QString& libelle, QWidget* parent) {
    auto* etiquette = new QLabel(parent);
    etiquette->setObjectName(nom);
    etiquette->setAccessibleName(libelle);
    QFont fonte = etiquette->font();
    fonte.setBold(true);
    etiquette->setFont(fonte);
    return etiquette;
}

/// The amount in euros, in francs as a hint.
void poserMontant(QLabel* etiquette, double montant, const Reglages& reglages) {
    const Conversion c = Convertir(montant, reglages.TauxConversion);
    etiquette->setText(versQt(FormaterMontant(c.enEuros()) + " " + reglages.SymboleMonnaie));
    poserIndice(etiquette,
                u"Montant en Francs : %1 F"_s.arg(versQt(FormaterMontant(c.enFrancs()))));
}

void viderMontant(QLabel* etiquette) {
    etiquette->clear();
    poserIndice(etiquette, {});
}

/// The values of a ticket in the order of ticking.
template <typename Cochees>
std::vector<CaseGrille> casesDe(const Cochees& cochees, Ensemble sorties, const QColor& couleur) {
    std::vector<CaseGrille> cases;
    for (const int valeur : cochees) cases.push_back({valeur, couleur, sorties.contient(valeur)});
    return cases;
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
    titre_ = valeur(u"LabelSelection"_s, {}, parent);
    numero_ = new ChampNumero(u"Edit1"_s, parent);
    numero_->setAccessibleName(u"Numéro de la grille"_s);
    numero_->setFixedWidth(numero_->fontMetrics().horizontalAdvance(u"000000"_s) + 16);
    auto* fleches = new HautBas(u"UpDown"_s, parent);
    for (QWidget* w : {static_cast<QWidget*>(numero_), static_cast<QWidget*>(fleches)}) {
        poserIndice(w, u"Sélection de grilles par numéro"_s);
    }
    surGrilles_ = legende({}, parent);
    // The longest count keeps the control from moving as the list grows.
    surGrilles_->setMinimumWidth(surGrilles_->fontMetrics().horizontalAdvance(u"sur 9 999"_s));
    choix_ = new QWidget(parent);
    auto* choix = rangee({numero_, fleches, surGrilles_});
    choix->setContentsMargins(0, 0, 0, 0);
    choix_->setLayout(choix);
    garderPlace(choix_);
    auto* tete = new QHBoxLayout;
    tete->addWidget(titre_);
    tete->addStretch(1);
    tete->addWidget(choix_);

    connect(numero_, &QLineEdit::textChanged, this, [this](const QString& texte) {
        if (!texte.isEmpty()) Q_EMIT numeroDemande(texte.toInt());
    });
    connect(numero_, &QLineEdit::editingFinished, this, [this] {
        // An emptied field takes the number on show back.
        if (numero_->text().isEmpty()) Q_EMIT deplacement(0);
    });
    connect(numero_, &ChampNumero::deplacement, this, &FicheGrille::deplacement);
    connect(fleches, &HautBas::deplacement, this, &FicheGrille::deplacement);
    connect(numero_, &ChampNumero::extremite, this,
            [this](bool derniere) { Q_EMIT numeroDemande(derniere ? nombre_ : 1); });
    return tete;
}

QWidget* FicheGrille::creerGrille(QWidget* parent) {
    auto* cadre = new QWidget(parent);
    numeros_ = new RangeeGrille(u"Panel3"_s, GenreStats::Numeros, PlacesNumeros, cadre);
    chances_ = new RangeeGrille(u"Panel5"_s, GenreStats::Chances, ChanceMax, cadre);
    auto* mise = creerMise(cadre);
    ligneResultat_ = new QStackedWidget(cadre);
    ligneResultat_->addWidget(creerNotes(cadre));
    ligneResultat_->addWidget(creerResultat(cadre));
    ligneResultat_->setFixedHeight(note_->fontMetrics().height() + 2);

    auto* pile = new QVBoxLayout(cadre);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite - 1);
    pile->addWidget(numeros_, 8);
    pile->addWidget(chances_, 8);
    pile->addLayout(mise);
    pile->addWidget(ligneResultat_);
    pile->addStretch(1);
    return cadre;
}

QLayout* FicheGrille::creerMise(QWidget* parent) {
    type_ = etiquetteGrasse(u"LabelCompteGrille"_s, u"Type de la grille"_s, parent);
    mise_ = etiquetteGrasse(u"LabelMiseF"_s, u"Mise de la grille"_s, parent);
    option_ = new QCheckBox(u"Option 2nd Tirage"_s, parent);
    option_->setObjectName(u"CheckBox2ND"_s);
    poserIndice(option_, u"Participation de la grille au 2nd Tirage"_s);
    connect(option_, &QCheckBox::toggled, this, &FicheGrille::optionChoisie);
    auto* ligne = new QHBoxLayout;
    ligne->setSpacing(Unite);
    ligne->addWidget(type_);
    ligne->addSpacing(2 * Unite);
    ligne->addWidget(legende(u"Mise"_s, parent));
    ligne->addWidget(mise_);
    ligne->addStretch(1);
    ligne->addWidget(option_);
    return ligne;
}

QWidget* FicheGrille::creerResultat(QWidget* parent) {
    auto* resultat = new QWidget(parent);
    sortis_ = etiquetteGrasse(u"LabelNumSortis"_s, u"Numéros et chances sortis"_s, resultat);
    gain_ = etiquetteGrasse(u"LabelGainF"_s, u"Gain de la grille"_s, resultat);
    auto* ligne = rangee({legende(u"Sortis"_s, resultat), sortis_});
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(Unite);
    ligne->addSpacing(2 * Unite);
    ligne->addWidget(legende(u"Gain"_s, resultat));
    ligne->addWidget(gain_);
    ligne->addStretch(1);
    resultat->setLayout(ligne);
    return resultat;
}

QWidget* FicheGrille::creerNotes(QWidget* parent) {
    auto* notes = new QWidget(parent);
    note_ = legende({}, notes);
    note_->setObjectName(u"LabelNote"_s);
    vides_ = new QLabel(u"Plus de Grilles en mémoire"_s, notes);
    vides_->setObjectName(u"LabelGrillesVides"_s);
    auto* opacite = new QGraphicsOpacityEffect(vides_);
    vides_->setGraphicsEffect(opacite);
    fondu_ = new QPropertyAnimation(opacite, "opacity", this);
    fondu_->setDuration(DureeFondu);
    fondu_->setKeyValueAt(0.0, 1.0);
    fondu_->setKeyValueAt(0.5, 1.0);
    fondu_->setKeyValueAt(1.0, 0.0);
    connect(fondu_, &QPropertyAnimation::finished, vides_, &QWidget::hide);
    vides_->hide();
    auto* ligne = rangee({vides_, note_});
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->addStretch(1);
    notes->setLayout(ligne);
    return notes;
}

QLayout* FicheGrille::creerPied(QWidget* parent) {
    struct Commande {
        const char16_t* nom;
        const char16_t* texte;
        const char16_t* indice;
        void (FicheGrille::*signal)();
    };
    static constexpr Commande Commandes[] = {
        {u"AddGrille", u"Ajouter &Grille", u"Ajouter une grille en mémoire",
         &FicheGrille::AddGrilleClick},
        {u"SupprGrille", u"Su&pprimer", u"Supprimer la grille courante",
         &FicheGrille::SupprGrilleClick},
        {u"SupprAllGrilles", u"Tout supp&rimer", u"Supprimer toutes les grilles",
         &FicheGrille::SupprAllGrillesClick}};
    auto* choixListe = creerChoixListe(parent);
    QList<QPushButton*> boutons;
    for (const Commande& c : Commandes) {
        auto* b = bouton(QString::fromUtf16(c.nom), QString::fromUtf16(c.texte),
                         QString::fromUtf16(c.indice), parent);
        b->setMinimumSize(b->minimumWidth() - 2 * Unite, b->minimumHeight() - Unite);
        garderPlace(b);
        connect(b, &QPushButton::clicked, this, c.signal);
        boutons << b;
    }
    // The first button and the choice of the list never show together: they share one place.
    auto* place = new QWidget(parent);
    auto* partage = new QGridLayout(place);
    partage->setContentsMargins(0, 0, 0, 0);
    partage->addWidget(choixListe, 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    partage->addWidget(boutons[0], 0, 0, Qt::AlignLeft | Qt::AlignVCenter);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(Unite);
    pied->addWidget(place);
    pied->addStretch(1);
    pied->addWidget(boutons[1]);
    pied->addWidget(boutons[2]);
    return pied;
}

QWidget* FicheGrille::creerChoixListe(QWidget* parent) {
    auto* cadre = new QWidget(parent);
    grilles_ = new QRadioButton(u"Grilles"_s, cadre);
    grilles_->setObjectName(u"RadioButtonSimple"_s);
    grilles_->setChecked(true);
    poserIndice(grilles_, u"Consultation des grilles au choix"_s);
    recu_ = new QRadioButton(u"Reçu"_s, cadre);
    recu_->setObjectName(u"RadioButtonJeu"_s);
    poserIndice(recu_, u"Consultation du Reçu de Jeu"_s);
    auto* ligne = rangee({grilles_, recu_});
    ligne->setContentsMargins(0, 0, 0, 0);
    ligne->setSpacing(2 * Unite);
    cadre->setLayout(ligne);
    connect(recu_, &QRadioButton::clicked, this, [this] { Q_EMIT listeChoisie(true); });
    connect(grilles_, &QRadioButton::clicked, this, [this] { Q_EMIT listeChoisie(false); });
    return cadre;
}

void FicheGrille::montrerTexte(const QString& titre, const QString& texte) {
    titre_->setText(titre);
    texte_->setText(texte);
    corps_->setCurrentWidget(texte_);
    choix_->hide();
    annoncerVide(false);
    mise_->clear();
    type_->clear();
}

void FicheGrille::montrerGrille(const QString& titre, const CarteGrille& carte,
                                const Cases& sorties, bool enMain, const Reglages& reglages) {
    const Grille& grille = carte.grille;
    const QColor couleur = enMain ? couleurGrille(std::max(1, carte.numero), palette())
                                  : palette().color(QPalette::WindowText);
    nombre_ = carte.nombre;
    titre_->setText(titre);
    corps_->setCurrentWidget(grille_);
    choix_->show();
    numeros_->poser(casesDe(grille.numeros, sorties.numeros, couleur));
    chances_->poser(casesDe(grille.chances, sorties.chances, couleur));
    type_->setText(u"%1 + %2C"_s.arg(grille.n()).arg(grille.c()));
    if (carte.avecMise) {
        poserMontant(mise_, grille.mise, reglages);
    } else {
        viderMontant(mise_);
    }
    note_->setText(carte.incomplete ? u"Grille incomplète : au moins 5 numéros et 1 chance"_s
                                    : QString());
    if (carte.resultat) montrerResultat(*carte.resultat, reglages);
    ligneResultat_->setCurrentIndex(carte.resultat ? 1 : 0);
    const QSignalBlocker silence(numero_);
    const QString numero = QString::number(carte.numero);
    // Text that is right already keeps its cursor: the user may be typing in it.
    if (numero_->text() != numero) numero_->setText(numero);
    const QString nombre = versQt(FormaterCompte(carte.nombre));
    surGrilles_->setText(u"sur %1"_s.arg(nombre.isEmpty() ? u"0"_s : nombre));
}

void FicheGrille::montrerResultat(const ResultatGrille& resultat, const Reglages& reglages) {
    sortis_->setText(u"%1 + %2C"_s.arg(resultat.bons.numeros).arg(resultat.bons.chances));
    poserMontant(gain_, resultat.gain, reglages);
}

void FicheGrille::montrerOption(bool option2nd) {
    const QSignalBlocker silence(option_);
    option_->setChecked(option2nd);
}

void FicheGrille::montrerListe(bool recu) {
    (recu ? recu_ : grilles_)->setChecked(true);
}

void FicheGrille::annoncerVide(bool vide) {
    fondu_->stop();
    vides_->setVisible(vide);
    if (vide) fondu_->start();
}

}  // namespace norvane::ui
