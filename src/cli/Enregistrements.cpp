// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Enregistrements.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>

namespace norvane {

void EcrireEnregistrements(std::ostream& out, Disposition disposition, std::span<const Mot> mots) {
    constexpr std::size_t Lot = 4096;  // records written at a time
    const auto pas = static_cast<std::size_t>(disposition.mots());
    const auto debut = static_cast<std::size_t>(disposition.numeros());
    std::string texte;
    while (!mots.empty()) {
        texte.clear();
        auto lot = mots.first(std::min(mots.size(), Lot * pas));
        mots = mots.subspan(lot.size());
        for (; !lot.empty(); lot = lot.subspan(pas)) {
            const auto fin = std::back_inserter(texte);
            fmt::format_to(fin, "{:02}\t", fmt::join(lot.subspan(debut, pas - debut), " "));
            fmt::format_to(fin, "{}\n", fmt::join(lot.first(debut), " "));
        }
        out << texte;
    }
}

}  // namespace norvane
