// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/TableauCombinaison.h"

#include "common/Contexte.h"
#include "widgets/ColonnesStats.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int Sortis = 0;  // columns
constexpr std::size_t Ratio = 2;
}  // namespace

TableauCombinaison::TableauCombinaison(const QString& nom, double echelle, QWidget* parent)
    : QObject(parent), vue(new VueTableau(colonnesCombinaison(), 1, echelle, parent)) {
    vue->setObjectName(nom);
    vue->setAccessibleName(u"Statistiques de la combinaison choisie"_s);
    poserIndice(vue,
                u"Double cliquez sur une date, un écart ou une suite pour afficher "
                u"le tirage correspondant"_s);
    vue->modele().poserTriDepart({Sortis, false});
    vue->poserBulle([this](const QModelIndex& i) { return bulleRatio(*vue, i); });
    // Room for the six rows of the larger sizes from the start.
    vue->reserverLignes(NbBoules + 1);
    connect(vue, &VueTableau::celluleActivee, this, &TableauCombinaison::activer);
}

void TableauCombinaison::montrer(const std::vector<LigneStatsCombinaison>& lignes, bool barres) {
    std::vector<LigneTableau> rangees;
    rangees.reserve(lignes.size());
    for (const LigneStatsCombinaison& ligne : lignes) {
        rangees.push_back(ligneTableau(ligne.cellules));
        rangees.back()[Sortis].indice =
            u"Double cliquez sur ce rang pour afficher l'historique correspondant..."_s;
        rangees.back()[Ratio] = celluleRatio(ligne.cellules[Ratio], barres);
    }
    vue->remplir(std::move(rangees));
}

void TableauCombinaison::activer(const QModelIndex& index) {
    const auto& cible = vue->modele().cellule(index).cible;
    if (!cible) {
        if (index.column() == Sortis) Q_EMIT rangAbsent();
        return;
    }
    if (const auto* tirage = std::get_if<NumeroTirage>(&*cible)) {
        Q_EMIT tirageDemande(tirage->numero);
    } else if (const auto* rang = std::get_if<RangTable>(&*cible)) {
        Q_EMIT rangDemande(rang->indice);
    }
}

}  // namespace norvane::ui
