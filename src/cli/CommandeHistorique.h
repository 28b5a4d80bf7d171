// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The history of a number or of a Chance.
#pragma once

#include "Commandes.h"
#include "stats/Cellule.h"

namespace norvane {

class CommandeHistorique : public Commande {
 public:
    CommandeHistorique(CLI::App& groupe, GenreStats genre);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    GenreStats genre_;
    std::optional<long> valeur_;
    bool tout_ = false;
    std::string format_ = "tsv";
    std::optional<std::string> sortie_;
};

}  // namespace norvane
