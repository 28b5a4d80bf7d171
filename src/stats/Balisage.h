// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Texts inside markup.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace norvane {

/// Characters of a UTF-8 text: the bytes that do not continue one.
std::size_t Largeur(std::string_view texte);

/// One line: control characters become blanks.
std::string SurUneLigne(std::string_view texte);

/// `texte` between tags or in an attribute. `saut` stands for a line end, `blanc` for each blank
/// behind another, which readers of markup fold; other control characters become blanks.
std::string Baliser(std::string_view texte, std::string_view saut, std::string_view blanc);

}  // namespace norvane
