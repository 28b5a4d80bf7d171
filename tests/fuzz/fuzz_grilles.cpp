// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cible.h"
#include "tickets/FichiersGrilles.h"

using namespace norvane;

std::vector<std::string> graines() {
    return {"",
            "0\n",
            "0\n0\n",
            "2\n2.2 5 3 14 25 31 44 1 7\n31.2 6 1 2 3 4 5 6 2 4 10\n",
            "1\r\n2.2 5 3 14 25 31 44 1 7\r\n2\r\n1 2 3 4 5 6 7 3 \r\n0 0 0 0 0 0 9 1 \r\n",
            "1\n378 9 49 48 47 46 45 44 43 42 41 1 10\n1\n9 9 9 9 9 9 9 4 \n"};
}

namespace {

void verifierGrilles(const std::vector<Grille>& grilles) {
    const Tirage tirage = {{1, 2, 3, 4, 5}, 1, 0, 0, 20240101, 1, JokerAbsent};
    for (const Grille& grille : grilles) {
        exiger(grille.numeros.ensemble().taille() == grille.n() &&
               grille.chances.ensemble().taille() == grille.c());
        exiger(Ensemble(MasqueNumero(NumeroMax + 1) - 1).contient(grille.numeros.ensemble()));
        const Bons bons = CompterBons(grille, tirage);
        exiger(bons.numeros <= 5 && bons.chances <= 1);
        RangsGagnes(grille, tirage);
        Rangs2ndGagnes(grille, tirage);
    }
}

}  // namespace

// What is accepted is safe for the prize rules; written once (a stake keeps six digits), it comes
// back the same for ever.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    const std::string_view texte(reinterpret_cast<const char*>(octets), taille);
    if (const auto grilles = LireGrilles(texte)) {
        verifierGrilles(*grilles);
        const std::string ecrit = TexteGrilles(*grilles);
        const auto relues = LireGrilles(ecrit);
        exiger(relues && TexteGrilles(*relues) == ecrit);
    } else {
        exiger(!grilles.erreur().empty());
    }
    if (const auto recu = LireRecu(texte)) {
        verifierGrilles(recu->grilles);
        const std::string ecrit = TexteRecu(*recu);
        const auto relu = LireRecu(ecrit);
        exiger(relu && TexteRecu(*relu) == ecrit && relu->jokers == recu->jokers);
        for (const LigneJoker& ligne : recu->jokers)
            exiger(GainJokerLigne(ligne, {0, 9, 0, 9, 0, 9, 0}).gain() <= 500000);
    } else {
        exiger(!recu.erreur().empty());
    }
    return 0;
}
