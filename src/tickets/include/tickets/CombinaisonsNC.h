// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page of numbers and chances as a state: what is ticked, the ticket on show, the list.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "tickets/GrillesHasard.h"
#include "tickets/ListesNC.h"
#include "tickets/Refus.h"

namespace norvane {

/// What is ticked, or on show, is no whole ticket.
Refus SelectionIncomplete();

/// Members are read directly; they change through the events alone.
struct CombinaisonsNC {
    LigneNC SelectionNC;                      ///< what is ticked
    Ensemble NumerosValides;                  ///< of the last validation; none before the first
    TypeGrille TypeNC = TypesVendus.front();  ///< of the lines to be made
    std::vector<LigneNC> ListeNC;
    bool partielle = false;            ///< the search that made the list was stopped
    std::optional<std::size_t> ligne;  ///< the line chosen, zero-based
    LigneNC montree;                   ///< the ticket that the table speaks of; none: empty

    int NbNumerosNC() const { return SelectionNC.numeros.taille(); }
    int NbChancesNC() const { return SelectionNC.chances.taille(); }

    /// Ticks or unticks; refused when no such ticket is sold.
    Reponse basculer(GenreStats genre, int valeur);
    /// Unticks everything; table and list stay.
    void decocherTout() { SelectionNC = {}; }
    /// Ticks a ticket drawn at random in place of what is ticked.
    void tirer(GenerateurHasard& hasard, TypeGrille type);
    /// What is ticked is the ticket on show, and the list is made for it.
    Reponse valider();
    /// Makes the list again for the numbers of the last validation: empty when they are not type.n.
    void choisirType(TypeGrille type);
    /// The line, an existing one, is the ticket on show.
    void choisirLigne(std::size_t laquelle);

    // Filters of the list; the ticket on show stays.
    void filtrerChances();
    void filtrerGagnantes(const SortiesNC& sorties);
    void filtrerSorties(const SortiesNC& sorties);

    /// A list of one type, made elsewhere; `arretee`: its search was stopped.
    void prendre(TypeGrille type, std::vector<LigneNC> liste, bool arretee = false);

    /// The ticket to be added to the stock, the one on show before what is only ticked, at its
    /// stake; nothing when neither is whole.
    std::optional<Grille> grille() const;
};

}  // namespace norvane
