// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <sstream>

#include "base/BaseIntegree.h"
#include "base/TableCsv.h"
#include "cible.h"

using namespace norvane;

std::vector<std::string> graines() {
    const Base base = BaseIntegree(true);
    std::vector<std::string> textes = {"", "date;sous_tirage\n"};
    for (const auto& [premier, dernier] : {std::pair(0, 0), {4857, 4860}, {8060, 8071}}) {
        std::ostringstream flux;
        EcrireTableCsv(flux, base, premier, dernier);
        textes.push_back(flux.str());
    }
    return textes;
}

// What is accepted comes back the same when it is written and read again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    const Resultat<Base> lue = LireTableCsv({reinterpret_cast<const char*>(octets), taille});
    if (!lue) {
        exiger(!lue.erreur().empty());
        return 0;
    }
    std::ostringstream flux;
    EcrireTableCsv(flux, *lue, 0, lue->NbTirages - 1);
    const Resultat<Base> relue = LireTableCsv(flux.str());
    exiger(relue && relue->Tirages == lue->Tirages && relue->Rapports == lue->Rapports);
    return 0;
}
