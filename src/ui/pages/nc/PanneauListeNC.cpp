// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "nc/PanneauListeNC.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "nc/ListeNC.h"
#include "nc/PanneauSelectionNC.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

struct BoutonListe {
    const char16_t* nom;
    const char16_t* libelle;
    const char16_t* indice;
    int rangee, colonne, colonnes;  // on a grid of twelve columns
};
/// By PanneauListeNC::Geste.
constexpr std::array<BoutonListe, PanneauListeNC::NbGestes> Boutons = {
    {{u"Button64", u"Filtre C", u"Ne retenir que les chances de votre sélection ci-contre", 0, 0,
      3},
     {u"Button65", u"Filtre 0",
      u"Ne garder que les grilles non sorties sur tous les rangs de gain (excluant rang9)", 0, 3,
      3},
     {u"SupprSorties", u"Filtre 0+9",
      u"Ne garder que les grilles non sorties sur tous les rangs de gain (rang9 compris)", 0, 6, 3},
     {u"Button67", u"00!",
      u"Grilles jamais sorties sur aucun rang de gain ! (excluant rang9=1+C ou 0+C)", 0, 9, 3},
     {u"Button68", u"Ouvrir", u"Charger une liste (Numéros et Chances)", 1, 0, 3},
     {u"Button69", u"Sauver", u"Sauver une liste (Numéros et Chances)", 1, 3, 3},
     {u"Button60", u"A&jouter aux bulletins", u"Ajouter la combinaison dans les bulletins", 1, 6,
      6}}};

QLabel* creerValeur(const QString& nom, const QString& sens, QWidget* parent) {
    auto* etiquette = valeur(nom, sens, parent);
    etiquette->setMinimumHeight(etiquette->fontMetrics().height());
    return etiquette;
}

}  // namespace

PanneauListeNC::PanneauListeNC(const CombinaisonsNC& etat, QWidget* parent)
    : QWidget(parent),
      etat_(etat),
      types_(choixTypes(u"ComboBox6"_s, u"Type des grilles de la liste"_s,
                        u"Sélection du mode de génération de la liste N + C"_s, this)),
      nombre_(creerValeur(u"LabelGrillesNC"_s, u"Grilles"_s, this)),
      partielle_(legende({}, this)),
      ligne_(creerValeur(u"LabelLigneNC"_s, u"Numéro de la ligne choisie"_s, this)),
      boite_(new ListeNC(etat.ListeNC, this)),
      jauge_(new QProgressBar(this)) {
    partielle_->setObjectName(u"LabelEtatNC"_s);
    jauge_->setObjectName(u"CGaugeNC"_s);
    jauge_->setAccessibleName(u"Avancement de la recherche"_s);
    jauge_->setRange(0, 1);
    jauge_->setValue(0);
    jauge_->setTextVisible(false);
    auto* tete = new QHBoxLayout;
    tete->setSpacing(3 * Unite);
    tete->addLayout(colonne(u"Type"_s, rangee({types_}), this));
    tete->addLayout(colonne(u"Grilles:"_s, rangee({nombre_, partielle_}), this));
    tete->addStretch(1);
    tete->addLayout(colonne(u"Ligne"_s, rangee({ligne_}), this));
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addLayout(tete);
    pile->addWidget(boite_, 1);
    pile->addWidget(jauge_);
    creerBoutons();
    setMinimumWidth(boite_->largeurLigne());
    connect(types_, &QComboBox::currentIndexChanged, this,
            [this] { Q_EMIT ComboBox6Change(typeChoisi(*types_)); });
    connect(boite_, &ListeNC::ligneChoisie, this, &PanneauListeNC::ligneChoisie);
    montrer();
}

void PanneauListeNC::creerBoutons() {
    auto* grille = new QGridLayout;
    grille->setSpacing(Unite);
    for (std::size_t i = 0; i < Boutons.size(); ++i) {
        const BoutonListe& b = Boutons[i];
        boutons_[i] = bouton(QString::fromUtf16(b.nom), QString::fromUtf16(b.libelle),
                             QString::fromUtf16(b.indice), this);
        boutons_[i]->setMinimumWidth(0);
        grille->addWidget(boutons_[i], b.rangee, b.colonne, 1, b.colonnes);
        connect(boutons_[i], &QPushButton::clicked, this,
                [this, i] { Q_EMIT geste(static_cast<Geste>(i)); });
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(grille);
}

void PanneauListeNC::montrer() {
    montrerType(*types_, etat_.TypeNC);
    nombre_->setText(QString::number(etat_.ListeNC.size()));
    partielle_->setText(etat_.partielle ? u"liste partielle"_s : QString());
    poserIndice(nombre_, etat_.partielle
                             ? u"Liste partielle : la recherche a été arrêtée avant la fin"_s
                             : u"Nombre de grilles en liste"_s);
    boite_->montrer();
    if (etat_.ligne) {
        boite_->setCurrentIndex(boite_->model()->index(static_cast<int>(*etat_.ligne), 0));
    } else {
        boite_->scrollToTop();
    }
    montrerLigne();
}

void PanneauListeNC::montrerLigne() {
    ligne_->setText(etat_.ligne ? QString::number(*etat_.ligne + 1) : QString());
}

void PanneauListeNC::montrerRecherche(bool enCours) {
    boutons_[Jamais]->setText(enCours ? u"STOP"_s : QString::fromUtf16(Boutons[Jamais].libelle));
}

QList<QWidget*> PanneauListeNC::ordreTabulation() const {
    QList<QWidget*> ordre{types_, boite_};
    for (QPushButton* b : boutons_) ordre << b;
    return ordre;
}

}  // namespace norvane::ui
