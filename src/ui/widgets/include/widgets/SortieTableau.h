// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A table on show saved to a file or sent to the printer.
#pragma once

#include <QString>
#include <string>
#include <vector>

#include "common/Contexte.h"
#include "stats/ExportTableau.h"

namespace norvane::ui {

class ModeleTableau;

/// The table on show, in its order, a bar as its exact text.
TableauExporte tableauDe(const ModeleTableau& modele, std::vector<std::string> titre);

/// Asks for a file and writes the table in one of the formats of FormatTableau, after the file's
/// extension or else the filter chosen: see enregistrerSous.
void sauverTableau(Contexte& contexte, QWidget* parent, const TableauExporte& tableau,
                   const QString& titre, const QString& nomPropose);

/// Asks for a printer and prints the table on A4 pages with a repeated heading and page numbers.
/// A PDF replaces the file of its name when it is whole, and not before. A failure is told.
void imprimerTableau(Contexte& contexte, QWidget* parent, const TableauExporte& tableau,
                     const QString& titre);

}  // namespace norvane::ui
