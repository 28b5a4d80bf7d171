// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The places of the program that one can be sent to from another page.
#pragma once

#include <optional>
#include <variant>
#include <vector>

#include "reports/SujetHistorique.h"
#include "stats/Cellule.h"
#include "tickets/Grille.h"

namespace norvane::ui {

/// The page "Résultats" on a draw, whatever was going on there; `appuyer` is pressed if it is up.
struct VersTirage {
    int numero;  ///< one-based
    std::optional<Element> appuyer;

    friend bool operator==(const VersTirage&, const VersTirage&) = default;
};

/// The page "Historiques" on a subject that came out, over draws inf..sup (one-based).
struct VersHistorique {
    SujetHistorique sujet;
    int inf, sup;

    friend bool operator==(const VersHistorique&, const VersHistorique&) = default;
};

/// The stock of grids on the page "Résultats", with these behind what it holds.
struct VersTickets {
    std::vector<Grille> grilles;

    friend bool operator==(const VersTickets&, const VersTickets&) = default;
};

/// The stock of grids in consultation, and the draw that a grid of it is looked at on.
struct VersGrille {
    int grille;  ///< one-based place in the stock
    int tirage;  ///< one-based

    friend bool operator==(const VersGrille&, const VersGrille&) = default;
};

/// The page "Combinaisons N" on the list in memory, which has changed; `adapter`: its statistics
/// are then computed over the interval in force.
struct VersListe {
    bool adapter = false;

    friend bool operator==(const VersListe&, const VersListe&) = default;
};

using Destination = std::variant<VersTirage, VersHistorique, VersTickets, VersGrille, VersListe>;

}  // namespace norvane::ui
