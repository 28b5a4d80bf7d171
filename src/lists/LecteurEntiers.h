// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The whole numbers of a text, one after the other, white space between them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace norvane {

class LecteurEntiers {
 public:
    explicit LecteurEntiers(std::string_view texte)
        : ici_(texte.data()), fin_(texte.data() + texte.size()) {}

    /// Moves to the next word; false at the end of the text.
    bool suivant() {
        while (ici_ != fin_ && Blanc(*ici_)) ++ici_;
        return ici_ != fin_;
    }

    /// Takes the word that suivant() found when it is an integer 0..max; else it stays there.
    std::optional<std::uint32_t> entier(std::uint32_t max) {
        const char* p = ici_;
        std::uint64_t valeur = 0;
        for (; p != fin_ && *p >= '0' && *p <= '9'; ++p) {
            valeur = valeur * 10 + static_cast<unsigned>(*p - '0');
            if (valeur > max) return std::nullopt;
        }
        if (p == ici_ || (p != fin_ && !Blanc(*p))) return std::nullopt;
        ici_ = p;
        return static_cast<std::uint32_t>(valeur);
    }

    /// The word that suivant() found, whatever it is.
    std::string_view mot() const {
        const char* p = ici_;
        while (p != fin_ && !Blanc(*p)) ++p;
        return {ici_, static_cast<std::size_t>(p - ici_)};
    }

 private:
    static bool Blanc(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

    const char* ici_;
    const char* fin_;
};

}  // namespace norvane
