// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Arguments that several commands take.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"
#include "tickets/Grille.h"

namespace norvane {

/// Declares an option or a positional argument (by the form of `nom`) that takes an integer. One
/// too large for any type takes the nearest end of the type: it is out of every range, and is
/// refused as such later on rather than as bad usage here.
CLI::Option* AjouterEntier(CLI::App& app, const char* nom, std::optional<long>& valeur,
                           const char* description);

/// The value of an argument that was given, when it lies in min..max.
Resultat<int> EntierDans(const std::optional<long>& valeur, std::string_view nom, int min, int max);

/// "7 23 45": distinct numbers 1..49 between blanks, in any order; ascending in the answer. Between
/// `min` and `max` of them.
Resultat<std::vector<int>> LireNumeros(std::string_view texte, int min, int max);
/// The same for chances, 1..10.
Resultat<std::vector<int>> LireChances(std::string_view texte, int min, int max);

/// "05 + 02C", a type of tickets that is sold.
Resultat<TypeGrille> LireType(std::string_view libelle);

}  // namespace norvane
