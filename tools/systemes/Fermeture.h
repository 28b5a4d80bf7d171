// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What one design gives to its neighbours: dropped points, unions and products over a split of
// the points, monotony, and the removal of superfluous blocks.
#pragma once

#include <map>
#include <random>
#include <set>

#include "Dessin.h"

namespace systemes {

/// Fills the blocks that have fewer than k points, then takes out superfluous blocks, one at a
/// time in a random order. The blocks given must form a design of the key.
std::vector<Bloc> Elaguer(const Cle& cle, std::vector<Bloc> blocs, std::mt19937_64& alea);

class Fermeture {
 public:
    /// `essayes`: what was tried before, so that it is not tried again while its sources stand.
    Fermeture(std::string racine, std::set<std::string> essayes, std::uint64_t graine);

    /// Applies every rule to every key until nothing changes; number of designs improved.
    int fermer();
    const std::set<std::string>& essayes() const { return essayes_; }

 private:
    /// Blocks of one part of a sum: the products of the blocks of two designs on the two sides.
    struct Terme {
        Cle gauche;
        Cle droite;
        long taille = 0;
    };
    struct Recette {
        int a = 0;  ///< points on the left side
        std::vector<Terme> termes;
        long taille = 0;
    };

    long taille(const Cle& cle) const;
    std::vector<Bloc> blocs(const Cle& cle) const;
    Terme meilleurTerme(const Cle& cle, int a, int i) const;
    Recette meilleureRecette(const Cle& cle, int a) const;
    bool parProduits(const Cle& cle);
    bool parMonotonie(const Cle& cle);
    bool parPointOte(const Cle& cle);
    bool parTriples(const Cle& cle);
    bool parDoublement(const Cle& cle);
    bool nouveau(const std::string& signature);
    bool proposer(const Cle& cle, const char* methode, const std::string& quoi,
                  const std::vector<Bloc>& blocs);
    bool valeurPossible(const Cle& cle, long estimation, double marge) const;

    std::string racine_;
    std::set<std::string> essayes_;
    std::mt19937_64 alea_;
    std::vector<Cle> cles_;
    std::map<Cle, std::vector<Bloc>> stock_;
};

}  // namespace systemes
