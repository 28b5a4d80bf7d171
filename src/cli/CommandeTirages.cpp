// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/TableCsv.h"
#include "Commandes.h"

namespace norvane {

CommandeTirages::CommandeTirages(CLI::App& racine)
    : Commande(racine.add_subcommand("tirages", "Les tirages de l'intervalle, en CSV")) {}

Resultat<Rien> CommandeTirages::executer(const Contexte& contexte, std::ostream& out) {
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    EcrireTableCsv(out, donnees->base, donnees->de - 1, donnees->a - 1);
    return Rien{};
}

}  // namespace norvane
