// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tickets: a full list drawn at random, saved and read back.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>

#include "tickets/FichiersGrilles.h"
#include "tickets/GrillesHasard.h"
#include "Verification.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

/// 9999 tickets of one type, by its place among those sold.
void GrillesHasardSauveesEtRelues(benchmark::State& etat) {
    const TypeGrille type = TypesVendus[static_cast<std::size_t>(etat.range(0))];
    const fs::path fichier =
        fs::temp_directory_path() / ("norvane-bench-" + std::to_string(::getpid()) + ".grl");
    std::vector<Grille> grilles;
    Resultat<std::vector<Grille>> relues = grilles;
    for (auto _ : etat) {
        GenerateurHasard hasard(20240724);
        grilles.clear();
        AjouterGrillesHasard(grilles, hasard, type, NbGrillesMax);
        Exiger(bool(EnregistrerGrilles(grilles, fichier)), "save");
        relues = ChargerGrilles(fichier);
    }
    Exiger(relues && *relues == grilles && grilles.size() == NbGrillesMax, "tickets read back");
    etat.SetLabel(LibelleType(type));
    fs::remove(fichier);
}
BENCHMARK(GrillesHasardSauveesEtRelues)
    ->Arg(0)
    ->Arg(19)  // 06 + 10C, the longest ticket
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

}  // namespace
}  // namespace norvane
