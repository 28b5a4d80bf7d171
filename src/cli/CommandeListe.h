// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the files of lists and of selections hold.
#pragma once

#include "Commandes.h"

namespace norvane {

class CommandeListeLire : public Commande {
 public:
    explicit CommandeListeLire(CLI::App& liste);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
};

class CommandeSelectionLire : public Commande {
 public:
    explicit CommandeSelectionLire(CLI::App& selection);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
};

}  // namespace norvane
