// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/Refus.h"

#include <fmt/format.h>

#include "tickets/Grille.h"

namespace norvane {

Reponse PeutCocher(GenreStats genre, int n, int c) {
    const int numero = genre == GenreStats::Numeros ? 1 : 0;
    if (TableMises(n + numero, c + 1 - numero) != MiseInjouable) return {};
    std::string phrase = fmt::format("Vous ne pouvez pas cocher plus de {} numéros.", n);
    if (genre == GenreStats::Chances) {
        phrase = fmt::format(
            "Vous avez coché {} numéros, vous ne pouvez pas cocher plus de {} chances.", n, c);
    } else if (c >= 2) {
        phrase = fmt::format(
            "Vous avez coché {} chances, vous ne pouvez pas cocher plus de {} numéros.", c, n);
    }
    return Refus{Refus::Titre::Attention, std::move(phrase), {}};
}

}  // namespace norvane
