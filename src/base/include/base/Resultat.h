// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a call that can fail gives back: its value, or one French sentence for the user.
#pragma once

#include <string>
#include <utility>
#include <variant>

namespace norvane {

/// Why something was refused or failed: one sentence that says what, where and what to do.
struct Erreur {
    std::string message;
};

/// Nothing to give back but success.
struct Rien {};

template <typename T>
class [[nodiscard]] Resultat {
 public:
    Resultat(T valeur) : etat_(std::in_place_index<0>, std::move(valeur)) {}       // NOLINT
    Resultat(Erreur erreur) : etat_(std::in_place_index<1>, std::move(erreur)) {}  // NOLINT

    explicit operator bool() const { return etat_.index() == 0; }
    const T& operator*() const& { return std::get<0>(etat_); }
    T& operator*() & { return std::get<0>(etat_); }
    T&& operator*() && { return std::get<0>(std::move(etat_)); }
    const T* operator->() const { return &std::get<0>(etat_); }
    T* operator->() { return &std::get<0>(etat_); }
    /// The sentence; only when there is no value.
    const std::string& erreur() const { return std::get<1>(etat_).message; }

 private:
    std::variant<T, Erreur> etat_;
};

}  // namespace norvane
