// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The analyses report as text or as a web page.
#pragma once

#include "Commandes.h"

namespace norvane {

class CommandeAnalyses : public Commande {
 public:
    explicit CommandeAnalyses(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string format_ = "texte";
    std::string sortie_;
};

}  // namespace norvane
