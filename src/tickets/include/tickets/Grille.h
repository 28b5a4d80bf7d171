// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A ticket of N numbers and C chances, and what it costs.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

/// Stake in euros (option 2nd Tirage included), N, the N numbers in the order they were ticked,
/// C, the C chances: exactly N + C + 3 elements.
using Grille = std::vector<double>;

inline constexpr int NbGrillesMax = 9999;      ///< capacity of a list of tickets
inline constexpr double MiseIncomplete = 1.0;  ///< TableMises: more must be ticked
inline constexpr double MiseInjouable = 0.0;   ///< TableMises: no such ticket is sold
inline constexpr double PrixGrilleSimple = 2.2;

/// Stake by numbers N (0..9) and chances C (0..10): 2.2 x C(N,5) x C for the 32 tickets sold,
/// MiseIncomplete below five numbers or without a chance, MiseInjouable for the others and for
/// counts out of range.
double TableMises(int n, int c);

/// Stake of a ticket: TableMises(n, c), plus 0.8 x C(n,5) with the option 2nd Tirage; always the
/// very double that its decimal text reads as. MiseInjouable for counts out of range.
double MiseGrille(int n, int c, bool option2nd);

/// A ticket of these numbers and chances with its stake, MiseGrille.
Grille FaireGrille(std::span<const int> numeros, std::span<const int> chances, bool option2nd);

/// One of the tickets sold: how many numbers (5..9) and chances (1..10).
struct TypeGrille {
    int n;
    int c;

    friend bool operator==(const TypeGrille&, const TypeGrille&) = default;
};
/// The 32 tickets sold, by rising n, then c.
inline constexpr auto TypesVendus = [] {
    constexpr std::array<int, 5> chancesMax = {10, 10, 8, 3, 1};  // with 5, 6, ... 9 numbers
    std::array<TypeGrille, 32> types{};
    auto type = types.begin();
    int n = 5;
    for (const int max : chancesMax) {
        for (int c = 1; c <= max; ++c) *type++ = {n, c};
        ++n;
    }
    return types;
}();
/// "05 + 01C".
std::string LibelleType(TypeGrille type);
/// The ticket sold that bears this label; nothing for any other text.
std::optional<TypeGrille> LireTypeGrille(std::string_view libelle);

}  // namespace norvane
