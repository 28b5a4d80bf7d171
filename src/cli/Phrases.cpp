// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Phrases.h"

#include <fmt/format.h>

#include <ostream>
#include <string>

namespace norvane {

namespace {

std::string Echapper(char c) {
    switch (c) {
        case '\n':
            return "\\n";
        case '\r':
            return "\\r";
        case '\t':
            return "\\t";
        default:
            return fmt::format("\\x{:02X}", static_cast<unsigned char>(c));
    }
}

/// Bytes of the control character at the start: one, or the two of U+0080 to U+009F; 0 for none.
std::size_t LongueurCommande(std::string_view texte) {
    const auto octet = [&](std::size_t i) { return static_cast<unsigned char>(texte[i]); };
    if (octet(0) < 0x20 || octet(0) == 0x7F) return 1;
    return octet(0) == 0xC2 && texte.size() > 1 && octet(1) < 0xA0 ? 2 : 0;
}

}  // namespace

void EcrirePhrase(std::ostream& err, std::string_view phrase) {
    std::string ligne;
    while (!phrase.empty()) {
        const std::size_t longueur = LongueurCommande(phrase);
        for (std::size_t i = 0; i < longueur; ++i) ligne += Echapper(phrase[i]);
        if (longueur == 0) ligne += phrase.front();
        phrase.remove_prefix(longueur == 0 ? 1 : longueur);
    }
    err << ligne << '\n';
}

}  // namespace norvane
