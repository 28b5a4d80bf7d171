// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combinations of six to ten numbers, some of them fixed: what each draw asks for beyond the fixed
// numbers is its residue, and a choice counts the residues that it holds.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <stop_token>
#include <vector>

#include "comb/GrandesTailles.h"
#include "Prevision.h"

namespace norvane {

class Residus {
 public:
    /// `tirages`: the draws of the interval; `reserve`: what is chosen from, ascending, without a
    /// fixed number; `choix`: how many of them. The place of the first draw is `premier`.
    Residus(const std::vector<Masque>& tirages, std::uint16_t premier, Masque fixes,
            std::vector<int> reserve, int choix);

    std::uint64_t choixPossibles() const;

    /// How many choices hold inf..sup draws, from a sample where there are many choices: the same
    /// at each call, in some hundredths of a second. Void when stopped.
    Prevision prevoir(int inf, int sup, const std::stop_token& arret) const;

    /// The same counted. Void when stopped.
    std::uint64_t compter(int inf, int sup, unsigned threads, const std::stop_token& arret) const;

    /// Gives each of them with its draws; `limite`: how many of them are asked for. `avance` is
    /// told how far it is, 0..100. False when it ended before the last one.
    bool lister(int inf, int sup, std::uint64_t limite, unsigned threads,
                const std::stop_token& arret, const std::function<void(int)>& avance,
                const Livraison& livraison) const;

 private:
    struct Residu {
        Masque manque;  // numbers of the draw still to be chosen
        std::uint16_t place;
    };
    /// The first numbers of some choices, as places in the reserve: a piece of the work.
    static constexpr std::size_t NbTete = 3;
    struct Tete {
        std::size_t longueur = 0;
        std::array<std::uint8_t, NbTete> places{};
        std::uint64_t choix = 0;  // that begin so
    };
    template <typename Visite>
    struct Descente;
    struct Ouvrier;
    class Sondage;

    std::vector<Tete> tetes() const;

    const Masque fixes_;
    const std::vector<int> reserve_;
    const int choix_;
    std::vector<Residu> residus_;
};

}  // namespace norvane
