// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Combination records as text.
#pragma once

#include <iosfwd>
#include <span>

#include "comb/Enregistrement.h"

namespace norvane {

/// One record a line: its numbers (mask 00, blanks), a tab, the words of its blocks.
void EcrireEnregistrements(std::ostream& out, Disposition disposition, std::span<const Mot> mots);

}  // namespace norvane
