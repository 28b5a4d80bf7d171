// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/CommandesIntervalle.h"

#include "atelier/Intervalle.h"
#include "common/Contexte.h"
#include "dialogs/ChoixIntervalle.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

CommandesIntervalle::CommandesIntervalle(Contexte& ctx, const Moteur& moteur, QWidget* page)
    : QObject(page), contexte_(ctx), moteur_(moteur), page_(page) {}

void CommandesIntervalle::BitBtnWithColor4Click() {
    if (contexte_.refuserSiOccupe()) return;
    Atelier& a = contexte_.atelier;
    if (!IntervallePeutChanger(moteur_, a)) {
        contexte_.services.messages->MessageInfo(
            u"Il faut calculer toutes les bornes de l'intervalle global..."_s, u"Message"_s,
            u"Vous devez cliquer sur tous les boutons de COMB2 à COMB10 afin de calculer les "
            u"bornes et pouvoir effectuer un changement d'intervalle."_s);
        return;
    }
    TChoixIntervalle choix(contexte_, page_);
    if (choix.exec() != TChoixIntervalle::IntervalleChange) return;
    const auto fait = ChangerIntervalle(a, choix.inf(), choix.sup());
    a.modeListe = ModeListe::Extremes;
    contexte_.relais.annoncer({.intervalle = true, .listes = true});
    direErreur(fait);
    if (!a.ListeMemoire.vide()) proposerAdaptation();
}

void CommandesIntervalle::proposerAdaptation() {
    if (contexte_.services.messages->QuestionOuiNon(
            u"Le temps de calcul peut être long selon les paramètres en cours..."_s,
            u"Confirmation"_s,
            u"Adapter la liste en mémoire au nouvel intervalle ?"_s) == CodeBouton1) {
        Q_EMIT adaptationDemandee();
        return;
    }
    Vider(contexte_.atelier.ListeMemoire);
    contexte_.relais.annoncer({.listes = true});
}

void CommandesIntervalle::CheckBoxSeriesClick() {
    Atelier& a = contexte_.atelier;
    if (contexte_.refuserSiOccupe()) {
        contexte_.relais.annoncer({.listes = true});  // the box goes back to the state
        return;
    }
    Resultat<Rien> fait = Rien{};
    if (a.series) {
        fait = QuitterSeries(a);
    } else {
        EntrerSeries(a);
    }
    contexte_.relais.annoncer({.intervalle = true, .listes = true});
    direErreur(fait);
}

void CommandesIntervalle::direErreur(const Resultat<Rien>& fait) {
    if (!fait) {
        contexte_.services.messages->MessageAvertissement(versQt(fait.erreur()), u"Message"_s);
    }
}

}  // namespace norvane::ui
