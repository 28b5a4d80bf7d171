// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Tirage.h"

#include <charconv>
#include <string>
#include <string_view>

namespace norvane {

std::array<int, 7> ChiffresJoker(std::int32_t joker) {
    std::array<int, 7> chiffres;
    if (joker < 0) {
        chiffres.fill(-1);
        return chiffres;
    }
    for (auto c = chiffres.rbegin(); c != chiffres.rend(); ++c, joker /= 10) *c = joker % 10;
    return chiffres;
}

NumeroAnnee LireNumeroAnnee(std::int32_t anneeNumero) {
    const std::string texte = std::to_string(anneeNumero);
    const std::string_view vue = texte;
    const auto valeur = [](std::string_view chiffres) {
        int n = 0;
        std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), n);
        return n;
    };
    // A draw typed by hand may have fewer than three digits behind the year.
    const std::size_t debut = vue.size() == 8 ? 5 : 4;
    return {valeur(vue.substr(0, 4)), vue.size() > debut ? valeur(vue.substr(debut, 3)) : 0};
}

}  // namespace norvane
