// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The draws of an interval, found by their numbers: identical draws are one entry with a weight;
// each entry can be found by any four of its numbers and by its three lowest.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "comb/Combinaison.h"
#include "comb/GrandesTailles.h"

namespace norvane {

inline constexpr int TailleGrandeMin = 6;
inline constexpr int TailleGrandeMax = 10;
inline constexpr auto NbTriplets = 18424;  ///< C(49, 3)
inline constexpr Masque TousLesNumeros = (Masque{1} << NumeroMax) - 1;

constexpr Masque Bit(int zeroBase) {
    return Masque{1} << zeroBase;
}

/// C(n, k) for n up to NumeroMax; 0 for k above n.
constexpr std::uint64_t Binomial(int n, int k) {
    if (k < 0 || k > n) return 0;
    std::uint64_t c = 1;
    for (int i = 1; i <= k; ++i)
        c = c * static_cast<std::uint64_t>(n - k + i) / static_cast<unsigned>(i);
    return c;
}

/// Small binomials by column: Colonnes[k][n] = C(n, k), k up to four. A set of ascending zero-based
/// numbers e1 < e2 < ... has the rank C(e1,1) + C(e2,2) + ...
inline constexpr auto Colonnes = [] {
    std::array<std::array<std::int32_t, NumeroMax>, 5> t{};
    for (int k = 0; k < 5; ++k)
        for (int n = 0; n < NumeroMax; ++n)
            t[static_cast<std::size_t>(k)][static_cast<std::size_t>(n)] =
                static_cast<std::int32_t>(Binomial(n, k));
    return t;
}();

constexpr std::int32_t Colonne(int k, int n) {
    return Colonnes[static_cast<std::size_t>(k)][static_cast<std::size_t>(n)];
}

/// Rank of the `k` lowest numbers of the set, k up to four.
inline std::size_t RangBas(Masque ensemble, int k) {
    std::int32_t rang = 0;
    for (int i = 1; i <= k; ++i, ensemble &= ensemble - 1)
        rang += Colonne(i, std::countr_zero(ensemble));
    return static_cast<std::size_t>(rang);
}

/// Calls `f` with each zero-based number of the set, ascending.
template <typename F>
void PourChaqueNumero(Masque ensemble, F f) {
    for (; ensemble != 0; ensemble &= ensemble - 1) f(std::countr_zero(ensemble));
}

class IndexTirages {
 public:
    /// A distinct draw found by some of its numbers: all that a search needs of it, in one place.
    struct Trouve {
        Masque masque;
        int poids;
    };

    explicit IndexTirages(std::span<const Tirage> tirages);

    std::size_t nombre() const { return masques_.size(); }  ///< distinct draws
    Masque masque(std::size_t i) const { return masques_[i]; }
    int poids(std::size_t i) const { return poids_[i]; }  ///< how many records are this draw
    int poidsTotal() const { return poidsTotal_; }

    /// Whether any draw holds the four numbers of this rank. The table is small enough to stay in
    /// the first cache: most questions end here.
    bool existe4(std::int32_t rang) const {
        return (presents4_[static_cast<std::size_t>(rang) / 64] >> (rang % 64) & 1) != 0;
    }
    /// The distinct draws that hold the three or four numbers of this rank.
    std::span<const Trouve> avec3(std::int32_t rang) const { return par3_[rang]; }
    std::span<const Trouve> avec4(std::int32_t rang) const { return par4_[rang]; }

    /// Replaces `places` by the ascending places of the records that lie in `ensemble`.
    void lister(Masque ensemble, std::vector<std::uint16_t>& places) const;

 private:
    /// Things filed by rank, one after the other.
    template <typename T>
    struct Classeur {
        std::vector<std::uint32_t> debuts;
        std::vector<T> contenu;

        std::span<const T> operator[](std::int32_t rang) const {
            const auto r = static_cast<std::size_t>(rang);
            return {contenu.data() + debuts[r], debuts[r + 1] - debuts[r]};
        }
        /// Files each thing of a list of (rank, thing) under its rank, the order kept.
        void classer(std::size_t rangs, const std::vector<std::pair<std::uint32_t, T>>& choses);
    };

    void regrouper(std::span<const Tirage> tirages);

    std::vector<Masque> masques_;
    std::vector<int> poids_;
    int poidsTotal_ = 0;
    std::vector<std::uint32_t> debutsPlaces_;  ///< records of each distinct draw, in places_
    std::vector<std::uint16_t> places_;
    std::vector<std::uint64_t> presents4_;
    Classeur<Trouve> par3_;
    Classeur<Trouve> par4_;
    Classeur<std::uint16_t> parBas_;  ///< distinct draws by their three lowest numbers
};

}  // namespace norvane
