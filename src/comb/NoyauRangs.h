// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The statistics of a combination by good numbers, worked out on bitmaps of draws: 64 draws at
// once, and what combinations one behind the other have in common only once.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "comb/Combinaison.h"
#include "comb/Enregistrement.h"
#include "stats/Occurrences.h"

namespace norvane {

using MotDeBits = std::uint64_t;

/// The draws of an interval as bitmaps: bit i stands for its i-th draw.
class CartesTirages {
 public:
    explicit CartesTirages(std::span<const Tirage> tirages);

    int tirages() const { return tirages_; }
    /// Words of a map; one more, always 0, lies behind.
    std::size_t mots() const { return mots_; }
    std::size_t pas() const { return mots_ + 1; }
    const MotDeBits* toutes() const { return cartes_.data(); }
    /// The draws that hold number n, 1..49.
    const MotDeBits* numero(std::size_t n) const { return cartes_.data() + n * pas(); }

 private:
    int tirages_;
    std::size_t mots_;
    std::vector<MotDeBits> cartes_;
};

/// Writes blocks of records of one shape, for one thread. The maps of the draws with exactly k good
/// numbers are kept for each leading part of the numbers: the next record starts from the part that
/// it shares with the last one.
class CalculRangs {
 public:
    /// `rangs`: the blocks to write, bit k for k good numbers; all of them ones of the shape.
    CalculRangs(const CartesTirages& cartes, Disposition disposition, unsigned rangs);

    void ecrire(std::span<Mot> enregistrement);

 private:
    /// Map of the draws with `bons` of the first `places` numbers.
    MotDeBits* carte(int places, int bons) {
        return pile_.data() + static_cast<std::size_t>(places * (NbBoules + 1) + bons) * pas_;
    }
    void placer(int place, Mot numero);

    const CartesTirages& cartes_;
    const Disposition disposition_;
    const unsigned rangs_;
    const std::size_t pas_;
    int rangMin_ = 0;  ///< of those that draws can reach
    int rangMax_ = -1;
    std::vector<MotDeBits> pile_;
    std::vector<MotDeBits> tampons_;
    std::array<Mot, TailleCombMax> numeros_{};  ///< in the maps; 0: none
    std::array<int, TailleCombMax + 1> blocs_{};
};

}  // namespace norvane
