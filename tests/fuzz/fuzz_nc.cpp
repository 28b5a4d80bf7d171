// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cible.h"
#include "tickets/ListesNC.h"

using namespace norvane;

std::vector<std::string> graines() {
    return {"", "N: 03 14 25 31 44   C: 02 07 \nN: 01 02 03 04 05   C: 09 10 \n",
            "\xEF\xBB\xBFN: 01 02 03 04 05 06 07 08 09   C: 10\r\n\r\n",
            "N: 01 02 03 04 05 49   C: 01 02 03 04 05 06 07 08 09 10 \nN: 1"};
}

// What is accepted is a list of one type that is sold, and comes back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    const auto liste = LireListeNC({reinterpret_cast<const char*>(octets), taille});
    if (!liste) {
        exiger(!liste.erreur().empty());
        return 0;
    }
    exiger(!liste->empty());
    for (const LigneNC& ligne : *liste) {
        exiger(ligne.type() == liste->front().type());
        exiger(TableMises(ligne.type().n, ligne.type().c) > MiseIncomplete);
        exiger(Ensemble(MasqueNumero(NumeroMax + 1) - 1).contient(ligne.numeros));
        exiger(Ensemble(MasqueNumero(ChanceMax + 1) - 1).contient(ligne.chances));
    }
    const auto relue = LireListeNC(TexteListeNC(*liste));
    exiger(relue && *relue == *liste);
    return 0;
}
