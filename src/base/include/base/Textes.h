// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Number masks of the program, in French: decimal comma, no-break space (U+00A0) between
// thousands. All texts are UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvane {

/// Mask "#,##": thousands separated, nothing at all for zero.
std::string FormaterCompte(std::int64_t n);

/// Mask "#,##0.00": 1 234,56.
std::string FormaterMontant(double montant);

/// Mask "0...0": the integer padded with zeros to at least `chiffres` digits ("00" is 2).
std::string FormaterMasque(std::int64_t n, int chiffres);

/// Mask "0.00" (`chiffres` 1) or "00.00" (`chiffres` 2), decimal comma.
std::string FormaterDecimal(double x, int chiffres);

/// Reads an amount: comma or point, any blank (U+00A0 and U+202F included) or none between
/// thousands, an optional currency symbol behind; nothing when the text is no number.
std::optional<double> LireMontant(std::string_view texte);

/// Without blanks (ASCII) at both ends.
std::string_view Rogner(std::string_view texte);

/// What a message shows of a foreign text: its start, and nothing that a screen could stumble on.
std::string Citer(std::string_view texte);

}  // namespace norvane
