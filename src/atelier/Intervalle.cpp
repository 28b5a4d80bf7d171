// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/Intervalle.h"

#include "atelier/Selections.h"

namespace norvane {

namespace {

constexpr int JamaisCalcule = -10;  // no interval has that many draws

EtatMoteur EtatPresent(const Atelier& atelier) {
    const Occurrences& occ = atelier.occurrences;
    return {occ.IntervalleInf, occ.IntervalleSup, atelier.combinaisons};
}

bool MemeIntervalle(const EtatMoteur& etat, const Occurrences& occ) {
    return etat.IntervalleInf == occ.IntervalleInf && etat.IntervalleSup == occ.IntervalleSup;
}

/// The bounds set aside where they are those of the interval in force.
void Reprendre(Atelier& atelier, const EtatMoteur& garde) {
    atelier.combinaisons = MemeIntervalle(garde, atelier.occurrences)
                               ? garde.combinaisons
                               : EtatNeutre(atelier.tailleIntervalle(), atelier.series);
}

/// Between both modes no list can stay.
void ViderListes(Atelier& atelier) {
    Vider(atelier.ListeMemoire);
    Vider(atelier.ListeExtremes);
    atelier.modeListe = ModeListe::Extremes;
}

}  // namespace

EtatCombinaisons EtatNeutre(int tailleIntervalle, bool series) {
    EtatCombinaisons etat;
    for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille) {
        const auto n = static_cast<std::size_t>(taille);
        const bool grande = taille > NbBoules;
        etat.NbTiragesComb[n] = grande ? tailleIntervalle : JamaisCalcule;
        if (grande) etat.NbTiragesPerime[n] = 0;  // read as current, though nothing was counted
        if (!series && !grande) etat.BorneSup[n] = taille <= 3 ? 2 : 1;
    }
    return etat;
}

Resultat<Rien> VerifierIntervalle(const Base& base, int debut, int fin) {
    if (debut >= 1 && debut <= fin && fin <= base.NbTirages) return Rien{};
    return Erreur{"L'intervalle est inexact, il doit contenir 1 Tirage au moins..."};
}

bool IntervallePeutChanger(const Moteur& moteur, const Atelier& atelier) {
    if (!atelier.intervalleEntier()) return true;
    for (int taille = TailleCombMin; taille <= NbBoules; ++taille)
        if (!moteur.AfficherBornes(taille).calculee) return false;
    return true;
}

Resultat<Rien> ChangerIntervalle(Atelier& atelier, int debut, int fin) {
    Occurrences& occ = atelier.occurrences;
    if (debut == occ.IntervalleInf && fin == occ.IntervalleSup) return Rien{};
    if (auto juste = VerifierIntervalle(atelier.base, debut, fin); !juste) return juste;
    ChangerIntervalle(atelier.base, occ, debut, fin);
    Vider(atelier.ListeExtremes);
    atelier.triEcartAvance.actif = false;
    RevaliderSelection(atelier);
    if (atelier.intervalleEntier() && !atelier.series) return atelier.relireEtat();
    atelier.combinaisons = EtatNeutre(atelier.tailleIntervalle(), atelier.series);
    return Rien{};
}

void EntrerSeries(Atelier& atelier) {
    atelier.EtatNormal = EtatPresent(atelier);
    atelier.series = true;
    ViderListes(atelier);
    Reprendre(atelier, atelier.EtatSeries);
    // A grid being edited that could be accepted is what comes back; another one is given up.
    RevaliderSelection(atelier);
    atelier.SelectionGardee = atelier.grilleSelection;
    (void)ValiderSelection(atelier, {});
}

Resultat<Rien> QuitterSeries(Atelier& atelier) {
    atelier.EtatSeries = EtatPresent(atelier);
    atelier.series = false;
    ViderListes(atelier);
    (void)ValiderSelection(atelier, atelier.SelectionGardee);
    if (atelier.intervalleEntier()) return atelier.relireEtat();
    Reprendre(atelier, atelier.EtatNormal);
    return Rien{};
}

}  // namespace norvane
