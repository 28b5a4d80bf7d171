// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The numbers that the user checked, and the draws that concern them.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "base/Base.h"
#include "base/Resultat.h"
#include "stats/Occurrences.h"

namespace norvane {

/// State of a line of the selection grid.
enum class Priorite : std::uint8_t { Aucune = 0, Absolue = 1, Secondaire = 2 };

/// Element k is number k + 1.
using GrilleSelection = std::array<Priorite, NumeroMax>;

/// From this size of the absolute selection on the tables of draws stay empty.
inline constexpr int SelAbsolueMax = 10;

/// Tables derived from the grid. Draws are zero-based record indices, ascending, of the interval.
struct Selection {
    int NbSelAbsolue = 0;
    std::vector<int> SelAbsolue;  ///< ascending
    int NbSelSecondaire = 0;
    std::vector<int> SelSecondaire;  ///< ascending
    int NbComplement = 0;            ///< 49 - NbSelAbsolue
    std::vector<int> Complement;     ///< the numbers outside the absolute priority, ascending
    std::array<std::int16_t, NumeroMax + 1> RangComplement{};  ///< place of number n, or -1
    std::array<std::int16_t, NumeroMax + 1> RangSecondaire{};

    int NbTiragesSelection = 0;
    ListeOccurrences TiragesSelection;  ///< draws that hold all absolute numbers
    std::vector<int> NbSortiesComplement;
    std::vector<ListeOccurrences> ListesComplement;  ///< those that hold Complement[i] as well
    std::vector<int> NbSortiesSecondaire;
    std::vector<ListeOccurrences> ListesSecondaire;

    /// No restriction: nothing selected, or everything.
    bool vide() const { return NbSelAbsolue == 0 || NbSelAbsolue == NumeroMax; }
};

/// Builds the tables over the interval in force of `occ`. Refused: secondary numbers without an
/// absolute one. The tables of draws are built for 1 to SelAbsolueMax absolute numbers.
Resultat<Selection> ConstruireSelection(const GrilleSelection& grille, const Base& base,
                                        const Occurrences& occ);

}  // namespace norvane
