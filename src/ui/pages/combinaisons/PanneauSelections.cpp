// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauSelections.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>

#include "combinaisons/BoutonEtroit.h"
#include "combinaisons/CommandesSelection.h"
#include "combinaisons/SelectionsPanel.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "stats/TableauStats.h"
#include "widgets/CasesNumeros.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct Compte {
    const char16_t* nom;
    const char16_t* texte;
    Priorite priorite;
};
constexpr std::array<Compte, 2> Comptes = {
    {{u"LabelNumsSelects", u"Priorité absolue: ", Priorite::Absolue},
     {u"LabelNumsSelects2", u"Priorité secondaire: ", Priorite::Secondaire}}};

constexpr int Colonnes = 10;
/// By Priorite.
constexpr AspectsCases Aspects = {{
    {Qt::Unchecked, u"sans priorité", 0, 0},
    {Qt::Checked, u"priorité absolue", qRgb(0x1F, 0x8A, 0x4C), qRgb(0xFF, 0xFF, 0xFF)},
    {Qt::PartiallyChecked, u"priorité secondaire", qRgb(0xF2, 0xB5, 0x44), qRgb(0x3A, 0x26, 0x00)},
}};

EtatsCases etatsDe(const GrilleSelection& grille) {
    EtatsCases etats{};
    std::ranges::transform(grille, etats.begin(),
                           [](Priorite p) { return static_cast<std::uint8_t>(p); });
    return etats;
}

/// The colour of a priority, as large as a letter.
QLabel* pastille(Priorite priorite, QWidget* parent) {
    auto* etiquette = new QLabel(parent);
    QPixmap image(12, 12);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(Aspects.at(static_cast<std::size_t>(priorite)).fond));
    p.drawRoundedRect(image.rect(), 3, 3);
    etiquette->setPixmap(image);
    return etiquette;
}

}  // namespace

PanneauSelections::PanneauSelections(Contexte& ctx, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      commandes_(new CommandesSelection(ctx, this)),
      cases_(new CasesNumeros(u"RxCheckListBox1"_s, u"Grille de sélection de numéros"_s, Aspects,
                              Colonnes, this)) {
    poserIndice(cases_,
                u"Numéros de la sélection|Un clic ou la barre d'espace : priorité absolue, puis "
                u"secondaire, puis aucune ; Suppr : aucune"_s);
    creerBoutons();
    poserBoutons();
    relier();
    suivre();
}

QHBoxLayout* PanneauSelections::creerEntete() {
    auto* entete = new QHBoxLayout;
    entete->setSpacing(Unite);
    for (std::size_t i = 0; i < Comptes.size(); ++i) {
        comptes_.at(i) = new QLabel(this);
        comptes_.at(i)->setObjectName(QString::fromUtf16(Comptes.at(i).nom));
        entete->addWidget(pastille(Comptes.at(i).priorite, this));
        entete->addWidget(comptes_.at(i));
        entete->addSpacing(Unite);
    }
    entete->addStretch(1);
    return entete;
}

QSpinBox* PanneauSelections::creerNombre(const char16_t* nom, const QString& indice) {
    auto* nombre = new QSpinBox(this);
    nombre->setObjectName(QString::fromUtf16(nom));
    nombre->setAccessibleName(indice);
    nombre->setAlignment(Qt::AlignRight);
    poserIndice(nombre, indice);
    connect(nombre, &QSpinBox::valueChanged, this, &PanneauSelections::bornerNombres);
    return nombre;
}

void PanneauSelections::creerBoutons() {
    const auto creer = [this](const char16_t* nom, const char16_t* libelle,
                              const char16_t* indice) {
        return boutonEtroit(QString::fromUtf16(nom), QString::fromUtf16(libelle),
                            QString::fromUtf16(indice), this);
    };
    // As wide as the longer of its two captions.
    selectionner_ = creer(u"ButtonSelect", u"Valider votre sélection", u"");
    vider_ = creer(u"ButtonDecocher", u"&Vider", u"Décocher tous les numéros");
    tirage_ = creer(u"BitBtnWithColor14", u"Tirage",
                    u"Cocher les numéros du tirage actif dans l'onglet Résultats");
    choixLibre_ = creer(u"BitBtnWithColor15", u"Choix Libre",
                        u"Cocher les numéros du choix libre de l'onglet Résultats");
    aleatoire_ = creer(u"AdvGlowButton8", u"Aléatoire",
                       u"Sélection aléatoire de numéros absolus et secondaires");
    ouvrir_ = creer(u"ButtonOuvrirSlt", u"Ouvrir", u"Ouvrir une sélection enregistrée");
    sauver_ = creer(u"ButtonSauverSlt", u"Sauver", u"Enregistrer la sélection en cours");
    liste_ = creer(u"ButtonSelections", u"Sélections...", u"Liste de vos sélections");
    absolus_ = creerNombre(u"Edit30", u"Nombre de numéros absolus à tirer"_s);
    secondaires_ = creerNombre(u"Edit27", u"Nombre de numéros secondaires à tirer"_s);
    absolus_->setMinimum(1);
    secondaires_->setRange(0, NumeroMax - 1);
    absolus_->setMaximum(NumeroMax);
    absolus_->setValue(NbBoules);
}

void PanneauSelections::poserBoutons() {
    intervalle_ = legende({}, this);
    intervalle_->setObjectName(u"RxLabel23"_s);
    poserIndice(intervalle_, u"Tirages sur lesquels portent les combinaisons"_s);
    auto* choix = rangee({selectionner_, vider_, tirage_, choixLibre_});
    choix->setStretch(0, 1);
    auto* hasard = rangee({aleatoire_, absolus_, new QLabel(u"+"_s, this), secondaires_});
    hasard->addStretch(1);
    for (QPushButton* b : {ouvrir_, sauver_, liste_}) hasard->addWidget(b);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addLayout(creerEntete());
    pile->addWidget(cases_, 1);
    pile->addLayout(choix);
    pile->addLayout(hasard);
    pile->addWidget(intervalle_);
}

void PanneauSelections::relier() {
    const auto relier = [this](QPushButton* bouton, void (CommandesSelection::*geste)()) {
        connect(bouton, &QPushButton::clicked, commandes_, geste);
    };
    connect(selectionner_, &QPushButton::clicked, this, [this] {
        commandes_->ButtonSelectClick();
        // The keys go on where the choice goes on.
        if (cases_->isEnabled()) cases_->setFocus();
    });
    relier(vider_, &CommandesSelection::ButtonDecocherClick);
    relier(tirage_, &CommandesSelection::BitBtnWithColor14Click);
    relier(choixLibre_, &CommandesSelection::BitBtnWithColor15Click);
    relier(ouvrir_, &CommandesSelection::ButtonOuvrirSltClick);
    relier(sauver_, &CommandesSelection::ButtonSauverSltClick);
    connect(aleatoire_, &QPushButton::clicked, this,
            [this] { commandes_->AdvGlowButton8Click(absolus_->value(), secondaires_->value()); });
    connect(liste_, &QPushButton::clicked, this, &PanneauSelections::ouvrirListe);
    connect(cases_, &CasesNumeros::avanceDemandee, this, [this](int numero) {
        const GrilleSelection& grille = GrilleMontree(contexte_.atelier);
        commandes_->cocher(numero, Suivante(grille.at(static_cast<std::size_t>(numero - 1))));
    });
    connect(cases_, &CasesNumeros::retraitDemande, commandes_,
            [this](int numero) { commandes_->cocher(numero, Priorite::Aucune); });
}

/// There are 49 numbers for both.
void PanneauSelections::bornerNombres() {
    secondaires_->setMaximum(NumeroMax - absolus_->value());
    absolus_->setMaximum(NumeroMax - secondaires_->value());
}

void PanneauSelections::suivre() {
    const Atelier& a = contexte_.atelier;
    const GrilleSelection& grille = GrilleMontree(a);
    const bool saisie = a.saisieSelection.enCours;
    cases_->montrer(etatsDe(grille));
    cases_->setEnabled(saisie);
    for (std::size_t i = 0; i < Comptes.size(); ++i) {
        comptes_.at(i)->setText(
            QString::fromUtf16(Comptes.at(i).texte) +
            QString::number(NumerosDe(grille, Comptes.at(i).priorite).taille()));
    }
    selectionner_->setText(saisie ? u"Valider votre sélection"_s : u"&Sélectionner"_s);
    poserIndice(selectionner_, saisie ? u"Calculer avec les numéros cochés"_s
                                      : u"Pour un choix de combinaisons restreint"_s);
    for (QPushButton* b : {vider_, tirage_, choixLibre_}) b->setEnabled(saisie);
    ouvrir_->setEnabled(!saisie);
    sauver_->setEnabled(!saisie && SelectionASauver(a));
    const Occurrences& occ = a.occurrences;
    intervalle_->setText(
        occ.IntervalleSup < occ.IntervalleInf
            ? QString()
            : versQt(LibelleIntervalleCourt(a.base, occ.IntervalleInf, occ.IntervalleSup))
                  .replace(u'\n', u' '));
    if (panneau_ != nullptr) panneau_->suivre();
}

void PanneauSelections::ouvrirListe() {
    if (panneau_ == nullptr) {
        panneau_ = new SelectionsPanel(contexte_, *commandes_, window());
        connect(panneau_, &SelectionsPanel::statistiquesDemandees, this,
                &PanneauSelections::statistiquesDemandees);
    }
    panneau_->show();
    panneau_->raise();
    panneau_->activateWindow();
}

void PanneauSelections::fermerListe() {
    if (panneau_ != nullptr) panneau_->close();
}

void PanneauSelections::hideEvent(QHideEvent* evenement) {
    QWidget::hideEvent(evenement);
    // Its lines speak to what is no longer on show. An icon of the window takes it along anyway.
    if (!evenement->spontaneous()) fermerListe();
}

QList<QWidget*> PanneauSelections::ordreTabulation() const {
    return {cases_,   selectionner_, vider_,  tirage_, choixLibre_, aleatoire_,
            absolus_, secondaires_,  ouvrir_, sauver_, liste_};
}

}  // namespace norvane::ui
