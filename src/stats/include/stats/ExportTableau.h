// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A table on show as files of five formats and as a page to print, whatever it holds.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/Resultat.h"

namespace norvane {

/// What a spreadsheet is given for the cells of a column: their text, or their value.
enum class NatureColonne {
    Texte,
    Entier,     ///< the value; a blank cell when the text is empty
    Centiemes,  ///< a hundredth of the value
    Pourcents,  ///< the value is in hundredths of a percent
    Date,       ///< yyyymmdd; the text when the value is 0
};

struct ColonneExportee {
    std::string entete;
    bool aDroite = true;  ///< figures, aligned to the right
    NatureColonne nature = NatureColonne::Texte;
};

struct CelluleExportee {
    std::string texte;  ///< UTF-8, as on show
    std::int64_t valeur = 0;
};

struct TableauExporte {
    std::vector<std::string> titre;  ///< lines above the table
    std::vector<ColonneExportee> colonnes;
    /// In the order on show, each row with as many cells as there are columns.
    std::vector<std::vector<CelluleExportee>> lignes;
};

/// The formats, in the order in which they are offered.
enum class FormatTableau { Texte, Html, OpenDocument, Xlsx, Csv };

/// The bytes of the file. Refused with a sentence when one of the two made of ZIP archives could
/// not be put together: no memory, no room for the temporary files of the system.
Resultat<std::string> Exporter(const TableauExporte& tableau, FormatTableau format);

/// Title, heading, a rule, then columns padded with blanks to their widest cell (widths counted
/// in characters, not bytes). LF line ends.
std::string EnTexte(const TableauExporte& tableau);

/// RFC 4180 with `;` as separator (the decimal sign is a comma): the lines of the title, each in
/// the first cell of its row, an empty row, the heading, the rows. CRLF line ends, a byte order
/// mark so that spreadsheets read the accents.
std::string EnCsv(const TableauExporte& tableau);

/// What stands above the table: each line of the title by itself in the middle, or the title as
/// one paragraph, the tighter form for paper.
enum class TeteHtml { Lignes, Paragraphe };

/// A complete HTML 4.01 page: title, one table, repeated heading.
std::string EnHtml(const TableauExporte& tableau, TeteHtml tete = TeteHtml::Lignes);

/// An OpenDocument text: title, one table with a repeated heading, page numbers. The same table
/// gives the same bytes.
Resultat<std::string> EnOpenDocument(const TableauExporte& tableau);

/// An Office Open XML workbook of one sheet: title, an empty row, a heading that stays in sight
/// and filters, then real numbers and dates after the nature of the columns.
Resultat<std::string> EnXlsx(const TableauExporte& tableau);

}  // namespace norvane
