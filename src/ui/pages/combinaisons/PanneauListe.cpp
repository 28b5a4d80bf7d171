// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauListe.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>

#include "combinaisons/DetailsListe.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr double FacteurListe = 1.08;

const QString ListeVide = u"liste vide..."_s;
const QString ListePartielle = u"liste partielle"_s;

/// What stands between parentheses in the lines of a size.
QString sensCompte(int taille) {
    if (taille == 0) return {};
    return taille <= NbBoules ? u"Entre parenthèses : les tirages qui contiennent la combinaison"_s
                              : u"Entre parenthèses : les tirages dont les cinq numéros sont tous "
                                u"dans la combinaison"_s;
}

}  // namespace

PanneauListe::PanneauListe(const NomsListe& n, const Liste& liste, QWidget* parent)
    : QWidget(parent),
      noms(n),
      liste_(liste),
      titre_(creerValeur(n.titre,
                         n.nom == nullptr ? u"Combinaisons en mémoire"_s : u"Liste et taille"_s)),
      nombre_(creerValeur(n.nombre, u"Combinaisons en liste"_s)),
      etat_(creerLegende(n.etat)),
      rang_(creerLegende(n.rang)),
      boite_(new ListeCombinaisons(QString::fromUtf16(n.boite), this)),
      jauge_(new QProgressBar(this)) {
    creerBoite();
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    if (n.nom == nullptr) {
        disposerPrincipale(pile);
    } else {
        disposerTampon(pile);
    }
    connect(boite_, &ListeCombinaisons::ligneChoisie, this, &PanneauListe::choisir);
}

/// A value whose line stays free while it is empty.
QLabel* PanneauListe::creerValeur(const char16_t* nom, const QString& sens) {
    auto* etiquette = valeur(QString::fromUtf16(nom), sens, this);
    etiquette->setMinimumHeight(etiquette->fontMetrics().height());
    return etiquette;
}

QLabel* PanneauListe::creerLegende(const char16_t* nom) {
    auto* etiquette = legende({}, this);
    etiquette->setObjectName(QString::fromUtf16(nom));
    etiquette->setMinimumHeight(etiquette->fontMetrics().height());
    return etiquette;
}

void PanneauListe::creerBoite() {
    boite_->setAccessibleName(noms.nom == nullptr ? u"Liste des combinaisons"_s
                                                  : QString::fromUtf16(noms.nom));
    boite_->setContextMenuPolicy(Qt::CustomContextMenu);
    jauge_->setObjectName(QString::fromUtf16(noms.jauge));
    jauge_->setAccessibleName(u"Avancement du travail sur la liste"_s);
    jauge_->setRange(0, 1);
    jauge_->setValue(0);
    jauge_->setTextVisible(false);
    jauge_->setFixedHeight(Unite);
}

void PanneauListe::disposerPrincipale(QBoxLayout* pile) {
    QFont fonte = boite_->font();
    fonte.setPixelSize(qRound(boite_->fontInfo().pixelSize() * FacteurListe));
    boite_->setFont(fonte);
    indice_ = creerValeur(noms.indice, u"Indice de la ligne choisie"_s);
    indice_->setAlignment(Qt::AlignRight);
    auto* tete = new QHBoxLayout;
    tete->addLayout(colonne(u"Combinaisons en liste"_s, rangee({nombre_, etat_}), this));
    tete->addStretch(1);
    auto* indice = colonne(u"Indice"_s, rangee({indice_}), this);
    indice->itemAt(0)->setAlignment(Qt::AlignRight);
    tete->addLayout(indice);
    pile->addLayout(tete);
    pile->addWidget(boite_, 1);
    pile->addWidget(jauge_);
    auto* memoire = rangee({titre_});
    memoire->addStretch(1);
    memoire->addWidget(rang_, 0, Qt::AlignBottom);
    pile->addLayout(colonne(u"Combinaisons en mémoire"_s, memoire, this));
}

/// Three of them stand side by side below the statistics: the lines have most of the room.
void PanneauListe::disposerTampon(QBoxLayout* pile) {
    intervalle_ = creerLegende(noms.intervalle);
    QFont grasse = font();
    grasse.setBold(true);
    for (QLabel* etiquette : {titre_, nombre_}) etiquette->setFont(grasse);
    // None may claim the width of a long text.
    for (QLabel* etiquette : {titre_, rang_, intervalle_})
        etiquette->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* nombre = rangee({rang_, etat_, nombre_});
    nombre->setStretch(0, 1);
    pile->setSpacing(Unite / 3);
    pile->addWidget(titre_);
    pile->addLayout(nombre);
    pile->addWidget(boite_, 1);
    pile->addWidget(jauge_);
    pile->addWidget(intervalle_);
}

void PanneauListe::afficher(const Liste* montree) {
    direType();
    boite_->montrer(montree);
    poserIndice(boite_, montree == nullptr ? QString() : sensCompte(montree->taille()));
    direNombre(montree);
    if (indice_ == nullptr) return;
    const int ligne = boite_->currentIndex().row();
    indice_->setText(ligne < 0 ? QString() : QString::number(ligne + 1));
}

void PanneauListe::direType() {
    const QString vide = noms.nom == nullptr ? QString() : ListeVide;
    rang_->setText(liste_.vide() ? vide : libelleStockage(liste_.mode()));
    if (noms.nom == nullptr) {
        const QString partielle = liste_.partielle ? u", "_s + ListePartielle : QString();
        titre_->setText(liste_.vide()
                            ? QString()
                            : u"%1 à %2 numéros"_s.arg(liste_.nombre()).arg(liste_.taille()) +
                                  partielle);
        return;
    }
    const QString nom = QString::fromUtf16(noms.nom);
    titre_->setText(liste_.vide() ? nom : u"%1 (%2 numéros)"_s.arg(nom).arg(liste_.taille()));
    intervalle_->setText(
        liste_.vide() ? vide
                      : u"%1 Tirages : [%2 - %3]"_s.arg(liste_.FinListe - liste_.DebutListe + 1)
                            .arg(liste_.DebutListe)
                            .arg(liste_.FinListe));
    for (QLabel* etiquette : {titre_, rang_, intervalle_})
        poserIndice(etiquette, etiquette->text());
}

void PanneauListe::direNombre(const Liste* montree) {
    const auto lignes = static_cast<std::uint64_t>(boite_->modele().rowCount());
    const std::uint64_t nombre = montree == nullptr ? 0 : std::max(montree->total, lignes);
    nombre_->setText(nombre > 0 ? QString::number(nombre)
                                : (noms.nom == nullptr ? QString() : ListeVide));
    QStringList etats, indices;
    if (montree != nullptr && montree->partielle) {
        etats << ListePartielle;
        indices << u"Liste partielle : le calcul a été arrêté avant la fin"_s;
    }
    if (montree != nullptr && montree->melangee) {
        etats << u"deux intervalles"_s;
        indices << u"L'adaptation a été arrêtée : une partie des combinaisons porte encore sur "
                   u"l'ancien intervalle"_s;
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
    if (indice_ != nullptr) indice_->setText(QString::number(ligne + 1));
    if (verrouille_) return;
    if (const auto choisie = boite_->modele().combinaison(ligne)) {
        Q_EMIT combinaisonChoisie(*choisie);
    }
}

}  // namespace norvane::ui
