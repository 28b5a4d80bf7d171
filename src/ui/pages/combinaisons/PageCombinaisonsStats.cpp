// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The combination of the line that was clicked.

#include <QCheckBox>
#include <QLabel>

#include "combinaisons/PageCombinaisons.h"
#include "widgets/ColonnesStats.h"
#include "widgets/ListeCombinaisons.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
enum Colonne { Sortis, NbFois, Ratio, Date, Ecart, EcartMax, Suite, SuiteMax };
}  // namespace

void PageCombinaisons::ListBoxClick(int place) {
    RxLabelIndice->setText(QString::number(place + 1));
    auto lue = LireLigneCombinaison(ListBox->modele().texte(place));
    if (!lue) return;
    combinaison_ = std::move(lue->numeros);
    afficherCombinaison();
}

void PageCombinaisons::afficherCombinaison() {
    const Atelier& a = contexte.atelier;
    if (combinaison_.empty() || a.base.NbTirages < 1) {
        libelle_->clear();
        stats_.clear();
        AdvStringGrid2->remplir({});
        return;
    }
    libelle_->setText(versQt(LibelleCombinaison(combinaison_)));
    stats_ = StatsCombinaison(a.base, a.occurrences, combinaison_, a.occurrences.IntervalleInf,
                              a.occurrences.IntervalleSup);
    std::vector<LigneTableau> rangees;
    rangees.reserve(stats_.size());
    for (const LigneStatsCombinaison& ligne : stats_) {
        const ResultatStats& r = ligne.resultat;
        const int bruts[NbColonnesCombinaison] = {ligne.bons, ligne.NbFois, ligne.ratioGraphique,
                                                  ligne.date, r.Ecart,      r.EcartMax,
                                                  r.Suite,    r.SuiteMax};
        LigneTableau rangee(NbColonnesCombinaison);
        for (std::size_t c = 0; c < rangee.size(); ++c) {
            rangee[c].texte = ligne.cellules[c];
            rangee[c].brut = bruts[c];
        }
        rangee[Ratio] =
            CelluleRatio(ligne.cellules[Ratio], ligne.ratioGraphique, CheckBoxRN->isChecked());
        rangees.push_back(std::move(rangee));
    }
    AdvStringGrid2->remplir(std::move(rangees));
}

void PageCombinaisons::surActivation(const QModelIndex& index) {
    const ModeleTableau& modele = AdvStringGrid2->modele();
    const LigneStatsCombinaison& ligne =
        stats_[static_cast<std::size_t>(modele.origine(index.row()))];
    const Occurrences& occ = contexte.atelier.occurrences;
    int tirage = 0;
    switch (index.column()) {
        case Date:
        case Ecart:
            if (ligne.NbFois > 0) tirage = occ.IntervalleSup - ligne.resultat.Ecart;
            break;
        case EcartMax:
        case SuiteMax:
            tirage = TirageMaximum(modele.texte(index), occ.IntervalleInf);
            break;
        default:
            break;
    }
    if (tirage < 1 || tirage > contexte.atelier.base.NbTirages) return;
    contexte.relais.aller(VersTirage{tirage, {}});
}

void PageCombinaisons::ButtonPositionClick() {
    if (contexte.refuserSiOccupe()) return;
    std::optional<std::size_t> place;
    if (static_cast<int>(combinaison_.size()) == moteur_->TailleCombListe) {
        place = ChercherCombinaison(moteur_->ListeMemoire, combinaison_);
    }
    contexte.services.messages->MessageInfo(
        place ? u"Position dans la liste en mémoire :\n\nIndice :    %1   !! \n\n"_s.arg(*place + 1)
              : u"Cette combinaison n'est pas en mémoire..."_s,
        u"Message"_s);
}

}  // namespace norvane::ui
