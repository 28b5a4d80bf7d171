// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <fstream>

#include "cible.h"
#include "comb/EtatCombinaisons.h"
#include "comb/LigneCombinaison.h"

using namespace norvane;

std::vector<std::string> graines() {
    return {"", "3214 12 51\n3214 0 10\n3214 0 3\n3214 0 2\n0 0 0\n0 0 0\n0 0 0\n0 0 0\n3214 0 9\n",
            "0 0 1\r\n0 0 1\r\n", "07 23  (112)\n08 09  (07) N\n", "01 02 03  (00)\r\n"};
}

// A state stays within what the engine can hold and comes back as written; an accepted line is a
// combination and comes back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto dossier = [] {
        const auto d =
            std::filesystem::temp_directory_path() / ("norvane-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(d);
        return d;
    }();
    const std::string contenu(reinterpret_cast<const char*>(octets), taille);
    std::ofstream(dossier / NomCombCalc, std::ios::binary) << contenu;
    if (const auto etat = LireCombCalc(dossier, 3214)) {
        for (std::size_t n = TailleCombMin; n <= TailleCombMax; ++n)
            exiger(etat->BorneInf[n] >= 0 && etat->BorneSup[n] <= 65535);
        exiger(static_cast<bool>(EcrireCombCalc(*etat, dossier)));
        const auto relu = LireCombCalc(dossier, 3214);
        exiger(relu && relu->BorneInf == etat->BorneInf && relu->BorneSup == etat->BorneSup);
    } else {
        exiger(!etat.erreur().empty());
    }
    for (int n = TailleCombMin; n <= 3; ++n) {
        std::ofstream(dossier / "liste.dat", std::ios::binary) << contenu;
        const auto lignes = LireListe(dossier / "liste.dat", n);
        if (!lignes) continue;
        for (const Combinaison& ligne : *lignes) {
            exiger(ligne.numeros.taille() == n);
            exiger(LireLigneCombinaison(LigneCombinaison(ligne)) == ligne);
        }
    }
    return 0;
}
