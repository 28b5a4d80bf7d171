// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauListe.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QLabel>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"
#include "widgets/ListeCombinaisons.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double FacteurListe = 1.08;

QString libelleStockage(ModeStockage mode) {
    switch (mode) {
        case ModeStockage::PremierRang:
            return u"Premier rang stocké"_s;
        case ModeStockage::RangsDeGain:
            return u"Rangs de gain stockés"_s;
        case ModeStockage::TousLesRangs:
            return u"Tous les rangs stockés"_s;
    }
    return {};
}

/// A value whose line stays free while it is empty.
QLabel* creerValeur(const char16_t* nom, const QString& sens, QWidget* parent) {
    auto* etiquette = valeur(QString::fromUtf16(nom), sens, parent);
    etiquette->setMinimumHeight(etiquette->fontMetrics().height());
    return etiquette;
}

}  // namespace

PanneauListe::PanneauListe(const NomsListe& noms, const Liste& liste, const EtatCombinaisons& etat,
                           QWidget* parent)
    : QWidget(parent),
      liste_(liste),
      titre_(creerValeur(noms.titre, QString::fromUtf16(noms.sensTitre), this)),
      nombre_(creerValeur(noms.nombre, u"Combinaisons en liste"_s, this)),
      indice_(creerValeur(noms.indice, u"Indice de la ligne choisie"_s, this)),
      rang_(legende({}, this)),
      boite_(new ListeCombinaisons(QString::fromUtf16(noms.boite), etat, this)) {
    indice_->setAlignment(Qt::AlignRight);
    boite_->setAccessibleName(QString::fromUtf16(noms.sensBoite));
    QFont fonte = boite_->font();
    fonte.setPixelSize(qRound(boite_->fontInfo().pixelSize() * FacteurListe));
    boite_->setFont(fonte);
    rang_->setObjectName(QString::fromUtf16(noms.rang));
    rang_->setWordWrap(true);
    rang_->setMinimumHeight(rang_->fontMetrics().height());

    auto* tete = new QHBoxLayout;
    tete->addLayout(colonne(u"Combinaisons en liste"_s, rangee({nombre_}), this));
    tete->addStretch(1);
    auto* indice = colonne(u"Indice"_s, rangee({indice_}), this);
    indice->itemAt(0)->setAlignment(Qt::AlignRight);
    tete->addLayout(indice);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addLayout(tete);
    pile->addWidget(boite_, 1);
    pile->addLayout(colonne(QString::fromUtf16(noms.sensTitre), rangee({titre_}), this));
    pile->addWidget(rang_);
    connect(boite_, &ListeCombinaisons::ligneChoisie, this, &PanneauListe::choisir);
}

void PanneauListe::afficher(const Liste* montree) {
    indice_->clear();
    titre_->setText(liste_.vide() ? QString()
                                  : u"%1 à %2 numéros"_s.arg(liste_.nombre()).arg(liste_.taille()));
    rang_->setText(liste_.vide() ? QString() : libelleStockage(liste_.mode()));
    boite_->modele().montrer(montree);
    boite_->scrollToTop();
    direNombre(montree);
}

void PanneauListe::direNombre(const Liste* montree) {
    const auto lignes = static_cast<std::uint64_t>(boite_->modele().rowCount());
    const std::uint64_t nombre = montree == nullptr ? 0 : std::max(montree->total, lignes);
    nombre_->setText(nombre == 0 ? QString() : QString::number(nombre));
    poserIndice(nombre_, nombre > lignes ? u"Les %1 premières sont affichées"_s.arg(lignes)
                                         : u"Nombre de combinaisons en liste"_s);
}

void PanneauListe::colorer(bool couleurs) {
    boite_->modele().poserCouleurs(couleurs);
}

void PanneauListe::poserInvite(const QString& invite) {
    boite_->poserInvite(invite);
}

void PanneauListe::choisir(int ligne) {
    indice_->setText(QString::number(ligne + 1));
    if (const auto choisie = boite_->modele().combinaison(ligne)) {
        Q_EMIT combinaisonChoisie(*choisie);
    }
}

}  // namespace norvane::ui
