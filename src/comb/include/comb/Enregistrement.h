// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combination records: 16-bit words, blocks of five (NbFois, Ecart, EcartMax, Suite, SuiteMax),
// then the N numbers. All records of a list lie in one arena with a fixed stride.
#pragma once

#include <array>
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
inline constexpr int MinBonsNumeros = 2;  ///< fewest good numbers that win, the same for all sizes

/// Good numbers of the first rank: no draw holds more than five numbers.
constexpr int BonsPremierRang(int taille) {
    return taille < 5 ? taille : 5;
}

/// Ranks of gain of a size: from MinBonsNumeros to the first rank.
constexpr int NbRangsGain(int taille) {
    return BonsPremierRang(taille) - MinBonsNumeros + 1;
}

/// Where things stand in a record of `taille` numbers (2..10).
struct Disposition {
    int taille;
    ModeStockage mode;

    /// 1, NbRangsGain(taille), or one block for each count of good numbers 0..taille.
    int blocs() const;
    /// Words of a record.
    int mots() const { return MotsParBloc * blocs() + taille; }
    /// First word of the first-rank block: block 0, the last block, or block min(taille, 5).
    int premierRang() const;
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
