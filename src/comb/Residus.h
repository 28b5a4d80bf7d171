// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combinations of six to ten numbers, some of them fixed: what each draw asks for beyond the fixed
// numbers is its residue, and a choice counts the residues that it holds.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <stop_token>
#include <vector>

#include "comb/GrandesTailles.h"

namespace norvane {

class Residus {
 public:
    /// `tirages`: the draws of the interval; `reserve`: what is chosen from, ascending, without a
    /// fixed number; `choix`: how many of them.
    Residus(const std::vector<Masque>& tirages, const std::vector<int>& fixes,
            std::vector<int> reserve, int choix);

    std::uint64_t choixPossibles() const;

    /// How many choices hold inf..sup draws; where there are more than `plafond`, any number of
    /// them above it. Void when stopped.
    std::uint64_t compter(int inf, int sup, std::uint64_t plafond,
                          const std::stop_token& arret) const;

    /// Gives each of them in lexicographic order with the ascending places of its draws, until
    /// `recevoir` answers false. `avance` is told how far the first number has come, 0..100.
    void lister(int inf, int sup, const std::stop_token& arret,
                const std::function<void(int)>& avance,
                const std::function<bool(Masque, std::span<const std::uint16_t>)>& recevoir) const;

 private:
    struct Residu {
        Masque manque;  // numbers of the draw still to be chosen
        std::uint16_t place;
    };
    template <typename Visite>
    struct Descente;

    std::vector<int> reserve_;
    int choix_;
    std::vector<Residu> residus_;
};

}  // namespace norvane
