// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reducing systems: their catalogues, their grids, their files, their proof.
#pragma once

#include "base/Ensemble.h"
#include "Commandes.h"
#include "systems/Catalogue.h"

namespace norvane {

class CommandeSystemesCatalogue : public Commande {
 public:
    explicit CommandeSystemesCatalogue(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string garantie_;
};

/// A guarantee over a selection, as two commands take it.
struct OptionsSelection {
    std::string garantie, numeros, fixes;

    struct Lue {
        TypeGarantie type;
        Ensemble numeros, fixes;
    };
    void declarer(CLI::App& app);
    Resultat<Lue> lire() const;
};

class CommandeSystemesGenerer : public Commande {
 public:
    explicit CommandeSystemesGenerer(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    OptionsSelection selection_;
    std::optional<std::string> sortie_;
};

class CommandeSystemesLire : public Commande {
 public:
    explicit CommandeSystemesLire(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
};

class CommandeSystemesVerifier : public Commande {
 public:
    explicit CommandeSystemesVerifier(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
    OptionsSelection selection_;
};

}  // namespace norvane
