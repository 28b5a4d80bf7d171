// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The searches for extremes as plain functions, for the workers and for whoever is on one already.
#pragma once

#include <memory>
#include <mutex>
#include <stop_token>
#include <vector>

#include "comb/GrandesTailles.h"
#include "comb/VaroFonc2.h"

namespace norvane {

/// Runs the search for the extremes of `taille` over the interval of the context into `puits`.
/// Lines: the maximum alone; records: the minimum as well for sizes 2 and 3.
Extremes ChercherExtremes(const ContexteComb& contexte, int taille, SortieExtremes sortie,
                          Puits& puits, const std::stop_token& arret);

/// The records of the interval.
inline std::span<const Tirage> TiragesIntervalle(const ContexteComb& c) {
    return c.base.enUsage().subspan(static_cast<std::size_t>(c.IntervalleInf - 1),
                                    static_cast<std::size_t>(c.taille()));
}

/// The numbers of each record of the interval as a set.
std::vector<Masque> MasquesIntervalle(const ContexteComb& contexte);

/// Tells whether a draw counts for a combination: it holds all of its numbers, or lies in it from
/// size 6 on.
inline bool Compte(Masque tirage, Masque combinaison, int taille) {
    return taille <= NbBoules ? (tirage & combinaison) == combinaison
                              : (tirage & combinaison) == tirage;
}

/// The gauge told from several threads: to the sink one call at a time, never backwards. Copies
/// share one state.
class JaugePartagee {
 public:
    explicit JaugePartagee(Puits& puits, void (Puits::*dire)(int) = &Puits::SetProgress)
        : etat_(std::make_shared<Etat>(puits, dire)) {}
    void operator()(int valeur) const {
        const std::lock_guard garde(etat_->verrou);
        if (valeur <= etat_->derniere) return;
        etat_->derniere = valeur;
        (etat_->puits.*etat_->dire)(valeur);
    }

 private:
    struct Etat {
        Etat(Puits& p, void (Puits::*d)(int)) : puits(p), dire(d) {}
        Puits& puits;
        void (Puits::*const dire)(int);
        std::mutex verrou;
        int derniere = -1;
    };
    std::shared_ptr<Etat> etat_;
};

/// Threads that a search may use.
inline unsigned NombreFils(const ContexteComb& contexte) {
    return contexte.threads != 0 ? contexte.threads : NombreCoeurs();
}

}  // namespace norvane
