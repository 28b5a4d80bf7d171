// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tickets in memory: the stock, the receipt and the working copy of one of them.
#pragma once

#include <cstddef>
#include <vector>

#include "tickets/Grille.h"
#include "tickets/Rangs.h"

namespace norvane {

struct Billets {
    std::vector<Grille> ListeGrilles;    ///< the working list: a copy of one of the next two
    std::vector<Grille> ListeRecu;       ///< the tickets of the receipt
    std::vector<Grille> ListeChoix;      ///< the stock of grids, at most NbGrillesMax
    std::vector<LigneJoker> ListeJoker;  ///< the Joker+ lines of the receipt
    bool aSauver = false;                ///< the stock holds what no file holds
};

/// True when both hold the same tickets in the same order: stake, numbers and chances.
inline bool ListesEgales(const std::vector<Grille>& a, const std::vector<Grille>& b) {
    return a == b;
}

/// A deep copy in place of what `destination` held.
inline void CopierListe(std::vector<Grille>& destination, const std::vector<Grille>& source) {
    destination = source;
}

/// Opens an empty place (stake 0, no number, no chance) at `indice`, 0 to the size of the list.
inline void NouvelleGrille(std::vector<Grille>& liste, std::size_t indice) {
    liste.insert(liste.begin() + static_cast<std::ptrdiff_t>(indice), Grille{});
}

/// Takes the empty places out.
inline void RetirerVides(std::vector<Grille>& liste) {
    std::erase_if(liste, [](const Grille& grille) { return grille.vide(); });
}

}  // namespace norvane
