// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combination records: 16-bit words, blocks of five (NbFois, Ecart, EcartMax, Suite, SuiteMax),
// then the N numbers. All records of a list lie in one arena with a fixed stride.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace norvane {

using Mot = std::uint16_t;

/// What a record keeps of a combination's ranks.
enum class ModeStockage { PremierRang = 0, RangsDeGain = 1, TousLesRangs = 2 };

inline constexpr int MotsParBloc = 5;
inline constexpr Mot RangNonCalcule = 65535;  ///< word Ecart of a lower rank not computed yet
inline constexpr int SansRangDeGain = 65535;  ///< MinBonsNumeros where nothing wins

/// Good numbers of the first rank: no draw holds more than five numbers.
constexpr int BonsPremierRang(int taille) {
    return taille < 5 ? taille : 5;
}

/// Shape of the prize table: which counts of good numbers of one simple grid have a prize. It tells
/// what a record of ModeStockage::RangsDeGain keeps, so that it goes with the records.
struct FormeGains {
    std::uint8_t bons = 0b111100;  ///< bit k: k good numbers win, 2..5

    /// `prix`: the prizes for 2, 3, 4, 5 good numbers.
    static constexpr FormeGains de(const std::array<double, 4>& prix) {
        FormeGains forme{0};
        for (unsigned k = 0; k < 4; ++k)
            if (prix[k] > 0) forme.bons |= static_cast<std::uint8_t>(4U << k);
        return forme;
    }
    friend constexpr bool operator==(FormeGains, FormeGains) = default;
};

/// Bit k: a combination of `taille` numbers wins with k good ones. From size 6 on it stands for its
/// grids of five numbers, some of which hold j of the k and 5 - j of the others.
constexpr unsigned RangsDeGain(int taille, FormeGains forme) {
    unsigned rangs = 0;
    for (int k = 1; k <= BonsPremierRang(taille); ++k)
        for (int j = 2; j <= k; ++j) {
            const bool grille = taille < 5 ? j == k : taille - k >= 5 - j;
            if (grille && (forme.bons >> j & 1) != 0) rangs |= 1U << k;
        }
    return rangs;
}

/// Fewest good numbers that win.
constexpr int MinBonsNumeros(int taille, FormeGains forme = {}) {
    const unsigned rangs = RangsDeGain(taille, forme);
    return rangs == 0 ? SansRangDeGain : std::countr_zero(rangs);
}

/// How many counts of good numbers win.
constexpr int NbRangsGain(int taille, FormeGains forme = {}) {
    return std::popcount(RangsDeGain(taille, forme));
}

/// Where things stand in a record of `taille` numbers (2..10).
struct Disposition {
    int taille;
    ModeStockage mode;
    FormeGains gains{};

    /// Bit k: a record has a block for k good numbers. The first rank alone; the ranks of gain, and
    /// the first rank whether it wins or not; or 0..taille. Blocks stand from few to many.
    unsigned rangs() const;
    int blocs() const { return std::popcount(rangs()); }
    /// First word of the block for `bons` good numbers, which must be one of rangs().
    int bloc(int bons) const;
    /// Words of a record.
    int mots() const { return MotsParBloc * blocs() + taille; }
    /// First word of the first-rank block: block 0, the last block, or block min(taille, 5).
    int premierRang() const { return bloc(BonsPremierRang(taille)); }
    /// First of the number words.
    int numeros() const { return MotsParBloc * blocs(); }

    friend bool operator==(const Disposition&, const Disposition&) = default;
};

/// A list of records, one after the other.
struct Arene {
    Disposition disposition{2, ModeStockage::PremierRang};
    std::vector<Mot> mots;

    std::size_t nombre() const {
        return mots.size() / static_cast<std::size_t>(disposition.mots());
    }
    std::span<const Mot> operator[](std::size_t i) const {
        const auto pas = static_cast<std::size_t>(disposition.mots());
        return {mots.data() + i * pas, pas};
    }
    std::span<Mot> operator[](std::size_t i) {
        const auto pas = static_cast<std::size_t>(disposition.mots());
        return {mots.data() + i * pas, pas};
    }
};

}  // namespace norvane
