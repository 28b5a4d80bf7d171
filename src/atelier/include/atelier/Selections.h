// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The choice of numbers that steers the searches by bounds: how its grid is edited, accepted and
// filled, and the list of such choices.
#pragma once

#include <cstdint>
#include <string>

#include "base/Ensemble.h"
#include "base/Resultat.h"
#include "comb/Selection.h"

namespace norvane {

struct Atelier;
struct Liste;

/// The grid while it is edited, and what of it is in a file of the user's.
struct SaisieSelection {
    bool enCours = false;
    GrilleSelection grille{};        ///< while enCours: not in force yet
    GrilleSelection GrilleSauvee{};  ///< as last written to or read from a file
};

/// The cycle of a cell: none, absolute, secondary.
constexpr Priorite Suivante(Priorite priorite) {
    return static_cast<Priorite>((static_cast<int>(priorite) + 1) % 3);
}

Ensemble NumerosDe(const GrilleSelection& grille, Priorite priorite);
/// These numbers as absolute ones, and no other.
GrilleSelection GrilleAbsolue(Ensemble numeros);
/// Numbers drawn at random. `absolus` and `secondaires`: none below 0, together at most 49.
GrilleSelection GrilleAleatoire(int absolus, int secondaires, std::uint32_t graine);

/// The grid on show: the one being edited, or the one in force.
const GrilleSelection& GrilleMontree(const Atelier& atelier);
/// The editing begins, on the grid in force; does nothing while it is under way.
void EditerSelection(Atelier& atelier);
/// Makes the grid the one in force and ends the editing. Refused, and nothing changed: secondary
/// numbers without an absolute one.
Resultat<Rien> ValiderSelection(Atelier& atelier, const GrilleSelection& grille);
/// The draws of the interval are others: a grid being edited is accepted where it can be, else the
/// one in force stays, over the new draws.
void RevaliderSelection(Atelier& atelier);
/// There are absolute numbers in force, and no file holds them so.
bool SelectionASauver(const Atelier& atelier);

/// Numbers to add to the list of selections.
struct NumerosAjoutes {
    Ensemble numeros;    ///< empty where refused
    std::string refus;   ///< why
    std::string detail;  ///< what to do about it
};
/// The absolute numbers in force.
NumerosAjoutes SelectionEnForce(const Atelier& atelier);
/// The first `nombre` different numbers of the list, line after line; all of them where it holds
/// fewer. Beyond 10 numbers the list must be one of combinations of 10.
NumerosAjoutes PremiersNumeros(const Liste& liste, int nombre);

}  // namespace norvane
