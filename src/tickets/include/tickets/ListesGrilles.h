// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Lists of tickets in memory: the stock, the receipt and the working copy of one of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "tickets/Grille.h"

namespace norvane {

/// True when both hold the same tickets in the same order: stake, numbers and chances.
inline bool ListesEgales(const std::vector<Grille>& a, const std::vector<Grille>& b) {
    return a == b;
}

/// A deep copy in place of what `destination` held.
inline void CopierListe(std::vector<Grille>& destination, const std::vector<Grille>& source) {
    destination = source;
}

/// Opens an empty slot (stake 0, no number, no chance) at `indice`, 0 to the size of the list.
inline void NouvelleGrille(std::vector<Grille>& liste, std::size_t indice) {
    liste.insert(liste.begin() + static_cast<std::ptrdiff_t>(indice), Grille{0.0, 0.0, 0.0});
}

/// A slot that nothing was entered in.
inline bool EstVide(const Grille& grille) {
    return grille.size() == 3;
}

}  // namespace norvane
