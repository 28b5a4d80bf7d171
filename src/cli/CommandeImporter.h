// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// An official archive brought into the base.
#pragma once

#include "Commandes.h"

namespace norvane {

class CommandeImporter : public Commande {
 public:
    explicit CommandeImporter(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
};

}  // namespace norvane
