// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The files of selections of numbers: *.slt, the grid of one selection with its two priorities,
// and *.sel, a list of selections, one a line.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Ensemble.h"
#include "base/Resultat.h"
#include "comb/Selection.h"

namespace norvane {

inline constexpr const char* ExtensionSelection = "slt";
inline constexpr const char* ExtensionSelections = "sel";

/// How many numbers a line of a list of selections holds.
inline constexpr int NumerosSelectionMin = 2;
inline constexpr int NumerosSelectionMax = 35;

/// Reads a *.slt. Refused with a sentence: other than 50 integers, a count of absolute numbers that
/// is not that of the grid, a state other than 0, 1 or 2. Secondary numbers may stand alone: the
/// selection of a system does without base numbers.
Resultat<GrilleSelection> OuvrirSelection(const std::filesystem::path& fichier);
Resultat<Rien> SauverSelection(const GrilleSelection& grille, const std::filesystem::path& fichier);

/// The line of a selection: "01 07 49  (3 N°)".
std::string LigneSelection(Ensemble numeros);
/// Nothing for a text of another form: numbers that are not 1..49 or that come twice, fewer or more
/// than a selection holds, a count that is not theirs. Blanks at the end are passed over.
std::optional<Ensemble> LireLigneSelection(std::string_view ligne);

/// Reads a *.sel, at least one line and at most CapaciteListe. An error names the first line of
/// another form.
Resultat<std::vector<Ensemble>> OuvrirSelections(const std::filesystem::path& fichier);
Resultat<Rien> SauverSelections(std::span<const Ensemble> selections,
                                const std::filesystem::path& fichier);

}  // namespace norvane
