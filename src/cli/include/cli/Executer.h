// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The command-line companion as one call: the program and the tests make the same one.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <span>
#include <string>

namespace norvane {

/// Exit statuses of norvane-cli.
enum StatutCli : int {
    StatutFait = 0,
    StatutRefus = 1,  ///< refused or failed: one French sentence on `err`, nothing on `out`
    StatutUsage = 2,  ///< bad usage: the reason and the usage line on `err`, nothing on `out`
};

/// Runs the command line `args` (without the program's name). Relative file names, and the
/// norvane.db looked for by default, are taken from `repertoire`. Throws nothing.
int Executer(std::span<const std::string> args, std::ostream& out, std::ostream& err,
             const std::filesystem::path& repertoire);

}  // namespace norvane
