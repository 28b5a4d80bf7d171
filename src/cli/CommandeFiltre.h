// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The draws that a filter keeps.
#pragma once

#include "Commandes.h"

namespace norvane {

class CommandeFiltre : public Commande {
 public:
    explicit CommandeFiltre(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
};

}  // namespace norvane
