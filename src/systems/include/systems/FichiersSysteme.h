// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Files of one system: "*.syr" (an archive of one enciphered text) and plain text.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Resultat.h"
#include "base/Travail.h"
#include "systems/Systeme.h"

namespace norvane {

/// The text of a *.syr: the six parameters, the selected numbers, the base numbers, the grids.
std::string TexteSysteme(const Systeme& systeme);

/// Reads it. Refused, with the line in the sentence: words, numbers out of 1 to 49, a count that
/// differs from what is there, a grid with a number outside the selection. `nom` names the file.
Resultat<Systeme> LireTexteSysteme(std::string_view texte, std::string_view nom);

/// Writes a *.syr, whole or not at all. Refused for a system brought in from outside. Progress runs
/// 0..100.
Resultat<Rien> SauverSysteme(const std::filesystem::path& chemin, const Systeme& systeme,
                             const Suivi& suivi = {});

/// Reads a *.syr. Progress runs 0..100.
Resultat<Systeme> ChargerSysteme(const std::filesystem::path& chemin, const Suivi& suivi = {});

/// One grid a line, numbers of two digits between blanks.
std::string TexteGrilles(const Systeme& systeme);

/// A system from outside: one grid of 2 to 10 numbers a line, all of one size, between blanks,
/// commas, semicolons or tabs; a heading line and empty lines are passed over. Refused with the
/// number of the line.
Resultat<Systeme> LireTexteGrilles(std::string_view texte, std::string_view nom);
Resultat<Systeme> ImporterSysteme(const std::filesystem::path& chemin);

}  // namespace norvane
