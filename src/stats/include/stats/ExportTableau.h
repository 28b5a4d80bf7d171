// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A table on show as text files and as a page to print, whatever it holds.
#pragma once

#include <string>
#include <vector>

namespace norvane {

struct TableauExporte {
    std::vector<std::string> titre;  ///< lines above the table
    std::vector<std::string> entetes;
    std::vector<bool> aDroite;                     ///< per column: figures, aligned to the right
    std::vector<std::vector<std::string>> lignes;  ///< in the order on show
};

/// Title, heading, a rule, then columns padded with blanks to their widest cell (widths counted
/// in characters, not bytes). LF line ends.
std::string EnTexte(const TableauExporte& tableau);

/// RFC 4180 with `;` as separator (the decimal sign is a comma): the lines of the title, each in
/// the first cell of its row, an empty row, the heading, the rows. CRLF line ends, a byte order
/// mark so that spreadsheets read the accents.
std::string EnCsv(const TableauExporte& tableau);

/// A complete HTML page, for printing: title, one table, repeated heading.
std::string EnHtml(const TableauExporte& tableau);

}  // namespace norvane
