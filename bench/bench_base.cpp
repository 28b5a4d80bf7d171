// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The base: built in, saved and loaded again.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "base/BaseIntegree.h"
#include "base/Stockage.h"
#include "Verification.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

bool Egales(const Base& a, const Base& b) {
    return a.NbAnciensTirages == b.NbAnciensTirages && a.AnciensTirages == b.AnciensTirages &&
           std::ranges::equal(a.enUsage(), b.enUsage()) &&
           std::equal(a.Rapports.begin(), a.Rapports.begin() + a.NbTirages, b.Rapports.begin());
}

/// A directory of this run, gone at its end.
struct Dossier {
    fs::path chemin = fs::temp_directory_path() / ("norvane-bench-" + std::to_string(::getpid()));
    Dossier() { fs::create_directory(chemin); }
    ~Dossier() { fs::remove_all(chemin); }
};

void BaseIntegreeGlobale(benchmark::State& etat) {
    Base base;
    for (auto _ : etat) {
        base = BaseIntegree(true);
        benchmark::DoNotOptimize(base.Tirages.data());
    }
    Exiger(base.NbTirages == 8072 && base.Tirages.front().DateTirage == DatePremierTirage,
           "built-in base");
}
BENCHMARK(BaseIntegreeGlobale)->Unit(benchmark::kMillisecond);

void Sauver(benchmark::State& etat) {
    const Dossier dossier;
    const Base base = BaseIntegree(true);
    for (auto _ : etat) Exiger(bool(SauverBase(base, dossier.chemin / NomStockage)), "save");
    const auto lue = LireStockage(dossier.chemin / NomStockage);
    Exiger(lue && Egales(base, *lue), "saved base");
}
BENCHMARK(Sauver)->Unit(benchmark::kMillisecond)->UseRealTime();

void Charger(benchmark::State& etat) {
    const Dossier dossier;
    const Base base = BaseIntegree(true);
    Exiger(bool(SauverBase(base, dossier.chemin / NomStockage)), "save");
    for (auto _ : etat) {
        const BaseChargee chargee = ChargerBase(dossier.chemin, true);
        etat.PauseTiming();
        Exiger(chargee.depuisFichier && Egales(base, chargee.base), "loaded base");
        etat.ResumeTiming();
    }
}
BENCHMARK(Charger)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace norvane
