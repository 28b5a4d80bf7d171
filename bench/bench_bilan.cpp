// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The balance of a full list of tickets over every draw of the present game.
#include <benchmark/benchmark.h>

#include "base/BaseIntegree.h"
#include "Cumulateur.h"
#include "tickets/Bilan.h"
#include "tickets/GrillesHasard.h"
#include "Verification.h"

namespace norvane {
namespace {

const Base& BaseActuelle() {
    static const Base base = BaseIntegree(false);
    return base;
}

/// 9999 tickets, of all types in turn, every other one with the option 2nd Tirage; with `type` all
/// of that one.
std::vector<Grille> ListePleine(std::optional<TypeGrille> type = {}) {
    GenerateurHasard hasard(1);
    std::vector<Grille> grilles;
    for (std::size_t k = 0; k < NbGrillesMax; ++k) {
        const TypeGrille t = type.value_or(TypesVendus[k % TypesVendus.size()]);
        AjouterGrillesHasard(grilles, hasard, t, 1);
        if (k % 2 == 0) grilles.back().mise = MiseGrille(t.n, t.c, true);
    }
    return grilles;
}

/// Ticket by ticket, record by record, a search in the rank table each.
std::vector<BilanGrille> CumulerNaivement(const Base& base, std::span<const Grille> grilles) {
    std::vector<BilanGrille> bilans(grilles.size());
    const auto ajouter = [](const auto& comptes, const RapportsTirage& rapports, auto& cumuls) {
        for (std::size_t rang = 0; rang < comptes.size(); ++rang) {
            cumuls[rang].fois += comptes[rang];
            cumuls[rang].gain += comptes[rang] * rapports[rang].Gain;
        }
    };
    for (std::size_t k = 0; k < grilles.size(); ++k)
        for (std::size_t i = 0; i < base.enUsage().size(); ++i) {
            const Tirage& t = base.Tirages[i];
            if (EstSecondTirage(t)) {
                ajouter(Rangs2ndGagnes(grilles[k], t), base.Rapports[i], bilans[k].Bilan2nd);
            } else {
                ajouter(RangsGagnes(grilles[k], t), base.Rapports[i], bilans[k].BilanRangs);
            }
        }
    return bilans;
}

/// The whole report of a full list, on all cores.
void BilanRapport(benchmark::State& etat, std::optional<TypeGrille> type) {
    const Base& base = BaseActuelle();
    const auto grilles = ListePleine(type);
    std::optional<std::string> texte;
    for (auto _ : etat) texte = RedigerBilan(base, 1, base.NbTirages, grilles, {});
    Exiger(texte && !texte->empty(), "report");
    etat.counters["octets"] = static_cast<double>(texte->size());
}
BENCHMARK_CAPTURE(BilanRapport, TousLesTypes, std::nullopt)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BilanRapport, Simples, TypeGrille{5, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BilanRapport, NeufNumeros, TypeGrille{9, 1})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

/// The sums alone on one thread, beside the naive way in the same run.
void BilanContreNaif(benchmark::State& etat) {
    const Base& base = BaseActuelle();
    const auto grilles = ListePleine();
    std::vector<BilanGrille> bilans(grilles.size());
    double duree = 0;
    for (auto _ : etat)
        duree = Secondes([&] {
            const Cumulateur cumulateur(base, 1, base.NbTirages, grilles);
            for (std::size_t k = 0; k < grilles.size(); ++k)
                bilans[k] = cumulateur.cumuler(grilles[k]);
        });
    std::vector<BilanGrille> naif;
    const double dureeNaive = Secondes([&] { naif = CumulerNaivement(base, grilles); });
    Exiger(bilans == naif, "balance");
    etat.counters["ms"] = duree * 1e3;
    etat.counters["ms_naif"] = dureeNaive * 1e3;
    etat.counters["rapport"] = dureeNaive / duree;
}
BENCHMARK(BilanContreNaif)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace norvane
