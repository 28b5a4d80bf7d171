// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/GrillesHasard.h"

namespace norvane {

namespace {

/// `combien` different values: a repeat is drawn again.
template <int Max>
Cochees<Max> TirerValeurs(GenerateurHasard& hasard, int combien) {
    Cochees<Max> valeurs;
    while (valeurs.taille() < combien) valeurs.cocher(hasard.tirer(Max) + 1);
    return valeurs;
}

}  // namespace

int GenerateurHasard::tirer() {
    etat_ = etat_ * 22695477U + 1U;
    return static_cast<int>(etat_ >> 16 & 0x7FFFU);
}

Grille TirerGrille(GenerateurHasard& hasard, TypeGrille type) {
    const auto numeros = TirerValeurs<NumeroMax>(hasard, type.n);
    const auto chances = TirerValeurs<ChanceMax>(hasard, type.c);
    return FaireGrille(numeros, chances, false);
}

void AjouterGrillesHasard(std::vector<Grille>& grilles, GenerateurHasard& hasard, TypeGrille type,
                          int nombre) {
    for (int i = 0; i < nombre; ++i) {
        const Grille tiree = TirerGrille(hasard, type);
        grilles.push_back({tiree.mise, tiree.numeros.ensemble(), tiree.chances.ensemble()});
    }
}

}  // namespace norvane
