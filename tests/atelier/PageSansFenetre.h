// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The engine and the state that it conducts, as a page drives them.
#pragma once

#include <string>
#include <vector>

#include "atelier/Moteur.h"
#include "Dossier.h"

namespace norvane {

/// A page without a window: the state and the engine in a folder of their own.
struct Page {
    explicit Page(Base base, const Dossier* ailleurs = nullptr)
        : atelier((ailleurs != nullptr ? *ailleurs : dossier).chemin()) {
        atelier.base = std::move(base);
        (void)atelier.recalculer();
        moteur.threads = 2;
    }
    /// A click to its end, as the job service does it.
    FinTraitement cliquer(int taille, int inf = 0, int sup = 0) {
        auto reponse = moteur.Cliquer(taille, inf, sup);
        if (reponse.genre == ReponseClic::Genre::Lance) return mener(reponse);
        FinTraitement fin;
        fin.message = reponse.message;
        return fin;
    }
    FinTraitement mener(ReponseClic& reponse, bool arreter = false) {
        const Occupation occupation(atelier.activite, reponse.travail->description);
        reponse.travail->demarrer();
        if (arreter) reponse.travail->arreter();
        return moteur.TraitementTermine(*reponse.travail);
    }
    ReponseClic::Genre genre(int taille) { return moteur.Cliquer(taille).genre; }
    EtatCombinaisons& etat() { return atelier.combinaisons; }
    void intervalle(int inf, int sup) {
        ChangerIntervalle(atelier.base, atelier.occurrences, inf, sup);
    }
    /// As they are stored.
    std::vector<Combinaison> extremes() const {
        Liste liste = atelier.ListeExtremes;
        liste.ordre.clear();
        return Lignes(liste);
    }
    std::string bornes(int taille) const {
        const BornesAffichees b = moteur.AfficherBornes(taille);
        return b.calculee ? std::to_string(b.BorneInf) + ".." + std::to_string(b.BorneSup) : "NC";
    }
    static std::vector<Combinaison> Lignes(const Liste& liste) {
        std::vector<Combinaison> lignes;
        for (std::size_t l = 0; l < liste.nombre(); ++l) lignes.push_back(liste.combinaison(l));
        return lignes;
    }

    Dossier dossier;
    Atelier atelier;
    Moteur moteur{atelier};
};

}  // namespace norvane
