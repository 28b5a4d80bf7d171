// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The best combinations of six to ten numbers on the shipped base, beside the plain walk over the
// draws, and how the time grows with the number of draws. `--croissance` prints the growth only.
#include <algorithm>
#include <cstring>
#include <numeric>
#include <random>
#include <thread>

#include "base/BaseIntegree.h"
#include "MarcheDeTirages.h"
#include "Verification.h"

namespace norvane {
namespace {

constexpr std::size_t Capacite = 32736;  // lines of the list

ExtremesGrandeTaille Chercher(std::span<const Tirage> tirages, int taille, unsigned threads) {
    return ChercherExtremesGrandeTaille(tirages, taille, Capacite, threads, {}, {});
}

double Duree(auto appel) {
    const auto debut = std::chrono::steady_clock::now();
    appel();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - debut).count();
}

/// Seconds of a call, the median of several; of slow calls only a few.
double Mediane(auto appel) {
    std::vector<double> durees{Duree(appel)};
    const int autres = durees[0] > 1 ? 2 : 10;
    for (int i = 0; i < autres; ++i) durees.push_back(Duree(appel));
    std::nth_element(durees.begin(), durees.begin() + autres / 2, durees.end());
    return durees[static_cast<std::size_t>(autres) / 2];
}

/// Draws of five different numbers, each as likely as any other; the same at each run.
std::vector<Tirage> TiragesInventes(std::size_t nombre) {
    std::mt19937 hasard(1);
    std::vector<int> boules(NumeroMax);
    std::iota(boules.begin(), boules.end(), 1);
    std::vector<Tirage> tirages(nombre);
    for (Tirage& t : tirages) {
        for (std::size_t i = 0; i < NbBoules; ++i) {
            std::swap(boules[i], boules[i + hasard() % (NumeroMax - i)]);
            t.Numeros[i] = boules[i];
        }
        std::sort(t.Numeros, t.Numeros + NbBoules);
    }
    return tirages;
}

void BaseLivree(std::span<const Tirage> tirages, unsigned threads) {
    std::printf("%zu draws, %u threads (median of several runs)\n", tirages.size(), threads);
    std::printf("size  most  combinations   seconds  one thread  plain walk     ratio\n");
    for (int taille = 6; taille <= 10; ++taille) {
        ExtremesGrandeTaille e;
        const double rapide = Mediane([&] { e = Chercher(tirages, taille, threads); });
        const double seul = Mediane([&] { Chercher(tirages, taille, 1); });
        std::vector<Masque> attendues;
        int maximum = 0;
        const double naif = Duree([&] {
            const MarcheDeTirages marche(tirages, taille);
            maximum = marche.maximum();
            attendues = marche.combinaisons();
        });
        std::sort(attendues.begin(), attendues.end());
        std::sort(e.combinaisons.begin(), e.combinaisons.end());
        Exiger(e.maximum == maximum && e.combinaisons == attendues, "best combinations");
        std::printf("%4d  %4d  %12llu  %8.4f  %10.4f  %10.3f  %8.0f\n", taille, e.maximum,
                    static_cast<unsigned long long>(e.nombre), rapide, seul, naif, naif / rapide);
        std::fflush(stdout);
    }
}

void Croissance(unsigned threads) {
    const Base livree = BaseIntegree(false), globale = BaseIntegree(true);
    const std::vector<Tirage> inventes = TiragesInventes(NbTiragesMax);
    std::printf("\nseconds by number of draws (most draws held, combinations that hold them)\n");
    std::printf("  draws");
    for (int taille = 6; taille <= 10; ++taille) std::printf("%22s %d", "size", taille);
    std::printf("\n");
    for (const std::span<const Tirage> tirages :
         {livree.enUsage().last(500), livree.enUsage().last(1000), livree.enUsage().last(2000),
          livree.enUsage(), globale.enUsage(), std::span<const Tirage>(inventes)}) {
        std::printf("%7zu", tirages.size());
        for (int taille = 6; taille <= 10; ++taille) {
            ExtremesGrandeTaille e;
            const double duree = Mediane([&] { e = Chercher(tirages, taille, threads); });
            std::printf("  %8.4f (%4d, %5llu)", duree, e.maximum,
                        static_cast<unsigned long long>(e.nombre));
            std::fflush(stdout);
        }
        std::printf("\n");
    }
}

}  // namespace
}  // namespace norvane

int main(int argc, char** argv) {
    const unsigned threads = std::max(1U, std::thread::hardware_concurrency());
    const norvane::Base livree = norvane::BaseIntegree(false);
    if (argc < 2 || std::strcmp(argv[1], "--croissance") != 0)
        norvane::BaseLivree(livree.enUsage(), threads);
    norvane::Croissance(threads);
}
