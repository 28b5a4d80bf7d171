// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The combinations whose count lies between two bounds: printed as they come, counted, or kept as a
// list whose ranks are filled, whose lines are sorted, that is printed or written to a file.
#pragma once

#include "comb/Selection.h"
#include "Commandes.h"
#include "lists/Tri.h"

namespace norvane {

struct ContexteComb;
class Puits;

class CommandeCombBornes : public Commande {
 public:
    explicit CommandeCombBornes(CLI::App& comb);
    Resultat<Rien> executer(const Contexte& contexte, std::ostream& out) override;

 private:
    struct Demande;
    Resultat<Demande> verifier() const;
    Resultat<GrilleSelection> lireSelection() const;
    Resultat<EtatTri> lireTri(int taille) const;
    /// Gives the records to the sink, at most `limite` of them where that is not 0, or only counts
    /// them; how many there are.
    Resultat<std::uint64_t> chercher(const ContexteComb& c, const Demande& demande,
                                     std::uint64_t limite, Puits& puits) const;
    /// The list with its ranks and its order.
    Resultat<Liste> dresser(const ContexteComb& c, const Demande& demande,
                            const Contexte& contexte) const;

    std::optional<long> taille_, inf_, sup_, stockage_, max_, profondeur_;
    std::optional<std::string> absolue_, secondaire_, tri_, sortie_;
    bool series_ = false;
    bool compter_ = false;
    bool rangs_ = false;
    bool gain_ = false;
    bool decroissant_ = false;
};

}  // namespace norvane
