// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>

#include "Fermeture.h"

namespace systemes {

namespace {

/// Calls `faire` with the rank of each p-subset that meets the block in t points or more.
template <class F>
void Parcourir(Bloc dedans, Bloc dehors, int p, int t, Bloc choisis, const F& faire) {
    if (p == 0) {
        if (t <= 0) faire(Rang(choisis));
        return;
    }
    while (dedans != 0 && std::popcount(dedans) >= t) {
        const Bloc point = dedans & (~dedans + 1);
        dedans ^= point;
        Parcourir(dedans, dehors, p - 1, t - 1, choisis | point, faire);
    }
    if (t > 0) return;
    while (std::popcount(dehors) >= p) {
        const Bloc point = dehors & (~dehors + 1);
        dehors ^= point;
        Parcourir(0, dehors, p - 1, t, choisis | point, faire);
    }
}

class Comptes {
 public:
    explicit Comptes(const Cle& cle)
        : cle_(cle),
          tous_((Bloc{1} << cle.v) - 1),
          n_(static_cast<std::size_t>(Binomial(cle.v, cle.p))) {}

    void compter(Bloc bloc, int ecart) {
        pourChaque(bloc, [&](long r) { n_[static_cast<std::size_t>(r)] += ecart; });
    }
    /// How many p-subsets are met by no other block than this one, which is counted.
    long seuls(Bloc bloc) const {
        long seuls = 0;
        pourChaque(bloc, [&](long r) { seuls += n_[static_cast<std::size_t>(r)] == 1 ? 1 : 0; });
        return seuls;
    }

 private:
    template <class F>
    void pourChaque(Bloc bloc, const F& faire) const {
        Parcourir(bloc, tous_ & ~bloc, cle_.p, cle_.t, 0, faire);
    }

    Cle cle_;
    Bloc tous_;
    std::vector<int> n_;
};

void Oter(std::vector<Bloc>& blocs, Comptes& comptes, std::mt19937_64& alea) {
    std::shuffle(blocs.begin(), blocs.end(), alea);
    std::erase_if(blocs, [&](Bloc bloc) {
        if (comptes.seuls(bloc) > 0) return false;
        comptes.compter(bloc, -1);
        return true;
    });
}

}  // namespace

std::vector<Bloc> Elaguer(const Cle& cle, std::vector<Bloc> blocs, std::mt19937_64& alea) {
    Comptes comptes(cle);
    std::sort(blocs.begin(), blocs.end());
    blocs.erase(std::unique(blocs.begin(), blocs.end()), blocs.end());
    for (const Bloc b : blocs) comptes.compter(b, 1);
    Oter(blocs, comptes, alea);
    bool remplis = false;
    for (Bloc& bloc : blocs) {
        while (std::popcount(bloc) < cle.k) {
            const Bloc point = Bloc{1} << (alea() % static_cast<std::uint64_t>(cle.v));
            if ((bloc & point) != 0) continue;
            comptes.compter(bloc, -1);
            bloc |= point;
            comptes.compter(bloc, 1);
            remplis = true;
        }
    }
    if (remplis) Oter(blocs, comptes, alea);
    std::sort(blocs.begin(), blocs.end());
    blocs.erase(std::unique(blocs.begin(), blocs.end()), blocs.end());
    return blocs;
}

}  // namespace systemes
