// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A ticket of N numbers and C chances, and what it costs.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "base/Ensemble.h"
#include "base/Tirage.h"

namespace norvane {

/// Values from 1 to Max, each at most once, in the order in which they were ticked.
template <int Max>
class Cochees {
 public:
    constexpr Cochees() = default;
    constexpr Cochees(std::initializer_list<int> valeurs) { prendre(valeurs); }
    /// Of any range of integers; that of an Ensemble gives them ascending.
    template <typename Valeurs>
    requires requires(const Valeurs& v) { std::begin(v) != std::end(v); }
    constexpr Cochees(const Valeurs& valeurs) {  // NOLINT(google-explicit-constructor)
        prendre(valeurs);
    }

    constexpr const std::uint8_t* begin() const { return valeurs_.data(); }
    constexpr const std::uint8_t* end() const { return valeurs_.data() + nombre_; }
    constexpr int taille() const { return nombre_; }
    constexpr bool vide() const { return nombre_ == 0; }
    constexpr bool contient(int valeur) const { return std::find(begin(), end(), valeur) != end(); }
    constexpr Ensemble ensemble() const { return Ensemble::de(*this); }

    /// Behind the others; one that is there already stays where it is.
    constexpr void cocher(int valeur) {
        if (!contient(valeur)) valeurs_[nombre_++] = static_cast<std::uint8_t>(valeur);
    }
    /// The values behind it move up; nothing for one that is not there.
    constexpr void decocher(int valeur) {
        auto* fin = valeurs_.data() + nombre_;
        nombre_ =
            static_cast<std::uint8_t>(std::remove(valeurs_.data(), fin, valeur) - valeurs_.data());
    }

    friend constexpr bool operator==(const Cochees& a, const Cochees& b) {
        return std::equal(a.begin(), a.end(), b.begin(), b.end());
    }

 private:
    template <typename Valeurs>
    constexpr void prendre(const Valeurs& valeurs) {
        for (const auto valeur : valeurs) cocher(static_cast<int>(valeur));
    }

    std::array<std::uint8_t, Max> valeurs_{};
    std::uint8_t nombre_ = 0;
};
using NumerosCoches = Cochees<NumeroMax>;
using ChancesCochees = Cochees<ChanceMax>;

/// A ticket, sold or not: a board in the making and a list made by hand hold others too.
struct Grille {
    double mise = 0;  ///< euros, option 2nd Tirage included; nothing else tells that option
    NumerosCoches numeros;
    ChancesCochees chances;

    int n() const { return numeros.taille(); }
    int c() const { return chances.taille(); }
    /// Nothing is ticked.
    bool vide() const { return numeros.vide() && chances.vide(); }
    /// A ticket that the game sells.
    bool complete() const;

    friend bool operator==(const Grille&, const Grille&) = default;
};

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
Grille FaireGrille(const NumerosCoches& numeros, const ChancesCochees& chances, bool option2nd);

/// True when the stake of the ticket differs from TableMises.
bool ParticipeAu2ndTirage(const Grille& grille);

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
