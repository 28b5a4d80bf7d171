// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The marks of play slips.
#pragma once

#include "Commandes.h"

namespace norvane {

class CommandeBulletins : public Commande {
 public:
    explicit CommandeBulletins(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
    std::optional<long> du_, au_, marque_;
};

}  // namespace norvane
