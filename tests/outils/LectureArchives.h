// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stands in the documents that are ZIP archives of XML, read without the code that writes
// them.
#pragma once

// Under the sanitizers GCC 12 sees members of <regex> that nobody set, which are not there.
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#include <zip.h>

#include <map>
#include <regex>
#include <string>
#include <vector>

namespace norvane {

/// Each member by its name; empty when the bytes are no archive.
inline std::map<std::string, std::string> Membres(const std::string& octets) {
    std::map<std::string, std::string> membres;
    zip_source_t* source = zip_source_buffer_create(octets.data(), octets.size(), 0, nullptr);
    zip_t* archive = zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    if (archive == nullptr) {
        zip_source_free(source);
        return membres;
    }
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        zip_stat_t etat;
        zip_stat_index(archive, static_cast<zip_uint64_t>(i), 0, &etat);
        std::string contenu(etat.size, '\0');
        zip_file_t* membre = zip_fopen_index(archive, static_cast<zip_uint64_t>(i), 0);
        zip_fread(membre, contenu.data(), contenu.size());
        zip_fclose(membre);
        membres[etat.name] = contenu;
    }
    zip_discard(archive);
    return membres;
}

/// All that the first group of `motif` matches, in order.
inline std::vector<std::string> Trouves(const std::string& texte, const char* motif) {
    const std::regex forme(motif);
    std::vector<std::string> trouves;
    for (std::sregex_iterator i(texte.begin(), texte.end(), forme), fin; i != fin; ++i)
        trouves.push_back((*i)[1]);
    return trouves;
}

/// The cells of a workbook's first sheet: "B5 03/10/2022" as "B5=44837 dd/mm/yyyy", with the mask
/// of a number behind it; of a text the text alone.
inline std::vector<std::string> CellulesXlsx(const std::string& octets) {
    auto membres = Membres(octets);
    const auto textes = Trouves(membres["xl/sharedStrings.xml"], "<t[^>]*>([^<]*)</t>");
    const std::string& styles = membres["xl/styles.xml"];
    std::map<std::string, std::string> masques{
        {"0", "General"}, {"1", "0"}, {"2", "0.00"}, {"10", "0.00%"}};
    const std::regex masque("numFmtId=\"(\\d+)\" formatCode=\"([^\"]*)\"");
    for (std::sregex_iterator i(styles.begin(), styles.end(), masque), fin; i != fin; ++i)
        masques[(*i)[1]] = (*i)[2];
    const auto formats = Trouves(styles.substr(styles.find("<cellXfs")), "<xf numFmtId=\"(\\d+)\"");

    const std::string& feuille = membres["xl/worksheets/sheet1.xml"];
    const std::regex cellule(
        "<c r=\"([A-Z]+\\d+)\"(?: s=\"(\\d+)\")?(?: t=\"(s)\")?><v>([^<]*)</v></c>");
    std::vector<std::string> cellules;
    for (std::sregex_iterator i(feuille.begin(), feuille.end(), cellule), fin; i != fin; ++i) {
        const std::string format = (*i)[2];
        cellules.push_back((*i)[1].str() + '=' +
                           ((*i)[3].matched
                                ? textes.at(std::stoul((*i)[4]))
                                : (*i)[4].str() + ' ' + masques[formats.at(std::stoul(format))]));
    }
    return cellules;
}

/// The paragraphs of an OpenDocument text, those of the table by cells. Tags inside become "|".
inline std::vector<std::string> ParagraphesOdt(const std::string& octets) {
    auto membres = Membres(octets);
    auto paragraphes =
        Trouves(membres["content.xml"], "<text:p text:style-name=[^>]*>(.*?)</text:p>");
    for (std::string& p : paragraphes) p = std::regex_replace(p, std::regex("<[^>]*>"), "|");
    return paragraphes;
}

}  // namespace norvane
