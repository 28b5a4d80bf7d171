// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Avance.h"

#include <algorithm>

#include "comb/Collecte.h"
#include "comb/Reduction.h"
#include "Recherche.h"

namespace norvane {

namespace {

constexpr int SansMinimum = -1;

std::size_t Indice(int n) {
    return static_cast<std::size_t>(n);
}

}  // namespace

TCombNewSearch::TCombNewSearch(const ContexteComb& contexte, Puits& puits, int taille,
                               std::vector<Combinaison> stockees)
    : TCombThread(puits, {GenreTravail::Extremes, taille, QuelleListe::Extremes}),
      BorneInf(contexte.etat.BorneInf[Indice(taille)]),
      BorneSup(contexte.etat.BorneSup[Indice(taille)]),
      lignes(std::move(stockees)),
      contexte_(contexte),
      taille_(taille),
      dejaFaits_(contexte.etat.NbTiragesComb[Indice(taille)]) {
    progres.commencer(contexte.base.NbTirages - dejaFaits_);
}

void TCombNewSearch::Execute() {
    const int total = contexte_.base.NbTirages;
    // From size 6 on a draw is part of too many combinations to look at each; and a list that does
    // not agree with its own bounds cannot be built on.
    if (taille_ > NbBoules || !coherente()) {
        change = true;
        complet = recompter(total);
        return;
    }
    for (int d = dejaFaits_ + 1; d <= total; ++d) {
        if (Terminated() || !avancer(d)) return;
        puits().SetProgress(d - dejaFaits_);
    }
    complet = true;
}

int TCombNewSearch::compter(Ensemble numeros) const {
    const auto tirages = contexte_.base.enUsage().first(Indice(dejaFaits_));
    return static_cast<int>(std::ranges::count_if(
        tirages, [&](const Tirage& t) { return Ensemble::de(t.Numeros).contient(numeros); }));
}

bool TCombNewSearch::coherente() const {
    const bool minimum = SuitMinimum(taille_, dejaFaits_);
    bool plus = false;
    bool moins = !minimum;
    for (const Combinaison& ligne : lignes) {
        if (Terminated() || ligne.NbFois != compter(ligne.numeros)) return false;
        const bool enHaut = ligne.NbFois == BorneSup;
        const bool enBas = minimum && ligne.NbFois == BorneInf;
        if (!enHaut && !enBas) return false;
        plus = plus || enHaut;
        moins = moins || enBas;
    }
    return plus && moins;
}

bool TCombNewSearch::avancer(int d) {
    const bool minimum = SuitMinimum(taille_, d);
    if (minimum && !SuitMinimum(taille_, d - 1)) return recompter(d);
    nouvelles_.clear();
    chercherDans(d, minimum);
    if (nouvelles_.empty()) return true;

    change = true;
    lignes.insert(lignes.end(), nouvelles_.begin(), nouvelles_.end());
    int min = BorneInf;
    NettoyerDoublons(lignes, min, BorneSup);
    // What has left the bounds must not come back when a bound moves to its outdated count.
    FiltrerLignes(lignes, minimum ? BorneInf : SansMinimum, BorneSup);
    const bool encore = !minimum || std::ranges::any_of(lignes, [&](const Combinaison& ligne) {
        return ligne.NbFois == BorneInf;
    });
    return encore || recompter(d);
}

bool TCombNewSearch::recompter(int d) {
    ContexteComb court = contexte_;
    court.IntervalleInf = 1;
    court.IntervalleSup = d;
    const bool minimum = SuitMinimum(taille_, d);
    Collecte collecte;
    const Extremes trouves = ChercherExtremes(
        court, taille_, minimum ? SortieExtremes::Enregistrements : SortieExtremes::Lignes,
        collecte, arret());
    if (!trouves.complet) return false;

    recompte = change = true;
    BorneInf = trouves.BorneInf;
    BorneSup = trouves.BorneSup;
    GarderMarques(lignes);
    auto toutes = minimum ? FiltrerExtremes(collecte.mots, taille_, BorneInf, BorneSup)
                          : std::move(collecte.lignes);
    std::ranges::move(toutes, std::back_inserter(lignes));
    int min = BorneInf;
    int max = BorneSup;
    NettoyerDoublons(lignes, min, max);
    FiltrerLignes(lignes, minimum ? BorneInf : SansMinimum, BorneSup);
    return true;
}

void TCombNewSearch::chercherDans(int d, bool minimum) {
    const Tirage& tirage = contexte_.base.Tirages[Indice(d - 1)];
    for (int p = 0; p + taille_ <= NbBoules; ++p) {
        const auto& liste = contexte_.occurrences.ListeNumeros[Indice(tirage.Numeros[p] - 1)];
        choix_[0] = Indice(p);
        if (taille_ == 2)
            CompterCommunsAvant(contexte_.base, liste, p, d, LignesCommunes_[1]);
        else
            ListerCommunsAvant(contexte_.base, liste, p, d, LignesCommunes_[1],
                               TableauxCommuns_[1]);
        descendre(d, 1, Indice(p), minimum);
    }
}

void TCombNewSearch::descendre(int d, std::size_t niveau, std::size_t place, bool minimum) {
    const std::size_t taille = Indice(taille_);
    for (std::size_t q = place + 1; q + taille <= NbBoules + niveau; ++q) {
        const int c = LignesCommunes_[niveau][q];
        choix_[niveau] = q;
        if (niveau + 1 == taille) {
            voir(q, c, d, minimum);
            continue;
        }
        if (!minimum && c < BorneSup) continue;
        const auto& liste = TableauxCommuns_[niveau][q];
        const int p = static_cast<int>(q);
        if (niveau + 2 == taille)
            CompterCommuns(contexte_.base, liste, p, d, LignesCommunes_[niveau + 1]);
        else
            ListerCommuns(contexte_.base, liste, p, d, LignesCommunes_[niveau + 1],
                          TableauxCommuns_[niveau + 1]);
        descendre(d, niveau + 1, q, minimum);
    }
}

void TCombNewSearch::voir(std::size_t place, int c, int d, bool minimum) {
    if (c < BorneSup && !(minimum && c - 1 == BorneInf)) return;
    const Tirage& tirage = contexte_.base.Tirages[Indice(d - 1)];
    choix_[Indice(taille_ - 1)] = place;
    Combinaison nouvelle{{}, c, true};
    for (std::size_t i = 0; i < Indice(taille_); ++i)
        nouvelle.numeros.ajouter(tirage.Numeros[choix_[i]]);
    nouvelles_.push_back(nouvelle);
}

}  // namespace norvane
