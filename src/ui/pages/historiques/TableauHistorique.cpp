// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "historiques/TableauHistorique.h"

#include <QEvent>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/ColonnesStats.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

enum Degrade { Sortie, Numero, Chance };  // gradients

constexpr auto ColonneChance = static_cast<std::size_t>(ColonneHistorique::Chance);

/// By column: width in design units, the widest text, and what it holds.
struct Forme {
    double largeur;
    const char16_t* etalon;
    const char16_t* sens;
};
constexpr std::array<Forme, NbColonnesHistorique> Formes{
    {{68, u"00000", u"Numéro du tirage"},
     {108, u"00/00/0000", u"Date du tirage"},
     {50, u"00", u"Premier numéro"},
     {50, u"00", u"Deuxième numéro"},
     {50, u"00", u"Troisième numéro"},
     {50, u"00", u"Quatrième numéro"},
     {50, u"00", u"Cinquième numéro"},
     {50, u"00", u"Numéro Chance"},
     {64, u"00000", u"Tirages depuis la sortie précédente"},
     {58, u"00000", u"Sorties de suite"},
     {58, u"000", u"Somme des cinq numéros et de la chance"}}};

std::vector<ColonneTableau> colonnesHistorique() {
    std::vector<ColonneTableau> colonnes;
    for (std::size_t c = 0; c < Formes.size(); ++c) {
        const EnteteHistorique& entete = EntetesHistorique()[c];
        ColonneTableau colonne;
        colonne.entete = QString::fromUtf8(entete.texte);
        colonne.indice = QString::fromUtf16(Formes[c].sens) +
                         u": cliquez pour trier (SHIFT+CLIC=tri secondaire)"_s;
        colonne.largeur = Formes[c].largeur;
        colonne.etalon = QString::fromUtf16(Formes[c].etalon);
        colonne.nature = entete.nature;
        if (c == ColonneChance) colonne.image = imageChance();
        colonnes.push_back(std::move(colonne));
    }
    return colonnes;
}

}  // namespace

TableauHistorique::TableauHistorique(double echelle, QWidget* parent)
    : QObject(parent), vue(new VueTableau(colonnesHistorique(), 2, echelle, parent)) {
    vue->setObjectName(u"AdvStringGrid3"_s);
    vue->setAccessibleName(u"Historique"_s);
    poserIndice(vue, u"Double cliquez sur une ligne pour afficher le tirage correspondant"_s);
    vue->modele().sansTriDepart();
    vue->installEventFilter(this);
    poserCouleurs();
}

void TableauHistorique::poserCouleurs() {
    const bool sombre = estSombre(vue->palette());
    const QColor fond = sombre ? QColor(0x2B, 0x37, 0x55) : QColor(0xDD, 0xE8, 0xFE);
    vue->modele().poserDegrades({{fond, fond, vue->palette().color(QPalette::Text), true},
                                 degradesStats(GenreStats::Numeros)[1],
                                 degradesStats(GenreStats::Chances)[1]});
    vue->viewport()->update();
}

bool TableauHistorique::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::PaletteChange) poserCouleurs();
    return QObject::eventFilter(objet, evenement);
}

void TableauHistorique::montrer(const Historique& historique, VueHistorique choix) {
    std::vector<LigneTableau> lignes;
    for (const RangeeHistorique& rangee : Rangees(historique, choix)) {
        LigneTableau& ligne = lignes.emplace_back();
        ligne.reserve(rangee.size());
        for (std::size_t c = 0; c < rangee.size(); ++c) {
            const TeinteHistorique teinte = rangee[c].teinte;
            const int degrade = teinte == TeinteHistorique::Ordinaire ? -1
                                : teinte == TeinteHistorique::Sortie  ? Sortie
                                : c == ColonneChance                  ? Chance
                                                                      : Numero;
            ligne.push_back({rangee[c], {}, degrade, {}});
        }
    }
    vue->remplir(std::move(lignes));
}

void TableauHistorique::choisir(int numero) {
    const ModeleTableau& modele = vue->modele();
    for (int l = 0; l < modele.rowCount(); ++l) {
        const QModelIndex place = modele.index(l, 0);
        if (modele.cellule(place).cle != numero) continue;
        vue->setCurrentIndex(place);
        vue->scrollTo(place, VueTableau::PositionAtCenter);
        return;
    }
}

}  // namespace norvane::ui
