// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Options that several commands declare alike.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>

namespace norvane {

/// An option whose value is a whole number. One too large for any type is kept as the largest
/// there is: the command refuses it as it refuses any other that is out of range.
void AjouterEntier(CLI::App& app, const char* nom, std::optional<long>& valeur,
                   const char* description);

}  // namespace norvane
