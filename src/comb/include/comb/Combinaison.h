// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A combination and how often it came out.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/Ensemble.h"
#include "comb/Enregistrement.h"

namespace norvane {

inline constexpr int TailleCombMin = 2;
inline constexpr int TailleCombMax = 10;

/// Most lines that a list shows and most records that a buffer list holds.
inline constexpr std::size_t CapaciteListe = 32736;

/// One line of a list of extremes.
struct Combinaison {
    Ensemble numeros;     ///< 2 to 10 of them, 1..49
    int NbFois = 0;       ///< 0..65535
    bool marque = false;  ///< brought by a new draw

    friend bool operator==(const Combinaison&, const Combinaison&) = default;
};

/// The numbers of a combination as the words of a record, ascending.
class NumerosTries {
 public:
    /// At most TailleCombMax numbers.
    explicit constexpr NumerosTries(Ensemble ensemble) {
        for (const int n : ensemble) mots_[taille_++] = static_cast<Mot>(n);
    }
    constexpr operator std::span<const Mot>() const { return {mots_.data(), taille_}; }  // NOLINT

 private:
    std::array<Mot, TailleCombMax> mots_{};
    std::size_t taille_ = 0;
};

/// Order of the lists, between sets of one size: the one with the lower number at the first
/// difference comes first.
constexpr bool AvantLexico(Masque a, Masque b) {
    const Masque difference = a ^ b;
    return (a & difference & (~difference + 1)) != 0;
}

}  // namespace norvane
