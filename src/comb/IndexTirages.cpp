// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "IndexTirages.h"

#include <algorithm>
#include <numeric>

namespace norvane {

namespace {

static_assert(NbTriplets == Binomial(NumeroMax, 3));
constexpr auto NbQuadruplets = static_cast<std::size_t>(Binomial(NumeroMax, 4));

/// Turns the counts in `debuts` (the count of rank r at r + 1) into starting places.
void Cumuler(std::vector<std::uint32_t>& debuts) {
    std::partial_sum(debuts.begin(), debuts.end(), debuts.begin());
}

}  // namespace

IndexTirages::IndexTirages(std::span<const Tirage> tirages) {
    regrouper(tirages);
    indexerQuatre();
    indexerTrois();
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

void IndexTirages::indexerQuatre() {
    presents4_.assign(NbQuadruplets / 64 + 1, 0);
    debuts4_.assign(NbQuadruplets + 1, 0);
    complements_.resize(masques_.size() * NbBoules);
    std::vector<std::uint32_t> rangs;
    rangs.reserve(complements_.size());
    for (const Masque masque : masques_)
        PourChaqueNumero(masque, [&](int x) {
            const std::size_t rang = RangBas(masque & ~Bit(x), 4);
            presents4_[rang / 64] |= std::uint64_t{1} << (rang % 64);
            ++debuts4_[rang + 1];
            rangs.push_back(static_cast<std::uint32_t>(rang));
        });
    Cumuler(debuts4_);
    std::vector<std::uint32_t> suivants(debuts4_.begin(), debuts4_.end() - 1);
    std::size_t rang = 0;
    for (std::size_t i = 0; i < masques_.size(); ++i)
        PourChaqueNumero(masques_[i], [&](int x) {
            complements_[suivants[rangs[rang++]]++] = {static_cast<std::uint16_t>(i),
                                                       static_cast<std::uint8_t>(x)};
        });
}

void IndexTirages::indexerTrois() {
    debuts3_.assign(NbTriplets + 1, 0);
    parBas_.resize(masques_.size());
    for (const Masque masque : masques_) ++debuts3_[RangBas(masque, 3) + 1];
    Cumuler(debuts3_);
    std::vector<std::uint32_t> suivants(debuts3_.begin(), debuts3_.end() - 1);
    for (std::size_t i = 0; i < masques_.size(); ++i)
        parBas_[suivants[RangBas(masques_[i], 3)]++] = static_cast<std::uint16_t>(i);
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
            for (int i = 0; i < j; ++i) {
                const auto rang =
                    static_cast<std::size_t>(colonne(1, i) + colonne(2, j) + colonne(3, k));
                for (auto p = debuts3_[rang]; p < debuts3_[rang + 1]; ++p) {
                    const std::size_t t = parBas_[p];
                    if ((masques_[t] & ~ensemble) == 0)
                        places.insert(places.end(), places_.begin() + debutsPlaces_[t],
                                      places_.begin() + debutsPlaces_[t + 1]);
                }
            }
    std::sort(places.begin(), places.end());
}

}  // namespace norvane
