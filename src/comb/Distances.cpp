// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Distances.h"

#include <algorithm>

namespace norvane {

void VersDistances(const Occurrences& occ, TableDistances& table) {
    auto& lignes = table.DistanceTirage;
    lignes.resize(occ.PositionNumero.size());
    for (std::size_t k = 0; k < NumeroMax; ++k) {
        const ListeOccurrences& liste = occ.ListeNumeros[k];
        std::size_t debut = 0;  // first draw not written yet
        const auto remplir = [&](std::size_t prochain) {
            for (; debut < prochain; ++debut) {
                const auto reste = std::min<std::size_t>(prochain - debut, DistanceMax);
                const bool present = occ.PositionNumero[debut][k] >= 0;
                lignes[debut][k] = static_cast<std::int16_t>(present ? static_cast<int>(reste)
                                                                     : -static_cast<int>(reste));
            }
        };
        for (const Occurrence d : liste) remplir(d);
        remplir(lignes.size());
    }
}

void VersPositions(TableDistances& table) {
    table = {};
}

}  // namespace norvane
