// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combinations by their definition: every choice written out and held against every draw, and
// records put together word by word.
#pragma once

#include <map>
#include <numeric>
#include <set>

#include "BasesEssai.h"
#include "comb/Collecte.h"
#include "comb/VaroFonc2.h"
#include "OracleStats.h"

namespace norvane {

using NumerosChoisis = std::vector<int>;

inline NumerosChoisis TousLesNumeros(int dernier = NumeroMax) {
    NumerosChoisis tous(static_cast<std::size_t>(dernier));
    std::iota(tous.begin(), tous.end(), 1);
    return tous;
}

/// True for the draws that count: all numbers came out, or from size 6 on all five lie in it.
inline bool Tient(const Tirage& t, const NumerosChoisis& c) {
    return c.size() <= 5 ? std::includes(t.Numeros, t.Numeros + NbBoules, c.begin(), c.end())
                         : std::includes(c.begin(), c.end(), t.Numeros, t.Numeros + NbBoules);
}

inline Presences PresencesCombinaison(const Base& base, const NumerosChoisis& c) {
    Presences presences;
    for (const Tirage& t : base.enUsage()) presences.push_back(Tient(t, c));
    return presences;
}

inline int CompterSorties(const Base& base, const NumerosChoisis& c, int inf, int sup) {
    int n = 0;
    for (int d = inf - 1; d < sup; ++d) n += Tient(base.Tirages[static_cast<std::size_t>(d)], c);
    return n;
}

/// `fixes` and every choice of `k` numbers of `reserve`, in lexicographic order.
inline std::set<NumerosChoisis> Choix(const NumerosChoisis& fixes, const NumerosChoisis& reserve,
                                      int k) {
    std::set<NumerosChoisis> choix;
    std::vector<bool> pris(reserve.size());
    if (k > static_cast<int>(reserve.size())) return choix;
    std::fill_n(pris.begin(), k, true);
    do {
        NumerosChoisis c = fixes;
        for (std::size_t i = 0; i < reserve.size(); ++i)
            if (pris[i]) c.push_back(reserve[i]);
        std::sort(c.begin(), c.end());
        choix.insert(c);
    } while (std::prev_permutation(pris.begin(), pris.end()));
    return choix;
}

inline std::set<NumerosChoisis> Series(int taille) {
    std::set<NumerosChoisis> series;
    for (int a = 1; a + taille - 1 <= NumeroMax; ++a) {
        NumerosChoisis serie(static_cast<std::size_t>(taille));
        std::iota(serie.begin(), serie.end(), a);
        series.insert(serie);
    }
    return series;
}

/// The record of a combination over draws inf..sup.
inline std::vector<Mot> Enregistrer(const Base& base, const NumerosChoisis& c, ModeStockage mode,
                                    int inf, int sup) {
    const ResultatStats r = OracleStats(PresencesCombinaison(base, c), inf - 1, sup - 1);
    const std::vector<Mot> premier = {static_cast<Mot>(r.Sorties), r.Ecart, r.EcartMax, r.Suite,
                                      r.SuiteMax};
    const int taille = static_cast<int>(c.size());
    const int bons = std::min(taille, 5);
    const int blocs[] = {1, bons - 1, taille + 1};
    const int place[] = {0, bons - 2, bons};
    std::vector<Mot> mots;
    for (int b = 0; b < blocs[static_cast<int>(mode)]; ++b) {
        const std::vector<Mot> bloc = b == place[static_cast<int>(mode)]
                                          ? premier
                                          : std::vector<Mot>{0, RangNonCalcule, 0, 0, 0};
        mots.insert(mots.end(), bloc.begin(), bloc.end());
    }
    mots.insert(mots.end(), c.begin(), c.end());
    return mots;
}

/// Counts of all combinations of `taille` (up to 5) numbers that came out: the simple way over a
/// large base.
inline std::map<NumerosChoisis, int> TableDesComptes(const Base& base, int taille, int inf,
                                                     int sup) {
    std::map<NumerosChoisis, int> comptes;
    for (int d = inf - 1; d < sup; ++d) {
        const auto& numeros = base.Tirages[static_cast<std::size_t>(d)].Numeros;
        for (const auto& c : Choix({}, {numeros, numeros + NbBoules}, taille)) ++comptes[c];
    }
    return comptes;
}

/// A base with its structures and the context of a search.
struct Etabli {
    Base base;
    Occurrences occ;
    EtatCombinaisons etat;
    Selection selection;

    explicit Etabli(Base b) : base(std::move(b)) { ConstruireOccurrences(base, occ); }

    void intervalle(int inf, int sup) { ChangerIntervalle(base, occ, inf, sup); }
    ContexteComb contexte(ModeStockage mode = ModeStockage::PremierRang,
                          bool series = false) const {
        return {.base = base,
                .occurrences = occ,
                .etat = etat,
                .selection = selection,
                .IntervalleInf = occ.IntervalleInf,
                .IntervalleSup = occ.IntervalleSup,
                .series = series,
                .mode = mode,
                .threads = 2};
    }
    void choisir(const NumerosChoisis& absolus, const NumerosChoisis& secondaires) {
        GrilleSelection grille{};
        for (const int n : secondaires)
            grille[static_cast<std::size_t>(n - 1)] = Priorite::Secondaire;
        for (const int n : absolus) grille[static_cast<std::size_t>(n - 1)] = Priorite::Absolue;
        selection = *ConstruireSelection(grille, base, occ);
    }
};

template <typename Fil>
void Mener(const Fil& fil) {
    fil->Resume();
    fil->WaitFor();
}

}  // namespace norvane
