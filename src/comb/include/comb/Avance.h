// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The stored extremes of one size brought forward draw by draw.
#pragma once

#include <vector>

#include "comb/Combinaison.h"
#include "comb/Noyaux.h"
#include "comb/VaroFonc2.h"

namespace norvane {

/// Looks only at the combinations contained in a new draw, and counts everything again where that
/// cannot tell the new minimum. Shared state is left alone: whoever ends the worker takes the
/// results. The gauge counts the draws.
class TCombNewSearch : public TCombThread {
 public:
    /// `lignes`: the stored list, without marks; the state of the context: what it was made on.
    TCombNewSearch(const ContexteComb& contexte, Puits& puits, int taille,
                   std::vector<Combinaison> lignes);

    // After WaitFor, when `complet`.
    bool complet = false;
    bool change = false;  ///< lines were added or removed
    bool recompte = false;
    int BorneInf;
    int BorneSup;
    std::vector<Combinaison> lignes;

 protected:
    void Execute() override;

 private:
    bool coherente() const;
    bool avancer(int d);
    bool recompter(int d);
    int compter(Ensemble numeros) const;
    /// Lines of the combinations of draw d that reach the maximum or leave the minimum.
    void chercherDans(int d, bool minimum);
    void descendre(int d, std::size_t niveau, std::size_t place, bool minimum);
    void voir(std::size_t place, int c, int d, bool minimum);

    ContexteComb contexte_;
    int taille_;
    int dejaFaits_;
    std::vector<Combinaison> nouvelles_;
    std::array<std::size_t, NbBoules> choix_{};
    std::array<CompteursPlaces, NbBoules> LignesCommunes_{};
    std::array<ListesPlaces, NbBoules> TableauxCommuns_{};
};

}  // namespace norvane
