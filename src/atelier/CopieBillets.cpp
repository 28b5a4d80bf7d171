// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/CopieBillets.h"

#include <fmt/format.h>

#include "tickets/GrillesHasard.h"

namespace norvane {

Resultat<Rien> VerifierTailleGrille(int taille) {
    if (TableMises(taille, 1) > MiseIncomplete) return Rien{};
    return Erreur{fmt::format(
        "Des combinaisons de {} numéros ne font pas de grilles : un bulletin prend de 5 à 9 "
        "numéros avec une Chance, choisissez une liste de l'une de ces tailles.",
        taille)};
}

Resultat<std::vector<Grille>> GrillesDeLignes(const Liste& liste, LignesChoisies lignes, int chance,
                                              std::uint32_t graine) {
    const auto taille = VerifierTailleGrille(liste.taille());
    if (!taille) return Erreur{taille.erreur()};
    GenerateurHasard hasard(graine);
    std::vector<Grille> grilles;
    grilles.reserve(lignes.size());
    for (const std::size_t ligne : lignes) {
        const int sienne = chance == ChanceAuHasard ? 1 + hasard.tirer(ChanceMax) : chance;
        grilles.push_back(FaireGrille(liste.numeros(ligne), {sienne}, false));
    }
    return grilles;
}

}  // namespace norvane
