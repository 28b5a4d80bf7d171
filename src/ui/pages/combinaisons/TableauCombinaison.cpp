// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/TableauCombinaison.h"

#include "common/Contexte.h"
#include "widgets/ColonnesStats.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
enum Colonne { Sortis, NbFois, Ratio, Date, Ecart, EcartMax, Suite, SuiteMax };
}  // namespace

TableauCombinaison::TableauCombinaison(const QString& nom, double echelle, QWidget* parent)
    : QObject(parent), vue(new VueTableau(ColonnesCombinaison(), 1, echelle, parent)) {
    vue->setObjectName(nom);
    vue->setAccessibleName(u"Statistiques de la combinaison choisie"_s);
    poserIndice(vue,
                u"Double cliquez sur une date, un écart ou une suite pour afficher "
                u"le tirage correspondant"_s);
    vue->modele().poserTriDepart({Sortis, false});
    vue->poserBulle([this](const QModelIndex& i) { return BulleRatio(*vue, i, Ratio); });
    // Room for the six rows of the larger sizes from the start.
    vue->reserverLignes(NbBoules + 1);
    connect(vue, &VueTableau::celluleActivee, this, &TableauCombinaison::activer);
}

void TableauCombinaison::montrer(std::vector<LigneStatsCombinaison> lignes, int inf, int sup,
                                 bool barres) {
    lignes_ = std::move(lignes);
    inf_ = inf;
    sup_ = sup;
    std::vector<LigneTableau> rangees;
    rangees.reserve(lignes_.size());
    for (const LigneStatsCombinaison& ligne : lignes_) {
        const ResultatStats& r = ligne.resultat;
        const int bruts[NbColonnesCombinaison] = {ligne.bons, ligne.NbFois, ligne.ratioGraphique,
                                                  ligne.date, r.Ecart,      r.EcartMax,
                                                  r.Suite,    r.SuiteMax};
        LigneTableau rangee(NbColonnesCombinaison);
        for (std::size_t c = 0; c < rangee.size(); ++c) {
            rangee[c].texte = ligne.cellules[c];
            rangee[c].brut = bruts[c];
        }
        rangee[Ratio] = CelluleRatio(ligne.cellules[Ratio], ligne.ratioGraphique, barres);
        rangees.push_back(std::move(rangee));
    }
    vue->remplir(std::move(rangees));
}

void TableauCombinaison::activer(const QModelIndex& index) {
    const LigneStatsCombinaison& ligne =
        lignes_[static_cast<std::size_t>(vue->modele().origine(index.row()))];
    const ResultatStats& r = ligne.resultat;
    int tirage = 0;
    switch (index.column()) {
        case Date:
        case Ecart:
            if (ligne.NbFois > 0) tirage = sup_ - r.Ecart;
            break;
        case EcartMax:
            if (r.NbEcartMax != 0) tirage = r.PosEcartMax;
            break;
        case SuiteMax:
            if (r.NbSuiteMax != 0) tirage = r.PosSuiteMax;
            break;
        default:
            break;
    }
    // A position before the interval is none.
    if (tirage >= inf_) Q_EMIT tirageDemande(tirage);
}

}  // namespace norvane::ui
