// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A ticket of N numbers and C chances, what it costs, and the list file that keeps tickets.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "base/Resultat.h"

namespace norvane {

/// Stake in euros (option 2nd Tirage included), N, the N numbers in the order they were ticked,
/// C, the C chances: exactly N + C + 3 elements.
using Grille = std::vector<double>;

inline constexpr int NbGrillesMax = 9999;      ///< capacity of a list of tickets
inline constexpr double MiseIncomplete = 1.0;  ///< TableMises: more must be ticked
inline constexpr double MiseInjouable = 0.0;   ///< TableMises: no such ticket is sold
inline constexpr double PrixGrilleSimple = 2.2;

/// Stake by numbers N (0..9) and chances C (0..10): 2.2 x C(N,5) x C for the 32 tickets sold,
/// MiseIncomplete below five numbers or without a chance, MiseInjouable for the others and for
/// counts out of range.
double TableMises(int n, int c);

/// A ticket of these numbers and chances with its stake; `option2nd` adds 0.8 x C(N,5) to a stake.
/// What cannot be played carries MiseIncomplete or MiseInjouable in its place.
Grille FaireGrille(std::span<const int> numeros, std::span<const int> chances, bool option2nd);

/// The text of a ticket list (*.grl): the count on a line, then one ticket a line, fields behind
/// one blank, numbers as the default conversion of a stream writes them.
std::string TexteGrilles(std::span<const Grille> grilles);

inline constexpr const char* DossierGrilles = "Grilles&Reçus";
inline constexpr const char* NomGrillesSecours = "Grlbak.grl";

/// Writes the safety copy "Grilles&Reçus/Grlbak.grl" below `repertoire`, folder made if missing.
Resultat<Rien> SauverGrillesSecours(std::span<const Grille> grilles,
                                    const std::filesystem::path& repertoire);

}  // namespace norvane
