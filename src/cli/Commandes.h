// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The commands, one class each, and the list of them.
#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Contexte.h"

namespace norvane {

/// One command: it declares its words, options and help, then runs when the line names it.
class Commande {
 public:
    virtual ~Commande() = default;
    Commande(const Commande&) = delete;
    Commande& operator=(const Commande&) = delete;

    bool choisie() const { return app_->parsed(); }

    /// Writes its results to `out`, which reaches the user only when all went well.
    virtual Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) = 0;

 protected:
    explicit Commande(CLI::App* app) : app_(app) {}
    CLI::App& sousCommande() { return *app_; }

 private:
    CLI::App* app_;  // owned by its parent
};

class CommandeBase : public Commande {
 public:
    explicit CommandeBase(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;
};

class CommandeTirages : public Commande {
 public:
    explicit CommandeTirages(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;
};

class CommandeStatsNumeros : public Commande {
 public:
    explicit CommandeStatsNumeros(CLI::App& stats);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;
};

class CommandeStatsChances : public Commande {
 public:
    explicit CommandeStatsChances(CLI::App& stats);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;
};

class CommandeCombExtremes : public Commande {
 public:
    explicit CommandeCombExtremes(CLI::App& comb);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::optional<long> taille_;
    bool series_ = false;
};

class CommandeCombStats : public Commande {
 public:
    explicit CommandeCombStats(CLI::App& comb);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string numeros_;
};

/// A prize rule of whole numbers, one row of a table of its own.
class CommandeRegle : public Commande {
 public:
    struct Argument {
        const char* nom;
        const char* description;
        int min, max;
    };
    struct Regle {
        const char* nom;
        const char* description;
        std::vector<Argument> arguments;
        const char* option;  ///< a flag and what it means, or nullptr
        const char* sensOption;
        /// The line to print, from arguments in their ranges.
        Resultat<std::string> (*calculer)(std::span<const int> arguments, bool option);
    };
    static std::span<const Regle> regles();

    CommandeRegle(CLI::App& groupe, const Regle& regle);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    const Regle& regle_;
    std::vector<std::optional<long>> valeurs_;
    bool option_ = false;
};

class CommandeReglesJoker : public Commande {
 public:
    explicit CommandeReglesJoker(CLI::App& groupe);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string joue_, tire_;
    std::optional<long> code_;
};

class CommandeAleatoire : public Commande {
 public:
    explicit CommandeAleatoire(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string type_;
    std::optional<long> nombre_, graine_;
};

class CommandeVerifier : public Commande {
 public:
    explicit CommandeVerifier(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
    std::optional<long> tirage_;  ///< one-based draw number, unchecked
};

class CommandeBilan : public Commande {
 public:
    explicit CommandeBilan(CLI::App& racine);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    std::string fichier_;
};

/// Declares all commands on `racine`, in the order of its help.
std::vector<std::unique_ptr<Commande>> DeclarerCommandes(CLI::App& racine);

}  // namespace norvane
