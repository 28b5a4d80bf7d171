// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "IndexTirages.h"

#include <algorithm>
#include <numeric>

namespace norvane {

namespace {

static_assert(NbTriplets == Binomial(NumeroMax, 3));
constexpr auto NbQuadruplets = static_cast<std::size_t>(Binomial(NumeroMax, 4));

}  // namespace

template <typename T>
void IndexTirages::Classeur<T>::classer(std::size_t rangs,
                                        const std::vector<std::pair<std::uint32_t, T>>& choses) {
    // Counted one place further than used: filling moves each start to where it belongs.
    debuts.assign(rangs + 2, 0);
    for (const auto& chose : choses) ++debuts[chose.first + 2];
    std::partial_sum(debuts.begin(), debuts.end(), debuts.begin());
    contenu.resize(choses.size());
    for (const auto& [rang, chose] : choses) contenu[debuts[rang + 1]++] = chose;
}

IndexTirages::IndexTirages(std::span<const Tirage> tirages) {
    regrouper(tirages);
    std::vector<std::pair<std::uint32_t, Trouve>> trois, quatre;
    std::vector<std::pair<std::uint32_t, std::uint16_t>> bas;
    trois.reserve(nombre() * 10);
    quatre.reserve(nombre() * 5);
    bas.reserve(nombre());
    presents4_.assign(NbQuadruplets / 64 + 1, 0);
    for (std::size_t i = 0; i < nombre(); ++i) {
        const Masque masque = masques_[i];
        const auto rang = [](Masque m, int k) { return static_cast<std::uint32_t>(RangBas(m, k)); };
        PourChaqueNumero(masque, [&](int x) {
            const Masque reste = masque & ~Bit(x);
            quatre.push_back({rang(reste, 4), {masque, poids_[i]}});
            PourChaqueNumero(reste & (Bit(x) - 1), [&](int y) {
                trois.push_back({rang(reste & ~Bit(y), 3), {masque, poids_[i]}});
            });
        });
        bas.emplace_back(rang(masque, 3), static_cast<std::uint16_t>(i));
    }
    for (const auto& [rang, trouve] : quatre)
        presents4_[rang / 64] |= std::uint64_t{1} << (rang % 64);
    par3_.classer(NbTriplets, trois);
    par4_.classer(NbQuadruplets, quatre);
    parBas_.classer(NbTriplets, bas);
}

void IndexTirages::regrouper(std::span<const Tirage> tirages) {
    std::vector<std::pair<Masque, std::uint16_t>> tries;
    tries.reserve(tirages.size());
    for (std::size_t i = 0; i < tirages.size(); ++i) {
        Masque masque = 0;
        for (const auto n : tirages[i].Numeros) masque |= Bit(n - 1);
        tries.emplace_back(masque, static_cast<std::uint16_t>(i));
    }
    std::sort(tries.begin(), tries.end());
    for (const auto& [masque, place] : tries) {
        if (masques_.empty() || masques_.back() != masque) {
            masques_.push_back(masque);
            poids_.push_back(0);
            debutsPlaces_.push_back(static_cast<std::uint32_t>(places_.size()));
        }
        ++poids_.back();
        places_.push_back(place);
    }
    debutsPlaces_.push_back(static_cast<std::uint32_t>(places_.size()));
    poidsTotal_ = static_cast<int>(tirages.size());
}

void IndexTirages::lister(Masque ensemble, std::vector<std::uint16_t>& places) const {
    places.clear();
    std::array<int, NumeroMax> numeros;
    int n = 0;
    PourChaqueNumero(ensemble, [&](int x) { numeros[static_cast<std::size_t>(n++)] = x; });
    const auto colonne = [&](int k, int i) {
        return Colonne(k, numeros[static_cast<std::size_t>(i)]);
    };
    // The third lowest number of a draw inside has at least two numbers of the set above it.
    for (int k = 2; k + 2 < n; ++k)
        for (int j = 1; j < k; ++j)
            for (int i = 0; i < j; ++i)
                for (const std::size_t t : parBas_[colonne(1, i) + colonne(2, j) + colonne(3, k)])
                    if ((masques_[t] & ~ensemble) == 0)
                        places.insert(places.end(), places_.begin() + debutsPlaces_[t],
                                      places_.begin() + debutsPlaces_[t + 1]);
    std::sort(places.begin(), places.end());
}

}  // namespace norvane
