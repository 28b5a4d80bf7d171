// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The plain way to the best combinations of six to ten numbers: draws are joined one after the
// other, and at each step all later draws that still fit are scanned.
#pragma once

#include <bit>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "comb/GrandesTailles.h"

namespace norvane {

inline Masque MasqueTirage(const Tirage& tirage) {
    Masque masque = 0;
    for (const auto n : tirage.Numeros) masque |= Masque{1} << (n - 1);
    return masque;
}

/// Calls `f` with each set of `reste` more numbers, zero-based and at least `premier`, outside of
/// `ensemble` and together with it.
template <typename F>
void Completer(Masque ensemble, int premier, int reste, F& f) {
    if (reste == 0) return f(ensemble);
    for (int y = premier; y < NumeroMax; ++y)
        if ((ensemble >> y & 1) == 0) Completer(ensemble | Masque{1} << y, y + 1, reste - 1, f);
}

class MarcheDeTirages {
 public:
    MarcheDeTirages(std::span<const Tirage> tirages, int taille) : taille_(taille) {
        std::map<Masque, int> distincts;
        for (const Tirage& tirage : tirages) ++distincts[MasqueTirage(tirage)];
        Restes tous(distincts.begin(), distincts.end());
        for (std::size_t i = 0; i < tous.size(); ++i) joindre(0, 0, tous, i);
    }

    int maximum() const { return maximum_; }

    /// All combinations that reach the maximum, those with free numbers included, in no order.
    std::vector<Masque> combinaisons() const {
        std::vector<Masque> resultat;
        auto garder = [&](Masque m) { resultat.push_back(m); };
        for (const Masque m : meilleurs_) Completer(m, 0, taille_ - std::popcount(m), garder);
        return resultat;
    }

 private:
    using Restes = std::vector<std::pair<Masque, int>>;

    /// Adds draw i of those left; a draw before it that also comes in makes the count too low, but
    /// the same set is reached with the right count from that draw.
    void joindre(Masque ensemble, int compte, const Restes& restes, std::size_t i) {
        const Masque nouveau = ensemble | restes[i].first;
        const int place = taille_ - std::popcount(nouveau);
        compte += restes[i].second;
        Restes suivants;
        int possibles = 0;
        for (std::size_t j = i + 1; j < restes.size(); ++j) {
            const Masque dehors = restes[j].first & ~nouveau;
            if (dehors == 0) {
                compte += restes[j].second;
            } else if (place > 0 && std::popcount(dehors) <= place) {
                suivants.push_back(restes[j]);
                possibles += restes[j].second;
            }
        }
        if (compte > maximum_) meilleurs_.clear();
        if (compte >= maximum_) {
            maximum_ = compte;
            meilleurs_.insert(nouveau);
        }
        for (std::size_t j = 0; j < suivants.size() && compte + possibles >= maximum_; ++j) {
            joindre(nouveau, compte, suivants, j);
            possibles -= suivants[j].second;
        }
    }

    const int taille_;
    int maximum_ = 0;
    std::set<Masque> meilleurs_;
};

}  // namespace norvane
