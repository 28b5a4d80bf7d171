// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the end of a worker leaves behind.
#include <fmt/format.h>

#include <algorithm>

#include "Avance.h"
#include "base/Textes.h"
#include "comb/Moteur.h"
#include "comb/Reduction.h"

namespace norvane {

namespace {

std::size_t Indice(int n) {
    return static_cast<std::size_t>(n);
}

}  // namespace

FinTraitement Moteur::TraitementTermine() {
    FinTraitement fin;
    if (!fil_) return fin;
    fil_->WaitFor();
    --traitements_;
    const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - debut_;
    fin.taille = taille_;
    fin.temps = "Temps de calcul : " + FormaterDecimal(duree.count(), 1);
    fin.arrete = fil_->Terminated();
    fin.message = fil_->erreur();
    terminer_(fin);
    taille_ = 0;
    terminer_ = nullptr;
    fil_.reset();
    collecte_.vider();
    lignesAvant_ = {};
    return fin;
}

void Moteur::finirExtremes(const TRechercheExtremes& fil, FinTraitement& fin) {
    const auto n = Indice(fin.taille);
    if (!fin.message.empty()) {
        etat_.NbTiragesComb[n] = NbTiragesCombSauve;
        lignes = std::move(lignesAvant_);
        nombreLignes = nombreAvant_;
        return;
    }
    if (fin.arrete) {  // the list box as the worker left it
        lignes = std::move(collecte_.lignes);
        lignes.resize(std::min(lignes.size(), CapaciteListe));
        nombreLignes = lignes.size();
        return;
    }
    const Extremes& e = fil.resultat();
    etat_.BorneInf[n] = e.BorneInf;
    etat_.BorneSup[n] = e.BorneSup;
    lignes = ReduireExtremes(collecte_, fin.taille, e);
    nombreLignes = e.nombre;
    fin.debordement = e.nombre > lignes.size();
    stocker(fin);
}

void Moteur::stocker(FinTraitement& fin) {
    const auto n = Indice(fin.taille);
    const auto ecrite = EcrireListe(fichierListe(fin.taille), lignes);
    if (!ecrite) {
        // The file does not hold what was counted: it must not be loaded for it.
        fin.message = ecrite.erreur();
        etat_.NbTiragesComb[n] = NbTiragesCombSauve;
        return;
    }
    if (series || !intervalleEntier()) return;
    etat_.NbTiragesPerime[n].reset();
    const auto etat = EcrireCombCalc(etat_, repertoire_);
    if (!etat) fin.message = etat.erreur();
}

void Moteur::finirAvance(TCombNewSearch& fil, FinTraitement& fin) {
    const auto n = Indice(fin.taille);
    if (!fin.message.empty() || fin.arrete || !fil.complet) {
        lignes = std::move(lignesAvant_);
        nombreLignes = nombreAvant_;
        return;
    }
    lignes = std::move(fil.lignes);
    nombreLignes = lignes.size();
    if (fil.change) {
        const auto ecrite =
            EcrireListe(repertoire_ / fmt::format("comb{}.dat", fin.taille), lignes);
        if (!ecrite) {
            fin.message = ecrite.erreur();
            return;
        }
    }
    etat_.BorneInf[n] = fil.BorneInf;
    etat_.BorneSup[n] = fil.BorneSup;
    etat_.NbTiragesComb[n] = base_.NbTirages;
    if (fil.recompte) fin.temps.clear();
}

void Moteur::finirBornes(const TRechercheBornes& fil, FinTraitement& fin) {
    if (!fin.message.empty()) return;
    ListeMemoire = {fil.disposition(), std::move(collecte_.mots)};
    TailleCombListe = fin.taille;
    DebutListe = occ_.IntervalleInf;
    FinListe = occ_.IntervalleSup;
}

}  // namespace norvane
