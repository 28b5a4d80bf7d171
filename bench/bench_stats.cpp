// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Statistics over the global base (8072 records), beside the naive way: every record looked at
// for every item.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

#include "base/BaseIntegree.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"
#include "Verification.h"

namespace norvane {
namespace {

constexpr int NbElements = NumeroMax + ChanceMax;
using Resultats = std::vector<ResultatStats>;
using Intervalles = std::vector<std::pair<int, int>>;  // zero-based, inclusive

struct Donnees {
    Base base = BaseIntegree(true);
    Occurrences occ;
    Donnees() { ConstruireOccurrences(base, occ); }
};

const Donnees& LesDonnees() {
    static const Donnees donnees;
    return donnees;
}

void ParListes(const Occurrences& occ, int f, int l, Resultats& resultats) {
    for (const auto& liste : occ.ListeNumeros) resultats.push_back(StatsIntervalle(liste, f, l));
    for (const auto& liste : occ.ListeChances) resultats.push_back(StatsIntervalle(liste, f, l));
}

bool Contient(const Tirage& tirage, int element) {
    if (element > NumeroMax) return tirage.Chance == element - NumeroMax;
    return std::find(tirage.Numeros, tirage.Numeros + NbBoules, element) !=
           tirage.Numeros + NbBoules;
}

/// A maximum with its count and the place of the last that reaches it.
struct Maximum {
    int valeur = 0;
    int nombre = 1;
    int position = 0;

    void retenir(int longueur, int place) {
        if (longueur < valeur) return;
        nombre = longueur > valeur ? 1 : nombre + 1;
        valeur = longueur;
        position = place;
    }
};

/// The same twelve results by looking at each record in turn.
ResultatStats Naif(const Base& base, int element, int f, int l) {
    Maximum ecart, suite;
    int absents = 0, presents = 0, ecartPrec = 0, suitePrec = 0, sorties = 0;
    for (int i = f; i <= l; ++i) {
        if (Contient(base.Tirages[static_cast<std::size_t>(i)], element)) {
            if (absents > 0) {
                ecart.retenir(absents, i + 1);
                ecartPrec = absents;
            } else if (sorties == 0) {
                ecart.position = i + 1;
            }
            absents = 0;
            ++presents;
            ++sorties;
        } else {
            if (presents > 0) {
                suite.retenir(presents, i);
                suitePrec = presents;
            }
            presents = 0;
            ++absents;
        }
    }
    if (presents > 0) suite.retenir(presents, l + 1);
    if (absents > 0) ecart.retenir(absents, l + 1 - absents);
    const auto mot = [](int n) { return static_cast<std::uint16_t>(n); };
    return {mot(sorties),        mot(absents),   mot(ecart.valeur), mot(ecart.nombre),
            mot(ecart.position), mot(presents),  mot(suite.valeur), mot(suite.nombre),
            mot(suite.position), mot(ecartPrec), mot(suitePrec),    l - f + 1 - sorties};
}

void ParBalayage(const Base& base, int f, int l, Resultats& resultats) {
    for (int element = 1; element <= NbElements; ++element)
        resultats.push_back(Naif(base, element, f, l));
}

/// Measures the lists on these intervals, one a turn; checks all of them against the naive way
/// first and reports how many times as long that takes.
void Mesurer(benchmark::State& etat, const Intervalles& intervalles) {
    const Donnees& d = LesDonnees();
    Resultats listes, balayage;
    listes.reserve(intervalles.size() * NbElements);
    balayage.reserve(intervalles.size() * NbElements);
    const auto tout = [&](Resultats& resultats, auto une) {
        resultats.clear();
        for (const auto& [f, l] : intervalles) une(f, l, resultats);
    };
    const double rapide = Secondes(
        [&] { tout(listes, [&](int f, int l, Resultats& r) { ParListes(d.occ, f, l, r); }); });
    const double naif = Secondes(
        [&] { tout(balayage, [&](int f, int l, Resultats& r) { ParBalayage(d.base, f, l, r); }); });
    Exiger(listes == balayage, "statistics of the 59 items");

    std::size_t tour = 0;
    for (auto _ : etat) {
        const auto [f, l] = intervalles[tour++ % intervalles.size()];
        listes.clear();
        ParListes(d.occ, f, l, listes);
        benchmark::DoNotOptimize(listes.data());
    }
    etat.counters["naive_ms"] = naif * 1000 / static_cast<double>(intervalles.size());
    etat.counters["naive_ratio"] = naif / rapide;
}

void StatsBaseEntiere(benchmark::State& etat) {
    Mesurer(etat, {{0, LesDonnees().base.NbTirages - 1}});
}
BENCHMARK(StatsBaseEntiere)->Unit(benchmark::kMillisecond);

void StatsIntervallesAuHasard(benchmark::State& etat) {
    std::mt19937 hasard(1);
    std::uniform_int_distribution<int> indice(0, LesDonnees().base.NbTirages - 1);
    Intervalles intervalles;
    for (int i = 0; i < 64; ++i)
        intervalles.push_back(std::minmax({indice(hasard), indice(hasard)}));
    Mesurer(etat, intervalles);
}
BENCHMARK(StatsIntervallesAuHasard)->Unit(benchmark::kMillisecond);

void RecalculDeLaBase(benchmark::State& etat) {
    const Donnees& d = LesDonnees();
    Occurrences occ;
    for (auto _ : etat) RecalculBase(d.base, occ);
    for (std::size_t k = 0; k < NumeroMax; ++k) {
        ListeOccurrences liste;
        for (int i = 0; i < d.base.NbTirages; ++i)
            if (Contient(d.base.Tirages[static_cast<std::size_t>(i)], static_cast<int>(k) + 1))
                liste.push_back(static_cast<Occurrence>(i));
        Exiger(occ.ListeNumeros[k] == liste && occ.ListeIntervalle[k] == liste, "occurrence lists");
    }
}
BENCHMARK(RecalculDeLaBase)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norvane
