// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/GrillesHasard.h"

#include <algorithm>
#include <bitset>

#include "base/Tirage.h"

namespace norvane {

namespace {

/// `combien` different values from 1 to `max`: a repeat is drawn again.
void TirerValeurs(GenerateurHasard& hasard, int combien, int max, std::vector<int>& valeurs) {
    std::bitset<NumeroMax> tirees;
    valeurs.clear();
    while (static_cast<int>(valeurs.size()) < combien) {
        const auto place = static_cast<std::size_t>(hasard.tirer(max));
        if (tirees.test(place)) continue;
        tirees.set(place);
        valeurs.push_back(static_cast<int>(place) + 1);
    }
}

void Tirer(GenerateurHasard& hasard, TypeGrille type, TirageHasard& tirage) {
    TirerValeurs(hasard, type.n, NumeroMax, tirage.numeros);
    TirerValeurs(hasard, type.c, ChanceMax, tirage.chances);
}

}  // namespace

int GenerateurHasard::tirer() {
    etat_ = etat_ * 22695477U + 1U;
    return static_cast<int>(etat_ >> 16 & 0x7FFFU);
}

TirageHasard TirerGrille(GenerateurHasard& hasard, TypeGrille type) {
    TirageHasard tirage;
    Tirer(hasard, type, tirage);
    return tirage;
}

void AjouterGrillesHasard(std::vector<Grille>& grilles, GenerateurHasard& hasard, TypeGrille type,
                          int nombre) {
    TirageHasard tirage;
    for (int i = 0; i < nombre; ++i) {
        Tirer(hasard, type, tirage);
        std::ranges::sort(tirage.numeros);
        std::ranges::sort(tirage.chances);
        grilles.push_back(FaireGrille(tirage.numeros, tirage.chances, false));
    }
}

}  // namespace norvane
