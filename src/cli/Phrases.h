// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user is told beside the results.
#pragma once

#include <iosfwd>
#include <string_view>

namespace norvane {

/// One line, whatever file names and arguments the sentence quotes: control characters are written
/// as \n, \r, \t or \xNN.
void EcrirePhrase(std::ostream& err, std::string_view phrase);

}  // namespace norvane
