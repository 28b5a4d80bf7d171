// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The base as a table of text: one heading line, `;` between fields, one record a line.
// Columns: date;sous_tirage;annee_numero;n1..n5;chance;forclusion;joker;g1;r1;...;g9;r9
// (joker empty when it was never published, forclusion empty when there is none).
#pragma once

#include <iosfwd>
#include <string_view>

#include "base/Base.h"
#include "base/Resultat.h"

namespace norvane {

/// Reads a table. CRLF and a byte order mark are accepted. Refused whole, with the line number:
/// a wrong heading, a missing or malformed field, a number out of range or not ascending,
/// records out of order, more than NbTiragesMax records. AnciensTirages is set, and
/// NbAnciensTirages counted, when the table begins before DateNouveauLoto.
Resultat<Base> LireTableCsv(std::string_view texte);

/// Writes records premier..dernier (zero-based, inclusive) with the heading; amounts without
/// trailing zeros, lines ended by LF. Reading it back gives the same records.
void EcrireTableCsv(std::ostream& flux, const Base& base, int premier, int dernier);

}  // namespace norvane
