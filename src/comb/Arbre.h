// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combinations of one to five numbers of an alphabet, depth first over the lists of draws that the
// partial combinations share.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "base/Base.h"
#include "comb/Noyaux.h"

namespace norvane {

/// What the combinations are made of.
struct Domaine {
    std::vector<int> alphabet;          ///< numbers, ascending
    std::vector<ListeTirages> racines;  ///< for each of them: the draws that hold it
    int profondeur;                     ///< numbers of a combination, 1..5
};

/// The draws inf..sup (one-based) that hold each of these numbers.
inline std::vector<ListeTirages> ListesNumeros(const Occurrences& occ, std::span<const int> numeros,
                                               int inf, int sup) {
    std::vector<ListeTirages> listes;
    for (const int n : numeros) {
        const auto& liste = occ.ListeNumeros[static_cast<std::size_t>(n - 1)];
        const auto debut = std::lower_bound(liste.begin(), liste.end(), inf - 1);
        listes.emplace_back(debut, std::lower_bound(debut, liste.end(), sup));
    }
    return listes;
}

/// A branch: the first numbers, as places in the alphabet. A tree is the row of its branches.
struct Branche {
    int longueur;  ///< 0..2, less than the depth
    std::array<std::size_t, 2> choix;
};

/// All branches of a tree in lexicographic order; `fines`: cut at two numbers where the depth
/// allows, else at one.
inline std::vector<Branche> Branches(const Domaine& domaine, bool fines) {
    const std::size_t n = domaine.alphabet.size();
    const auto k = static_cast<std::size_t>(domaine.profondeur);
    if (k == 1) return {{0, {}}};
    std::vector<Branche> branches;
    for (std::size_t i = 0; i + k <= n; ++i) {
        if (k == 2 || !fines) {
            branches.push_back({1, {i, 0}});
        } else {
            for (std::size_t j = i + 1; j + k <= n + 1; ++j) branches.push_back({2, {i, j}});
        }
    }
    return branches;
}

/// One walker a thread. `AvecListes`: the last level comes with its lists of draws.
template <bool AvecListes>
class Marcheur {
 public:
    /// The last level of one partial combination: the places of its numbers in the alphabet, the
    /// first place that completes it, and what is counted for each number.
    struct Feuille {
        std::span<const std::size_t> choix;
        std::size_t premier;
        const Rangee& rangee;
        const ListesRangee& listes;
    };

    Marcheur(const Base& base, const Occurrences& occ, const Domaine& domaine)
        : base_(base), occ_(occ), domaine_(domaine) {}

    /// Visits the last levels of a branch in order. Partial combinations of fewer draws than
    /// `seuil` are left out with all that is built on them; `seuil` may rise during the walk.
    template <typename Visite>
    void parcourir(const Branche& branche, const int& seuil, Visite&& visite) {
        if (branche.longueur == 0) return racine(visite);
        const auto [i, j] = branche.choix;
        choix_[0] = i;
        if (branche.longueur == 1) return descendre(1, domaine_.racines[i], seuil, visite);
        choix_[1] = j;
        const auto colonne = static_cast<std::size_t>(domaine_.alphabet[j] - 1);
        paire_.clear();
        for (const Occurrence d : domaine_.racines[i])
            if (occ_.PositionNumero[d][colonne] >= 0) paire_.push_back(d);
        descendre(2, paire_, seuil, visite);
    }

 private:
    template <typename Visite>
    void racine(Visite&& visite) {
        auto& rangee = rangees_[0];
        auto& listes = listes_[0];
        rangee.fill(0);
        listes.tirages.clear();
        for (std::size_t i = 0; i < domaine_.alphabet.size(); ++i) {
            const auto k = static_cast<std::size_t>(domaine_.alphabet[i] - 1);
            const ListeTirages liste = domaine_.racines[i];
            rangee[k] = static_cast<std::uint16_t>(liste.size());
            listes.debut[k] = static_cast<std::uint32_t>(listes.tirages.size());
            listes.tirages.insert(listes.tirages.end(), liste.begin(), liste.end());
        }
        visite(Feuille{{}, 0, rangee, listes});
    }

    template <typename Visite>
    void descendre(std::size_t niveau, ListeTirages liste, const int& seuil, Visite&& visite) {
        if (static_cast<int>(liste.size()) < seuil) return;
        // The depth is at most five; written so that the compiler sees it as well.
        const auto k =
            std::min(static_cast<std::size_t>(domaine_.profondeur), std::size_t{NbBoules});
        const std::size_t dernier = choix_[niveau - 1];
        const int a = domaine_.alphabet[dernier];
        auto& rangee = rangees_[niveau];
        auto& listes = listes_[niveau];
        const bool feuille = niveau + 1 >= k;
        if (liste.empty()) {
            rangee.fill(0);
        } else if (feuille && !AvecListes) {
            CompterSuiveurs(base_, occ_, liste, a, rangee);
        } else {
            ListerSuiveurs(base_, occ_, liste, a, rangee, listes);
        }
        if (feuille) return visite(Feuille{{choix_.data(), niveau}, dernier + 1, rangee, listes});

        for (std::size_t j = dernier + 1; j + k <= domaine_.alphabet.size() + niveau; ++j) {
            const auto b = static_cast<std::size_t>(domaine_.alphabet[j] - 1);
            if (rangee[b] < seuil) continue;
            choix_[niveau] = j;
            descendre(niveau + 1, rangee[b] == 0 ? ListeTirages{} : listes(b, rangee), seuil,
                      visite);
        }
    }

    const Base& base_;
    const Occurrences& occ_;
    const Domaine& domaine_;
    std::array<std::size_t, NbBoules> choix_{};
    std::array<Rangee, NbBoules> rangees_{};
    std::array<ListesRangee, NbBoules> listes_{};
    std::vector<Occurrence> paire_;
};

}  // namespace norvane
