// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/BaseIntegree.h"

#include <cstring>

#include "TableIntegree.h"

namespace norvane {

Base BaseIntegree(bool globale) {
    const TableIntegree& table = tableIntegree;
    const int anciens = globale ? table.nbAnciens : 0;
    const int nombre = anciens + table.nbNouveaux;

    Base base;
    base.NbTirages = nombre;
    base.NbAnciensTirages = anciens;
    base.AnciensTirages = globale;
    base.Tirages.resize(static_cast<std::size_t>(nombre));
    base.Rapports.resize(static_cast<std::size_t>(nombre));
    std::memcpy(base.Tirages.data(), table.tirages + (table.nbAnciens - anciens),
                static_cast<std::size_t>(nombre) * sizeof(Tirage));
    for (int i = 0; i < table.nbNouveaux; ++i) {
        RapportsTirage& rapports =
            base.Rapports[static_cast<std::size_t>(anciens) + static_cast<std::size_t>(i)];
        const std::uint32_t* source = table.rapports[i];
        for (Rapport& rapport : rapports) {
            rapport.Gagnants = *source++;
            rapport.Gain = *source++ / 100.0;  // the double nearest to the decimal amount
        }
    }
    return base;
}

}  // namespace norvane
