// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The kernel of the balance: what one ticket wins over all draws of an interval.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/Base.h"
#include "tickets/Grille.h"

namespace norvane {

/// Wins of one rank over the interval.
struct Cumul {
    std::int64_t fois = 0;
    double gain = 0;  ///< euros, added in the order of the draws

    friend bool operator==(const Cumul&, const Cumul&) = default;
};
struct BilanGrille {
    std::array<Cumul, NbRangsLoto> BilanRangs;
    std::array<Cumul, NbRangs2nd> Bilan2nd;  ///< all 0 for a ticket without the option

    friend bool operator==(const BilanGrille&, const BilanGrille&) = default;
};

/// The draws of the interval that pay by the same ranks, oldest first, turned on their side: for
/// each number and each chance one bit a draw. Sixty-four draws are looked at in one step.
struct Serie {
    struct Mots {
        std::array<std::uint64_t, NumeroMax + 1> numeros{};  ///< by number, 0 unused
        std::array<std::uint64_t, ChanceMax + 1> chances{};  ///< by chance, 0 unused
    };
    std::vector<const Tirage*> tirages;
    std::vector<const RapportsTirage*> rapports;
    std::vector<Mots> mots;

    void ajouter(const Tirage& tirage, const RapportsTirage& gains);
};

/// Wins of a ticket type by its result, in place of a search for each draw.
template <std::size_t NbRangs>
struct TableResultats {
    struct Entree {
        std::uint8_t rang;
        int fois;
    };
    struct Resultat {
        std::array<Entree, NbRangs> gagnes{};  ///< only ranks with a win
        std::size_t nb = 0;
    };
    std::array<std::array<Resultat, 2>, NbBoules + 1> resultats{};  ///< by good numbers and chances

    void noter(int g, int gc, const std::array<int, NbRangs>& comptes) {
        Resultat& r = resultats[static_cast<std::size_t>(g)][static_cast<std::size_t>(gc)];
        for (std::size_t rang = 0; rang < NbRangs; ++rang)
            if (comptes[rang] > 0)
                r.gagnes[r.nb++] = {static_cast<std::uint8_t>(rang), comptes[rang]};
    }
};
/// The tables of a ticket type: before DateNouveauxRangs, since then, 2nd Tirage.
struct TablesType {
    TableResultats<NbRangsLoto> avant, depuis;
    TableResultats<NbRangs2nd> seconds;
};

class Cumulateur {
 public:
    /// Draws `premier` to `dernier`, one-based, of a base that outlives this object; the tables of
    /// all ticket types in `grilles` are made ready.
    Cumulateur(const Base& base, int premier, int dernier, std::span<const Grille> grilles);

    /// One of the tickets, or one of their types. Safe to call from several threads.
    BilanGrille cumuler(const Grille& grille) const;

    std::size_t nbTirages() const { return premiers_.tirages.size() + seconds_.tirages.size(); }
    bool avecPremierTirage() const { return !premiers_.tirages.empty(); }
    bool avecSecondTirage() const { return !seconds_.tirages.empty(); }

 private:
    BilanGrille cumulerLentement(const Grille& grille) const;

    Serie premiers_;  ///< 1er Tirage, and every draw before DateSecondTirage
    Serie seconds_;
    std::vector<char> depuis_;  ///< by draw of premiers_: dated since DateNouveauxRangs
    std::vector<std::optional<TablesType>> types_;
};

}  // namespace norvane
