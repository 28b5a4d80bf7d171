// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Dessin.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <stdexcept>
#include <unordered_set>

namespace systemes {

namespace {

using Triangle = std::array<std::array<long, KMax + 1>, VMax + 2>;

constexpr Triangle FaireTriangle() {
    Triangle c{};
    for (int n = 0; n <= VMax + 1; ++n) {
        c[n][0] = 1;
        for (int r = 1; r <= KMax && n > 0; ++r) c[n][r] = c[n - 1][r - 1] + c[n - 1][r];
    }
    return c;
}

constexpr Triangle Pascal = FaireTriangle();

/// Calls `faire` with each r-subset of the points of `ensemble`.
template <class F>
void PourChaquePartie(Bloc ensemble, int r, Bloc choisis, const F& faire) {
    if (r == 0) {
        faire(choisis);
        return;
    }
    while (std::popcount(ensemble) >= r) {
        const Bloc point = ensemble & (~ensemble + 1);
        ensemble ^= point;
        PourChaquePartie(ensemble, r - 1, choisis | point, faire);
    }
}

}  // namespace

long Binomial(int n, int r) {
    if (n < 0 || r < 0 || n > VMax + 1 || r > KMax) return 0;
    return Pascal[n][r];
}

long Rang(Bloc bloc) {
    long rang = 0;
    for (int i = 1; bloc != 0; ++i, bloc &= bloc - 1) rang += Pascal[std::countr_zero(bloc)][i];
    return rang;
}

std::vector<Bloc> Parties(int v, int k) {
    std::vector<Bloc> parties;
    if (k > v) return parties;
    parties.reserve(static_cast<std::size_t>(Binomial(v, k)));
    if (k == 0) return {0};
    for (Bloc b = (Bloc{1} << k) - 1; b < Bloc{1} << v;) {
        parties.push_back(b);
        const Bloc bas = b & (~b + 1);
        const Bloc suite = b + bas;
        b = (((suite ^ b) >> 2) / bas) | suite;
    }
    return parties;
}

Bloc Image(Bloc bloc, const Permutation& permutation) {
    Bloc image = 0;
    for (; bloc != 0; bloc &= bloc - 1) image |= Bloc{1} << permutation[std::countr_zero(bloc)];
    return image;
}

std::vector<Bloc> Developper(const Dessin& dessin) {
    std::vector<Bloc> blocs = dessin.bases;
    std::unordered_set<Bloc> vus(blocs.begin(), blocs.end());
    for (std::size_t i = 0; i < blocs.size() && !dessin.generateurs.empty(); ++i) {
        for (const Permutation& g : dessin.generateurs) {
            const Bloc image = Image(blocs[i], g);
            if (vus.insert(image).second) blocs.push_back(image);
        }
    }
    std::sort(blocs.begin(), blocs.end());
    blocs.erase(std::unique(blocs.begin(), blocs.end()), blocs.end());
    return blocs;
}

long Manquants(const Cle& cle, const std::vector<Bloc>& blocs) {
    const long total = Binomial(cle.v, cle.p);
    std::vector<bool> vus(static_cast<std::size_t>(total));
    const Bloc tous = (Bloc{1} << cle.v) - 1;
    for (const Bloc bloc : blocs) {
        if (std::popcount(bloc) != cle.k || (bloc & ~tous) != 0) return -1;
        for (int dedans = cle.t; dedans <= std::min(cle.k, cle.p); ++dedans) {
            PourChaquePartie(bloc, dedans, 0, [&](Bloc coeur) {
                PourChaquePartie(tous & ~bloc, cle.p - dedans, coeur, [&](Bloc partie) {
                    vus[static_cast<std::size_t>(Rang(partie))] = true;
                });
            });
        }
    }
    return total - std::count(vus.begin(), vus.end(), true);
}

}  // namespace systemes
