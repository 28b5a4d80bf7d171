// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/ostream.h>

#include <ostream>

#include "Commandes.h"

namespace norvane {

CommandeBase::CommandeBase(CLI::App& racine)
    : Commande(racine.add_subcommand("base", "Ce que contient la base des tirages")) {}

Resultat<Rien> CommandeBase::executer(const Contexte& contexte, std::ostream& out) {
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const Base& base = donnees->base;
    const auto tirages = base.enUsage();
    fmt::print(out,
               "cle\tvaleur\nNbTirages\t{}\nNbAnciensTirages\t{}\nAnciensTirages\t{:d}\n"
               "Premier\t{}\nDernier\t{}\n",
               base.NbTirages, base.NbAnciensTirages, base.AnciensTirages,
               tirages.front().DateTirage, tirages.back().DateTirage);
    return Rien{};
}

}  // namespace norvane
