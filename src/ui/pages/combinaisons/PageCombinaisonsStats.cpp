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
constexpr std::size_t Ratio = 2;  // column of AdvStringGrid2
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
        rangees.push_back(ligneTableau(ligne.cellules));
        rangees.back()[Ratio] = celluleRatio(ligne.cellules[Ratio], CheckBoxRN->isChecked());
    }
    AdvStringGrid2->remplir(std::move(rangees));
}

void PageCombinaisons::surActivation(const QModelIndex& index) {
    const auto& cible = AdvStringGrid2->modele().cellule(index).cible;
    if (!cible) return;
    if (const auto* tirage = std::get_if<NumeroTirage>(&*cible)) {
        contexte.relais.aller(VersTirage{tirage->numero, {}});
    }
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
