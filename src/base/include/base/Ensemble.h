// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A set of numbers, or of Chances: the one form in which the board, the tickets, the selections and
// the engine hand such sets to each other.
#pragma once

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <vector>

namespace norvane {

/// The bits of a set: bit n-1 for the value n.
using Masque = std::uint64_t;

constexpr Masque MasqueNumero(int n) {
    return Masque{1} << (n - 1);
}

/// Values from 1 to 64, each at most once. Walks give them ascending.
class Ensemble {
 public:
    constexpr Ensemble() = default;
    explicit constexpr Ensemble(Masque bits) : bits_(bits) {}
    constexpr Ensemble(std::initializer_list<int> valeurs) {
        for (const int n : valeurs) ajouter(n);
    }
    /// Of any range of integers.
    template <typename Valeurs>
    static constexpr Ensemble de(const Valeurs& valeurs) {
        Ensemble ensemble;
        for (const auto n : valeurs) ensemble.ajouter(static_cast<int>(n));
        return ensemble;
    }

    constexpr Masque bits() const { return bits_; }
    constexpr int taille() const { return std::popcount(bits_); }
    constexpr bool vide() const { return bits_ == 0; }
    constexpr bool contient(int n) const { return (bits_ & MasqueNumero(n)) != 0; }
    constexpr bool contient(Ensemble autre) const { return (autre.bits_ & ~bits_) == 0; }

    constexpr void ajouter(int n) { bits_ |= MasqueNumero(n); }
    constexpr void retirer(int n) { bits_ &= ~MasqueNumero(n); }
    constexpr void basculer(int n) { bits_ ^= MasqueNumero(n); }

    constexpr Ensemble commun(Ensemble autre) const { return Ensemble(bits_ & autre.bits_); }
    constexpr Ensemble sans(Ensemble autre) const { return Ensemble(bits_ & ~autre.bits_); }
    constexpr Ensemble avec(Ensemble autre) const { return Ensemble(bits_ | autre.bits_); }

    class Marche {
     public:
        using value_type = int;
        using difference_type = std::ptrdiff_t;
        constexpr Marche() = default;
        explicit constexpr Marche(Masque reste) : reste_(reste) {}
        constexpr int operator*() const { return std::countr_zero(reste_) + 1; }
        constexpr Marche& operator++() {
            reste_ &= reste_ - 1;
            return *this;
        }
        constexpr Marche operator++(int) {
            Marche avant = *this;
            ++*this;
            return avant;
        }
        friend constexpr bool operator==(const Marche&, const Marche&) = default;

     private:
        Masque reste_ = 0;
    };
    constexpr Marche begin() const { return Marche(bits_); }
    constexpr Marche end() const { return Marche(); }

    std::vector<int> valeurs() const { return {begin(), end()}; }

    friend constexpr bool operator==(Ensemble, Ensemble) = default;

 private:
    Masque bits_ = 0;
};

}  // namespace norvane
