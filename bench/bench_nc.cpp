// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tickets of numbers and chances: the twelve categories, Filtre 0, "00!", their list files.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>

#include "base/BaseIntegree.h"
#include "tickets/ListesNC.h"
#include "Verification.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

const Base& BaseActuelle() {
    static const Base base = BaseIntegree(false);
    return base;
}

const LigneNC Ticket{{3, 14, 25, 31, 44}, {1, 2, 3, 4, 5}};

/// All 1 906 884 sets of five numbers, one behind the other as the lists hold them.
const std::vector<std::uint16_t>& Quintuples() {
    static const std::vector<std::uint16_t> mots = [] {
        std::vector<std::uint16_t> tous;
        for (std::uint16_t a = 1; a <= 45; ++a)
            for (std::uint16_t b = a + 1; b <= 46; ++b)
                for (std::uint16_t c = b + 1; c <= 47; ++c)
                    for (std::uint16_t d = c + 1; d <= 48; ++d)
                        for (std::uint16_t e = d + 1; e <= 49; ++e)
                            tous.insert(tous.end(), {a, b, c, d, e});
        return tous;
    }();
    return mots;
}

Ensemble Quintuple(std::size_t i) {
    return Ensemble::de(std::span(Quintuples()).subspan(i * NbBoules, NbBoules));
}

/// The lines whose categories 0 to 7 are all empty, counted one by one.
std::vector<LigneNC> JamaisNaivement(std::vector<LigneNC> liste, int inf, int sup) {
    std::erase_if(liste, [&](const LigneNC& ligne) {
        const auto tableau = StatsCategories(BaseActuelle(), inf, sup, ligne);
        int fois = 0;
        for (std::size_t k = 0; k < PremiereCategorieRang9; ++k) fois += tableau[k].NbFois;
        return fois > 0;
    });
    return liste;
}

void Categories(benchmark::State& etat) {
    const int n = BaseActuelle().NbTirages;
    int total = 0;
    for (auto _ : etat) {
        total = 0;
        for (const auto& ligne : StatsCategories(BaseActuelle(), 1, n, Ticket))
            total += ligne.NbFois;
    }
    Exiger(total == n, "categories");
}
BENCHMARK(Categories)->Unit(benchmark::kMillisecond);

/// 252 lines over the last draws of the base, as many as the argument says.
void Filtre0(benchmark::State& etat) {
    const int sup = BaseActuelle().NbTirages;
    const int inf = sup + 1 - static_cast<int>(etat.range(0));
    std::vector<LigneNC> toutes, liste;
    AfficherListeNE(toutes, Ticket.numeros, {5, 5});
    for (auto _ : etat) {
        liste = toutes;
        FiltrerGagnantes(liste, SortiesNC(BaseActuelle(), inf, sup));
    }
    std::vector<LigneNC> attendues;
    const double naif = Secondes([&] { attendues = JamaisNaivement(toutes, inf, sup); });
    Exiger(liste == attendues && toutes.size() == 252, "Filtre 0");
    etat.counters["reste"] = static_cast<double>(liste.size());
    etat.counters["naif_ms"] = naif * 1e3;
}
BENCHMARK(Filtre0)->Arg(3214)->Arg(5)->Unit(benchmark::kMillisecond);

/// Every quintuple over the last draws; one of a thousand of them the naive way too.
void JamaisSortiesToutes(benchmark::State& etat) {
    constexpr std::size_t Un = 1000;
    const int sup = BaseActuelle().NbTirages;
    const int inf = sup + 1 - static_cast<int>(etat.range(0));
    const std::size_t nombre = Quintuples().size() / NbBoules;
    Trouvees trouvees;
    for (auto _ : etat)
        trouvees = JamaisSorties(SortiesNC(BaseActuelle(), inf, sup), nombre, Quintuple);
    std::vector<LigneNC> mille;
    for (std::size_t i = 0; i < nombre; i += Un)
        mille.push_back({Quintuple(i), {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
    std::vector<LigneNC> attendues;
    const double naif = Secondes([&] { attendues = JamaisNaivement(mille, inf, sup); });
    std::erase_if(mille, [&](const LigneNC& ligne) {
        return std::ranges::find(trouvees.lignes, ligne) == trouvees.lignes.end();
    });
    Exiger(mille == attendues && nombre == 1906884, "00!");
    etat.counters["lignes"] = static_cast<double>(trouvees.lignes.size());
    etat.counters["naif_un_millieme_ms"] = naif * 1e3;
}
BENCHMARK(JamaisSortiesToutes)->Arg(3214)->Arg(10)->Arg(1)->Unit(benchmark::kMillisecond);

/// The longest list that "00!" gives, over one draw, saved and read back.
void ListeSauveeEtRelue(benchmark::State& etat) {
    const fs::path fichier =
        fs::temp_directory_path() / ("norvane-bench-" + std::to_string(::getpid()) + ".dat");
    const auto liste =
        JamaisSorties(SortiesNC(BaseActuelle(), 1, 1), Quintuples().size() / NbBoules, Quintuple)
            .lignes;
    Resultat<std::vector<LigneNC>> relue = liste;
    double ecriture = 0;
    for (auto _ : etat) {
        const auto debut = std::chrono::steady_clock::now();
        Exiger(bool(EnregistrerListeNC(liste, fichier)), "save");
        ecriture = std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
        relue = ChargerListeNC(fichier);
    }
    Exiger(relue && *relue == liste, "lines read back");
    etat.counters["lignes"] = static_cast<double>(liste.size());
    etat.counters["ecriture_ms"] = ecriture * 1e3;
    fs::remove(fichier);
}
BENCHMARK(ListeSauveeEtRelue)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace norvane
