// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Base.h"

#include <algorithm>
#include <utility>

namespace norvane {

RechercheDate TirageParDate(std::span<const Tirage> table, int date, int nombre) {
    int i = 0;
    while (i < nombre && table[static_cast<std::size_t>(i)].DateTirage < date) ++i;
    if (i < nombre && table[static_cast<std::size_t>(i)].DateTirage == date) return {i, i};
    return {-1, i - 1};
}

void InsererTirage(Base& base, int p, const Tirage& tirage, const RapportsTirage& rapports) {
    constexpr int rangsEchanges = 6;
    const auto place = static_cast<std::size_t>(p);
    const auto fin = static_cast<std::size_t>(base.NbTirages);
    // Copies: the arguments may be entries of the tables that are about to move.
    const Tirage nouveau = tirage;
    const RapportsTirage nouveauxRapports = rapports;
    if (base.Tirages.size() <= fin) base.Tirages.resize(fin + 1);
    if (base.Rapports.size() <= fin) base.Rapports.resize(fin + 1);

    for (std::size_t i = fin; i > place; --i) {
        std::swap(base.Tirages[i], base.Tirages[i - 1]);
        std::swap_ranges(base.Rapports[i].begin(), base.Rapports[i].begin() + rangsEchanges,
                         base.Rapports[i - 1].begin());
    }
    base.Tirages[place] = nouveau;
    base.Rapports[place] = nouveauxRapports;
    ++base.NbTirages;
    if (!base.AnciensTirages && p < base.NbAnciensTirages) ++base.NbAnciensTirages;
}

void SupprimerTirage(Base& base, int p) {
    const auto retirer = [&](auto& table) {
        std::copy(table.begin() + p + 1, table.begin() + base.NbTirages, table.begin() + p);
    };
    retirer(base.Tirages);
    retirer(base.Rapports);
    --base.NbTirages;
    if (!base.AnciensTirages && p < base.NbAnciensTirages) --base.NbAnciensTirages;
}

int CompterAnciensTirages(std::span<const Tirage> tirages) {
    const auto fin = std::ranges::find_if(
        tirages, [](const Tirage& t) { return t.DateTirage >= DateNouveauLoto; });
    return static_cast<int>(fin - tirages.begin());
}

}  // namespace norvane
