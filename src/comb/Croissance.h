// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Walks over combinations of six to ten numbers that grow by one number at a time.
//
// Why few sets are enough. A set of m numbers with a draws inside has 5a places of draws on m
// numbers: its least used number is in at most 5a/m of them. Without it, m - 1 numbers still hold
// ceil(a (m - 5) / m) draws. So whatever holds K draws in N numbers is reached from a draw by
// adding numbers one by one, and each set on the way holds at least a count that is known
// beforehand: 10 draws in 10 numbers come from 5 in 9, 3 in 8, 2 in 7. Sets below that are never
// looked at. Removing the least used number (the lowest where several are) gives each set one
// parent, so nothing is reached twice and nothing has to be remembered.
#pragma once

#include <array>
#include <atomic>
#include <vector>

#include "IndexTirages.h"

namespace norvane {

/// Receives what a walk finds. Each thread has its own.
class Recolte {
 public:
    virtual ~Recolte() = default;
    /// The combinations made of `base` and one number of `ajouts`; each holds `compte` draws.
    virtual void recevoir(Masque base, Masque ajouts, int compte) = 0;
    /// Asked every few hundred sets; false ends the walk.
    virtual bool continuer() = 0;
};

class Croissance {
 public:
    /// Combinations that hold `minimum` to `maximum` draws are given to `recolte`. `minimum` (1 or
    /// more) may rise while the walk runs.
    Croissance(const IndexTirages& index, int taille, const std::atomic<int>& minimum, int maximum,
               Recolte& recolte);

    /// All combinations whose line of parents ends at this distinct draw. False when ended early.
    bool depuis(std::size_t tirage);

 private:
    using Utilisations = std::array<int, TailleGrandeMax>;
    struct Noeud {
        Masque ensemble = 0;
        Masque gagnants = 0;  ///< numbers that would bring at least one draw
        int taille = 0;
        int compte = 0;                                       ///< draws inside
        std::array<std::uint8_t, TailleGrandeMax> numeros{};  ///< ascending, zero-based
        Utilisations utilisations{};  ///< draws inside that hold each of them
    };
    /// A draw with all its numbers but one in the current set, or in one of its ancestors.
    struct Proche {
        Masque masque;
        int poids;
        std::int32_t precedent;  ///< place of the one before with the same number, or -1
        std::uint8_t numero;     ///< the one outside
    };

    int gain(int y) const { return gains_[static_cast<std::size_t>(y)]; }
    int seuil(int taille) const { return seuils_[static_cast<std::size_t>(taille)]; }
    void majSeuils();
    void explorer(const Noeud& n);
    void dernieresAdditions(const Noeud& n);
    void explorerSuivants(const Noeud& n);
    void enfant(const Noeud& n, int y);
    void ouvrir(Noeud& n, int y);
    void fermer(std::size_t hauteur);
    void noter(std::int32_t rang, Noeud& n);
    bool issu(const Noeud& n, int y, Utilisations& avecY) const;
    Noeud avec(const Noeud& n, int y, const Utilisations& avecY) const;
    static Masque libresPossibles(const Noeud& n);
    Masque libresUtiles(const Noeud& n, Masque libres);
    bool poursuivre();

    const IndexTirages& index_;
    const int taille_;
    const std::atomic<int>& minimum_;
    const int maximum_;
    Recolte& recolte_;
    std::array<int, TailleGrandeMax + 1> seuils_{};  ///< fewest draws of a set by its size
    std::array<int, NumeroMax> gains_{};             ///< draws that each number would bring
    std::vector<Proche> proches_;                    ///< grows and shrinks with the walk
    std::array<std::int32_t, NumeroMax> derniers_;   ///< the last one of each number, or -1
    std::vector<IndexTirages::Trouve> paires_;       ///< work of libresUtiles
    unsigned visites_ = 0;
    bool fini_ = false;
};

}  // namespace norvane
