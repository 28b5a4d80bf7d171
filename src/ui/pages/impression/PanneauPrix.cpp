// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/PanneauPrix.h"

#include <cmath>
#include <QHBoxLayout>
#include <QLabel>

#include "base/Textes.h"
#include "common/Contexte.h"
#include "impression/CommandesBulletins.h"
#include "widgets/Fiche.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int LignesVues = 4;
constexpr double CentimesParEuro = 100;

std::vector<ColonneTableau> colonnes() {
    struct Colonne {
        const char16_t *entete, *indice, *etalon;
        double largeur;
    };
    static constexpr std::array<Colonne, 8> modele = {
        {{u"Bull N°", u"Numéro du bulletin", u"0000", 44},
         {u"Grilles", u"Grilles que le jeu vend", u"6", 44},
         {u"Mises", u"Mises des grilles, sans option", u"1 000,00", 66},
         {u"2nd Tirage", u"Option 2nd Tirage des grilles", u"1 000,00", 66},
         {u"Joker+", u"Les deux numéros Joker+", u"10,00", 56},
         {u"Jours", u"Tirages par semaine", u"3", 44},
         {u"Semaines", u"Semaines de l'abonnement", u"5", 56},
         {u"Total", u"Prix du bulletin", u"10 000,00 €", 80}}};
    std::vector<ColonneTableau> colonnes;
    for (const Colonne& m : modele) {
        ColonneTableau& c = colonnes.emplace_back();
        c.entete = QString::fromUtf16(m.entete);
        c.indice = QString::fromUtf16(m.indice);
        c.etalon = QString::fromUtf16(m.etalon);
        c.largeur = m.largeur;
        c.alignement = Qt::AlignRight;
    }
    colonnes.back().gras = true;
    return colonnes;
}

CelluleTableau compte(int n) {
    CelluleTableau cellule;
    cellule.texte = std::to_string(n);
    cellule.cle = n;
    return cellule;
}

/// An amount that is none is left blank.
CelluleTableau montant(double euros) {
    CelluleTableau cellule;
    if (euros != 0) cellule.texte = FormaterMontant(euros);
    cellule.cle = std::llround(euros * CentimesParEuro);
    return cellule;
}

LigneTableau ligne(const PrixBulletin& prix, const QString& symbole) {
    LigneTableau cellules = {compte(prix.bulletin), compte(prix.grilles), montant(prix.mises),
                             montant(prix.second),  montant(prix.jokers), compte(prix.jours),
                             compte(prix.semaines), montant(prix.total)};
    if (prix.nonVendues > 0) {
        cellules[1].texte += " (+" + std::to_string(prix.nonVendues) + ")";
        cellules[1].indice = u"%1 grille(s) que le jeu ne vend pas"_s.arg(prix.nonVendues);
    }
    cellules.back().texte = FormaterMontant(prix.total) + " " + symbole.toStdString();
    return cellules;
}

}  // namespace

PanneauPrix::PanneauPrix(CommandesBulletins& commandes, const Contexte& contexte, QWidget* parent)
    : QWidget(parent),
      commandes_(commandes),
      symbole_(versQt(contexte.atelier.configuration.reglages.SymboleMonnaie)),
      titre_(legende({}, this)),
      total_(valeur(u"LabelPrixTotal"_s, u"Prix total des bulletins à imprimer"_s, this)),
      table_(new VueTableau(colonnes(), 0, contexte.Echelle, this)) {
    titre_->setObjectName(u"LabelPrixTitre"_s);
    table_->setObjectName(u"TablePrix"_s);
    table_->setAccessibleName(u"Prix des bulletins à imprimer"_s);
    table_->modele().poserTriDepart({0, true});
    table_->reserverLignes(LignesVues);
    auto* tete = rangee({titre_, total_});
    tete->setStretch(0, 1);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->addLayout(tete);
    pile->addWidget(table_);
    remplir();
}

QWidget* PanneauPrix::table() const {
    return table_;
}

void PanneauPrix::montrer() {
    const PlageBulletins plage = commandes_.etat().aImprimer(commandes_.nombre());
    auto lignes =
        PrixBulletins(commandes_.grilles(), commandes_.etat().options, plage.du, plage.au);
    if (lignes == lignes_) return;
    lignes_ = std::move(lignes);
    remplir();
}

void PanneauPrix::remplir() {
    std::vector<LigneTableau> rangees;
    int nonVendues = 0;
    for (const PrixBulletin& prix : lignes_) {
        rangees.push_back(ligne(prix, symbole_));
        nonVendues += prix.nonVendues;
    }
    table_->remplir(std::move(rangees));
    QString titre = u"Prix des bulletins à imprimer"_s;
    if (nonVendues > 0) titre += u" · %1 grille(s) que le jeu ne vend pas"_s.arg(nonVendues);
    titre_->setText(titre);
    total_->setText(u"Total : %1 %2"_s.arg(versQt(FormaterMontant(PrixTotal(lignes_))), symbole_));
}

}  // namespace norvane::ui
