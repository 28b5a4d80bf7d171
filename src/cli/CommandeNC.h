// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tickets of numbers and chances as a whole: their categories, their lists, the filters.
#pragma once

#include "Commandes.h"
#include "tickets/ListesNC.h"

namespace norvane {

class CommandeNcTable : public Commande {
 public:
    explicit CommandeNcTable(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string numeros_, chances_;
};

class CommandeNcListe : public Commande {
 public:
    explicit CommandeNcListe(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string type_, numeros_;
};

/// A filter of a list file, one row of a table of its own.
class CommandeNcFiltre : public Commande {
 public:
    struct Filtre {
        const char* nom;
        const char* description;
        void (*filtrer)(std::vector<LigneNC>& liste, const SortiesNC& sorties);
    };
    static std::span<const Filtre> filtres();

    CommandeNcFiltre(CLI::App& groupe, const Filtre& filtre);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    const Filtre& filtre_;
    std::string fichier_;
};

class CommandeNcJamais : public Commande {
 public:
    explicit CommandeNcJamais(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
};

}  // namespace norvane
