// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauListe.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QLabel>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

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

const QString ListePartielle = u"liste partielle"_s;

/// What stands between parentheses in the lines of a size.
QString sensCompte(int taille) {
    if (taille == 0) return {};
    return taille <= NbBoules ? u"Entre parenthèses : les tirages qui contiennent la combinaison"_s
                              : u"Entre parenthèses : les tirages dont les cinq numéros sont tous "
                                u"dans la combinaison"_s;
}

/// A value whose line stays free while it is empty.
QLabel* creerValeur(const char16_t* nom, const QString& sens, QWidget* parent) {
    auto* etiquette = valeur(QString::fromUtf16(nom), sens, parent);
    etiquette->setMinimumHeight(etiquette->fontMetrics().height());
    return etiquette;
}

}  // namespace

PanneauListe::PanneauListe(const NomsListe& noms, const Liste& liste, QWidget* parent)
    : QWidget(parent),
      liste_(liste),
      titre_(creerValeur(noms.titre, QString::fromUtf16(noms.sensTitre), this)),
      nombre_(creerValeur(noms.nombre, u"Combinaisons en liste"_s, this)),
      etat_(legende({}, this)),
      indice_(creerValeur(noms.indice, u"Indice de la ligne choisie"_s, this)),
      rang_(legende({}, this)),
      boite_(new ListeCombinaisons(QString::fromUtf16(noms.boite), this)) {
    indice_->setAlignment(Qt::AlignRight);
    boite_->setAccessibleName(QString::fromUtf16(noms.sensBoite));
    QFont fonte = boite_->font();
    fonte.setPixelSize(qRound(boite_->fontInfo().pixelSize() * FacteurListe));
    boite_->setFont(fonte);
    rang_->setObjectName(QString::fromUtf16(noms.rang));
    rang_->setWordWrap(true);
    etat_->setObjectName(QString::fromUtf16(noms.etat));
    rang_->setMinimumHeight(rang_->fontMetrics().height());

    auto* tete = new QHBoxLayout;
    tete->addLayout(colonne(u"Combinaisons en liste"_s, rangee({nombre_, etat_}), this));
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
    const QString partielle = liste_.partielle ? u", "_s + ListePartielle : QString();
    titre_->setText(liste_.vide() ? QString()
                                  : u"%1 à %2 numéros"_s.arg(liste_.nombre()).arg(liste_.taille()) +
                                        partielle);
    rang_->setText(liste_.vide() ? QString() : libelleStockage(liste_.mode()));
    boite_->modele().montrer(montree);
    boite_->scrollToTop();
    poserIndice(boite_, montree == nullptr ? QString() : sensCompte(montree->taille()));
    direNombre(montree);
}

void PanneauListe::direNombre(const Liste* montree) {
    const auto lignes = static_cast<std::uint64_t>(boite_->modele().rowCount());
    const std::uint64_t nombre = montree == nullptr ? 0 : std::max(montree->total, lignes);
    nombre_->setText(nombre == 0 ? QString() : QString::number(nombre));
    QStringList etats, indices;
    if (montree != nullptr && montree->partielle) {
        etats << ListePartielle;
        indices << u"Liste partielle : le calcul a été arrêté avant la fin"_s;
    }
    if (montree != nullptr && montree->nombreTotal() > lignes) {
        etats << (etats.isEmpty() ? u"liste coupée"_s : u"coupée"_s);
        indices << u"Les %1 premières sont affichées"_s.arg(lignes);
    }
    etat_->setText(etats.join(u", "_s));
    poserIndice(nombre_,
                indices.isEmpty() ? u"Nombre de combinaisons en liste"_s : indices.join(u" ; "_s));
}

void PanneauListe::colorer(std::optional<BornesLignes> bornes) {
    boite_->modele().poserBornes(bornes);
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
