// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Weighted set cover by local search with weights on the rows.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace systemes {

/// Columns that cover rows, both ways, as compressed lists.
struct Probleme {
    int lignes = 0;
    std::vector<int> poids;       ///< of each column
    std::vector<int> debutCol;    ///< columns + 1 places in `lignesDe`
    std::vector<int> lignesDe;    ///< rows of each column
    std::vector<int> debutLig;    ///< rows + 1 places in `colonnesDe`
    std::vector<int> colonnesDe;  ///< columns of each row

    int colonnes() const { return static_cast<int>(poids.size()); }
    /// Fills the lists by row from those by column.
    void transposer();
};

class Recherche {
 public:
    Recherche(const Probleme& probleme, std::uint64_t graine);

    /// Starts from these columns, completed greedily.
    void partir(const std::vector<int>& colonnes);
    /// Makes up to `pas` steps; true at once when a better cover was found.
    bool avancer(long pas);

    const std::vector<int>& meilleure() const { return meilleure_; }
    long poidsMeilleur() const { return poidsMeilleur_; }
    /// Only covers under this weight are searched for from now on.
    void viser(long poids);
    int nonCouvertes() const { return static_cast<int>(nonCouvertes_.size()); }
    /// No cover can be better any more (the last one was emptied).
    bool finie() const { return solution_.empty(); }

 private:
    void completer();
    void noter();
    void ajouter(int c);
    void retirer(int c);
    void changerScore(int c, int ecart);
    void couvrir(int ligne);
    void decouvrir(int ligne);
    int moinsUtile(bool tabou) const;
    int meilleurAjout(int ligne) const;
    bool permise(int c) const;
    void alourdir();
    void adoucir();
    void pas();

    const Probleme& pb_;
    std::mt19937_64 alea_;
    std::vector<int> score_;             ///< gain of a column that is out, loss of one that is in
    std::vector<int> place_;             ///< in `solution_`, or -1
    std::vector<std::int64_t> touchee_;  ///< when the column last went in or out
    std::vector<std::int64_t> remuee_;   ///< when a column of the row last went in or out
    std::vector<int> nb_;                ///< columns in that cover the row
    std::vector<int> xor_;               ///< of those columns
    std::vector<int> poidsLigne_;
    std::vector<int> placeNon_;
    std::vector<int> nonCouvertes_;
    std::vector<int> solution_;
    std::vector<float> cout_;  ///< loss per weight of each place of `solution_`
    std::vector<int> tabou_;
    std::vector<int> meilleure_;
    long poidsMeilleur_ = 0;
    long poidsCourant_ = 0;
    long sommeLignes_ = 0;
    std::int64_t temps_ = 1;
};

}  // namespace systemes
