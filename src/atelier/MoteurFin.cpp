// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the end of a worker leaves behind.
#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "comb/LigneCombinaison.h"
#include "comb/Reduction.h"
#include "Passage.h"

namespace norvane {

FinTraitement Moteur::TraitementTermine(Travail& travail) {
    FinTraitement fin;
    if (!passage_ || passage_->travail != &travail) return fin;
    travail.attendre();
    const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - passage_->debut;
    fin.secondes = duree.count();
    fin.arrete = travail.arrete();
    fin.message = travail.erreur();
    passage_->terminer(fin);
    passage_.reset();
    return fin;
}

void Moteur::finirExtremes(TRechercheExtremes& fil, FinTraitement& fin) {
    const int taille = fil.description.taille;
    const auto n = Indice(taille);
    EtatCombinaisons& etat = atelier_.combinaisons;
    Liste& liste = atelier_.ListeExtremes;
    const auto remplir = [&](std::span<const Combinaison> lignes) {
        montrer(ListeDeCombinaisons(taille, lignes), atelier_.occurrences.IntervalleInf,
                atelier_.occurrences.IntervalleSup);
        liste.secondes = fin.secondes;
    };
    if (!fin.message.empty() || fin.arrete || !fil.aTourne())
        etat.NbTiragesComb[n] = passage_->NbTiragesCombSauve;
    if (!fin.message.empty() || !fil.aTourne()) {
        liste = std::move(passage_->listeAvant);
        return;
    }
    if (fin.arrete) {  // the list as the worker left it
        auto& lignes = passage_->collecte->lignes;
        lignes.resize(std::min(lignes.size(), CapaciteListe));
        remplir(lignes);
        liste.partielle = true;
        return;
    }
    const Extremes& e = fil.resultat();
    etat.BorneInf[n] = e.BorneInf;
    etat.BorneSup[n] = e.BorneSup;
    const auto lignes = ReduireExtremes(*passage_->collecte, taille, e);
    remplir(lignes);
    fin.debordement = e.nombre > lignes.size();
    if (fin.debordement) liste.total = e.nombre;
    stocker(lignes, fin, taille);
}

void Moteur::stocker(std::span<const Combinaison> lignes, FinTraitement& fin, int taille) {
    const auto n = Indice(taille);
    EtatCombinaisons& etat = atelier_.combinaisons;
    const auto ecrite = EcrireListe(fichierListe(taille), lignes);
    if (!ecrite) {
        // The file does not hold what was counted: it must not be loaded for it.
        fin.message = ecrite.erreur();
        etat.NbTiragesComb[n] = passage_->NbTiragesCombSauve;
        return;
    }
    if (atelier_.series || atelier_.intervalleEntier()) etat.NbTiragesPerime[n].reset();
    if (atelier_.series || !atelier_.intervalleEntier()) return;
    const auto ecrit = EcrireCombCalc(etat, atelier_.Repertoire);
    if (!ecrit) fin.message = ecrit.erreur();
}

void Moteur::finirAvance(TCombNewSearch& fil, FinTraitement& fin) {
    const int taille = fil.description.taille;
    const auto n = Indice(taille);
    EtatCombinaisons& etat = atelier_.combinaisons;
    if (!fin.message.empty() || fin.arrete || !fil.complet) {
        atelier_.ListeExtremes = std::move(passage_->listeAvant);
        return;
    }
    if (fil.recompte) fin.secondes.reset();
    montrer(ListeDeCombinaisons(taille, fil.lignes), 1, atelier_.base.NbTirages);
    atelier_.ListeExtremes.secondes = fin.secondes;
    if (fil.change) {
        const auto ecrite =
            EcrireListe(atelier_.Repertoire / fmt::format("comb{}.dat", taille), fil.lignes);
        if (!ecrite) {
            fin.message = ecrite.erreur();
            return;
        }
    }
    etat.BorneInf[n] = fil.BorneInf;
    etat.BorneSup[n] = fil.BorneSup;
    etat.NbTiragesComb[n] = atelier_.base.NbTirages;
}

void Moteur::finirBornes(TRechercheBornes& fil, FinTraitement& fin) {
    PuitsListe& puits = *passage_->puitsListe;
    Liste& liste = atelier_.liste(fil.description.liste);
    if (!fin.message.empty() || !fil.aTourne()) {
        liste = std::move(puits.avant);
        return;
    }
    liste = std::move(puits.liste);
    liste.partielle = fin.arrete = !fil.complet();
    liste.secondes = fin.secondes;
}

}  // namespace norvane
