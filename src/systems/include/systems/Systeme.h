// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The selection that a system is made for, the system in memory, and its way to the lists.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/Ensemble.h"
#include "base/Resultat.h"
#include "comb/Selection.h"
#include "lists/Liste.h"
#include "systems/Catalogue.h"
#include "tickets/GrillesHasard.h"

namespace norvane {

/// The numbers 1 to 49, each not selected (0), selected (2), or selected and a base number (1).
class SelectionSysteme {
 public:
    SelectionSysteme() = default;
    /// `base` is a part of `numeros`, of BaseSystemeMax numbers at most.
    SelectionSysteme(Ensemble numeros, Ensemble base) : numeros_(numeros), base_(base) {}

    int etat(int n) const { return base_.contient(n) ? 1 : numeros_.contient(n) ? 2 : 0; }
    int SelectionCourante() const { return numeros_.taille(); }
    int BaseCourante() const { return base_.taille(); }
    /// All that are selected, base numbers included.
    Ensemble numeros() const { return numeros_; }
    Ensemble base() const { return base_; }

    /// No longer selected.
    void retirer(int n);
    /// The next state of 0, 2, 1, 0. False when it would be a base number too many: it then stays
    /// selected.
    bool avancer(int n);

    friend bool operator==(const SelectionSysteme&, const SelectionSysteme&) = default;

 private:
    Ensemble numeros_, base_;
};

/// The selection of a *.slt file: its secondary numbers are selected, its absolute ones base
/// numbers too, where there are no more of them than there may be.
SelectionSysteme SelectionDeGrille(const GrilleSelection& grille);
GrilleSelection GrilleDeSelection(const SelectionSysteme& selection);

/// As many numbers and base numbers as the system asks for, the base numbers drawn first.
SelectionSysteme SelectionAuHasard(const SystemeDisponible& systeme, GenerateurHasard& hasard);

/// A system in memory. Without a grid there is none.
struct Systeme {
    SystemeDisponible parametres;
    std::vector<std::int32_t> grilles;  ///< NumerosParGrille numbers a grid, one after the other
    Ensemble numeros;                   ///< selected, base numbers left out
    Ensemble base;
    /// Grids, and numbers in each, of a system that was brought in from outside; else 0. Such a
    /// system promises nothing of itself: its X, Y and Base are 0.
    std::int32_t IndicateurImporte = 0;
    std::int32_t NumerosParGrilleImporte = 0;

    bool vide() const { return grilles.empty(); }
    std::size_t nombre() const {
        return vide() ? 0 : grilles.size() / static_cast<std::size_t>(parametres.NumerosParGrille);
    }
    std::span<const std::int32_t> grille(std::size_t i) const {
        const auto n = static_cast<std::size_t>(parametres.NumerosParGrille);
        return std::span(grilles).subspan(i * n, n);
    }

    friend bool operator==(const Systeme&, const Systeme&) = default;
};

/// The grid as the list shows it: two digits and a blank for each number.
std::string LigneGrille(std::span<const std::int32_t> grille);

/// The system of a line of a list on the numbers selected: the points of its design stand for the
/// numbers in ascending order, and every grid holds the base numbers. Grids and their numbers are
/// in ascending order. Refused when the selection is not of the size that the line tells, or when
/// the stock has no such design.
Resultat<Systeme> GenererSysteme(const SystemeDisponible& disponible,
                                 const SelectionSysteme& selection);

/// One record a grid, none of whose ranks is filled; the interval is the one that its statistics
/// are to be of. `systeme` holds grids of 2 to 10 numbers.
Liste ListeDuSysteme(const Systeme& systeme, ModeStockage mode, FormeGains gains, int debut,
                     int fin);

}  // namespace norvane
