// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/TableauCombinaison.h"

#include "common/Contexte.h"
#include "widgets/ColonnesStats.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int Sortis = 0;  // columns
constexpr std::size_t Ratio = 2;
}  // namespace

TableauCombinaison::TableauCombinaison(const QString& nom, std::vector<ColonneTableau> colonnes,
                                       int lignes, double echelle, QWidget* parent)
    : QObject(parent), vue(new VueTableau(std::move(colonnes), 1, echelle, parent)) {
    vue->setObjectName(nom);
    vue->setAccessibleName(u"Statistiques de la combinaison choisie"_s);
    poserIndice(vue,
                u"Double cliquez sur une date, un écart ou une suite pour afficher "
                u"le tirage correspondant"_s);
    vue->modele().poserTriDepart({Sortis, false});
    vue->poserBulle([this](const QModelIndex& i) { return bulleRatio(*vue, i); });
    vue->reserverLignes(lignes);
    connect(vue, &VueTableau::celluleActivee, this, &TableauCombinaison::activer);
}

void TableauCombinaison::montrer(std::vector<LigneTableau> lignes, bool barres) {
    for (LigneTableau& ligne : lignes) {
        ligne[Sortis].indice =
            u"Double cliquez sur ce rang pour afficher l'historique correspondant..."_s;
        ligne[Ratio] = celluleRatio(ligne[Ratio], barres);
    }
    vue->remplir(std::move(lignes));
}

void TableauCombinaison::activer(const QModelIndex& index) {
    const auto& cible = vue->modele().cellule(index).cible;
    if (!cible) return;
    if (const auto* tirage = std::get_if<NumeroTirage>(&*cible)) {
        Q_EMIT tirageDemande(tirage->numero);
    } else if (const auto* rang = std::get_if<RangTable>(&*cible)) {
        Q_EMIT rangDemande(rang->indice);
    }
}

}  // namespace norvane::ui
