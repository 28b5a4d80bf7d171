// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every help text in French, in one layout.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace norvane {

/// "Usage : norvane-cli [OPTIONS] stats COMMANDE" for a command at any depth, without line end.
std::string LigneUsage(const CLI::App& commande);

/// What --help prints: description, usage, options, commands.
class Aide : public CLI::FormatterBase {
 public:
    std::string make_help(const CLI::App* commande, std::string nom,
                          CLI::AppFormatMode mode) const override;
};

}  // namespace norvane
