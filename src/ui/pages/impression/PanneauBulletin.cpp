// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/PanneauBulletin.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

#include "base/Textes.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "impression/CommandesBulletins.h"
#include "impression/ListeCoches.h"
#include "impression/VueGrille.h"
#include "slips/PrixBulletins.h"
#include "widgets/ChampNumero.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PanneauBulletin::PanneauBulletin(CommandesBulletins& commandes, QString symbole, QWidget* parent)
    : QWidget(parent), commandes_(commandes), symbole_(std::move(symbole)) {
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addLayout(creerTete());
    auto* grilles = new QHBoxLayout;
    grilles->setSpacing(Unite);
    for (int j = 0; j < GrillesParBulletin; ++j) grilles->addLayout(creerPlace(j), 1);
    pile->addLayout(grilles, 1);
}

QLayout* PanneauBulletin::creerTete() {
    numero_ = new ChampNumero(u"Edit23"_s, this);
    numero_->setAccessibleName(u"Bull N°"_s);
    numero_->setFixedWidth(numero_->fontMetrics().horizontalAdvance(u"00000"_s) + 3 * Unite);
    fleches_ = new HautBas(u"UpDownBulletin"_s, this);
    for (QWidget* w : {static_cast<QWidget*>(numero_), static_cast<QWidget*>(fleches_)})
        poserIndice(w, u"Sélection de bulletins par numéro"_s);
    nombre_ = legende({}, this);
    nombre_->setObjectName(u"LabelNombreBulletins"_s);
    prix_ = valeur(u"LabelPrixBulletin"_s, u"Prix du bulletin"_s, this);
    ecrireNumero();
    connect(numero_, &QLineEdit::editingFinished, this, &PanneauBulletin::ecrireNumero);
    connect(numero_, &QLineEdit::textChanged, this, &PanneauBulletin::surSaisie);
    const auto deplacer = [this](int pas) { commandes_.aller(commandes_.etat().bulletin + pas); };
    connect(numero_, &ChampNumero::deplacement, this, deplacer);
    connect(fleches_, &HautBas::deplacement, this, deplacer);
    connect(numero_, &ChampNumero::extremite, this,
            [this](bool dernier) { commandes_.aller(dernier ? commandes_.nombre() : 1); });
    auto* tete = rangee({new QLabel(u"Bull N°"_s, this), numero_, fleches_, nombre_});
    tete->addStretch(1);
    tete->addWidget(legende(u"Prix du bulletin"_s, this));
    tete->addSpacing(Unite);
    tete->addWidget(prix_);
    return tete;
}

QLayout* PanneauBulletin::creerPlace(int j) {
    PlaceGrille& place = places_[static_cast<std::size_t>(j)];
    place.vue = new VueGrille(j + 1, this);
    place.second =
        new ListeCoches(u"RxCheckListBox2ND%1"_s.arg(j + 1),
                        u"Option 2nd Tirage de la grille %1"_s.arg(j + 1), {u"2ND TIRAGE"_s}, this);
    place.prix = new QLabel(this);
    place.prix->setObjectName(u"LabelPrixGrille%1"_s.arg(j + 1));
    place.prix->setAccessibleName(u"Prix de la grille %1"_s.arg(j + 1));
    place.prix->setAlignment(Qt::AlignCenter);
    connect(place.second, &ListeCoches::StateChange, this,
            [this, j](int, bool coche) { commandes_.cocher2ND(j, coche); });
    auto* pile = new QVBoxLayout;
    pile->setSpacing(2);
    pile->addWidget(place.vue, 1);
    pile->addWidget(place.second, 0, Qt::AlignHCenter);
    pile->addWidget(place.prix);
    return pile;
}

void PanneauBulletin::surSaisie() {
    const QString texte = numero_->text();
    commandes_.aller(texte.isEmpty() ? 1 : texte.toInt());
}

void PanneauBulletin::ecrireNumero() {
    const int bulletin = commandes_.etat().bulletin;
    if (numero_->text().toInt() == bulletin) return;
    const QSignalBlocker muet(numero_);
    numero_->setText(QString::number(bulletin));
}

void PanneauBulletin::montrer() {
    const EtatBulletins& etat = commandes_.etat();
    const int nombre = commandes_.nombre();
    // An empty field counts as 1, and stays empty for what is about to be typed.
    if (!(numero_->text().isEmpty() && etat.bulletin == 1)) ecrireNumero();
    nombre_->setText(nombre == 0 ? u"aucune grille : pas de bulletin"_s
                                 : u"sur %1"_s.arg(versQt(FormaterCompte(nombre))));
    const auto siennes = GrillesDuBulletin(commandes_.grilles(), etat.bulletin);
    for (int j = 0; j < GrillesParBulletin; ++j) {
        const auto k = static_cast<std::size_t>(j);
        montrerPlace(j, k < siennes.size() ? &siennes[k] : nullptr);
    }
    const auto lignes =
        PrixBulletins(commandes_.grilles(), etat.options, etat.bulletin, etat.bulletin);
    prix_->setText(versQt(FormaterMontant(PrixTotal(lignes))) + u' ' + symbole_);
}

void PanneauBulletin::montrerPlace(int j, const Grille* grille) {
    const PlaceGrille& place = places_[static_cast<std::size_t>(j)];
    place.vue->montrer(grille, commandes_.etat().marque);
    const bool second = grille != nullptr && ParticipeAu2ndTirage(*grille);
    place.second->montrer([&](int) { return second; });
    place.second->setEnabled(grille != nullptr);
    place.prix->setText(
        grille == nullptr ? QString() : versQt(FormaterMontant(grille->mise)) + u' ' + symbole_);
}

QList<QWidget*> PanneauBulletin::ordreTabulation() const {
    QList<QWidget*> ordre = {numero_};
    for (const PlaceGrille& place : places_) ordre << place.second;
    return ordre;
}

}  // namespace norvane::ui
