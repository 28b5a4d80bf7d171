// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <string_view>

#include "Balisage.h"
#include "base/Archive.h"
#include "stats/ExportTableau.h"

namespace norvane {

namespace {

constexpr std::string_view TypeDocument = "application/vnd.oasis.opendocument.text";

constexpr std::string_view Manifeste = R"(<?xml version="1.0" encoding="UTF-8"?>
<manifest:manifest xmlns:manifest="urn:oasis:names:tc:opendocument:xmlns:manifest:1.0" manifest:version="1.3">
<manifest:file-entry manifest:full-path="/" manifest:version="1.3" manifest:media-type="application/vnd.oasis.opendocument.text"/>
<manifest:file-entry manifest:full-path="content.xml" manifest:media-type="text/xml"/>
<manifest:file-entry manifest:full-path="styles.xml" manifest:media-type="text/xml"/>
</manifest:manifest>
)";

/// The page, and what every paragraph starts from.
constexpr std::string_view Styles = R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document-styles xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0" office:version="1.3">
<office:styles>
<style:default-style style:family="paragraph"><style:text-properties fo:font-family="sans-serif" fo:font-size="9pt" fo:language="fr" fo:country="FR"/></style:default-style>
<style:style style:name="Standard" style:family="paragraph"/>
</office:styles>
<office:automatic-styles>
<style:style style:name="Pied" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="end"/></style:style>
<style:page-layout style:name="A4"><style:page-layout-properties fo:page-width="21cm" fo:page-height="29.7cm" fo:margin-top="1.5cm" fo:margin-bottom="1.5cm" fo:margin-left="1.5cm" fo:margin-right="1.5cm"/><style:footer-style><style:header-footer-properties fo:min-height="0.8cm" fo:margin-top="0.3cm"/></style:footer-style></style:page-layout>
</office:automatic-styles>
<office:master-styles>
<style:master-page style:name="Standard" style:page-layout-name="A4"><style:footer><text:p text:style-name="Pied">Page <text:page-number>1</text:page-number> / <text:page-count>1</text:page-count></text:p></style:footer></style:master-page>
</office:master-styles>
</office:document-styles>
)";

constexpr std::string_view DebutContenu = R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document-content xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0" xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" xmlns:table="urn:oasis:names:tc:opendocument:xmlns:table:1.0" xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0" office:version="1.3">
<office:automatic-styles>
<style:style style:name="Titre" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center" fo:margin-bottom="0.2cm"/><style:text-properties fo:font-weight="bold"/></style:style>
<style:style style:name="Gauche" style:family="paragraph" style:parent-style-name="Standard"/>
<style:style style:name="Droite" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="end"/></style:style>
<style:style style:name="Entete" style:family="paragraph" style:parent-style-name="Standard"><style:paragraph-properties fo:text-align="center"/><style:text-properties fo:font-weight="bold"/></style:style>
<style:style style:name="Tableau" style:family="table"><style:table-properties style:width="18cm" table:align="margins" fo:margin-top="0.3cm"/></style:style>
<style:style style:name="Case" style:family="table-cell"><style:table-cell-properties fo:padding="0.05cm" fo:border="0.5pt solid #808080"/></style:style>
<style:style style:name="CaseEntete" style:family="table-cell"><style:table-cell-properties fo:background-color="#e4e9f2" fo:padding="0.05cm" fo:border="0.5pt solid #808080"/></style:style>
)";

std::string Xml(std::string_view texte) {
    return Baliser(texte, "<text:line-break/>", "<text:s/>");
}

std::string Paragraphe(std::string_view style, std::string_view texte) {
    return "<text:p text:style-name=\"" + std::string(style) + "\">" + Xml(texte) + "</text:p>";
}

std::string Case(std::string_view style, const std::string& paragraphe) {
    return "<table:table-cell table:style-name=\"" + std::string(style) +
           "\" office:value-type=\"string\">" + paragraphe + "</table:table-cell>";
}

/// Column styles as wide as what stands in them.
std::string StylesColonnes(const TableauExporte& tableau) {
    std::string styles;
    for (std::size_t c = 0; c < tableau.colonnes.size(); ++c) {
        std::size_t largeur = Largeur(tableau.colonnes[c].entete);
        for (const auto& ligne : tableau.lignes)
            largeur = std::max(largeur, Largeur(ligne[c].texte));
        styles += "<style:style style:name=\"Colonne" + std::to_string(c + 1) +
                  "\" style:family=\"table-column\"><style:table-column-properties "
                  "style:rel-column-width=\"" +
                  std::to_string(largeur + 2) + "*\"/></style:style>\n";
    }
    return styles;
}

std::string Contenu(const TableauExporte& tableau) {
    std::string xml(DebutContenu);
    xml += StylesColonnes(tableau);
    xml += "</office:automatic-styles>\n<office:body><office:text>\n";
    for (const auto& ligne : tableau.titre) xml += Paragraphe("Titre", ligne) + '\n';
    xml += "<table:table table:name=\"Tableau\" table:style-name=\"Tableau\">\n";
    for (std::size_t c = 1; c <= tableau.colonnes.size(); ++c)
        xml += "<table:table-column table:style-name=\"Colonne" + std::to_string(c) + "\"/>";
    xml += "\n<table:table-header-rows><table:table-row>";
    for (const auto& colonne : tableau.colonnes)
        xml += Case("CaseEntete", Paragraphe("Entete", colonne.entete));
    xml += "</table:table-row></table:table-header-rows>\n";
    for (const auto& ligne : tableau.lignes) {
        xml += "<table:table-row>";
        for (std::size_t c = 0; c < ligne.size(); ++c)
            xml += Case("Case", Paragraphe(tableau.colonnes[c].aDroite ? "Droite" : "Gauche",
                                           ligne[c].texte));
        xml += "</table:table-row>\n";
    }
    return xml +
           "</table:table>\n<text:p/>\n</office:text></office:body></office:document-content>\n";
}

}  // namespace

Resultat<std::string> EnOpenDocument(const TableauExporte& tableau) {
    // The type comes first and bare: that is how the kind of the file is known.
    const std::array<MembreArchive, 4> membres{
        MembreArchive{"mimetype", std::string(TypeDocument), false},
        {"META-INF/manifest.xml", std::string(Manifeste)},
        {"content.xml", Contenu(tableau)},
        {"styles.xml", std::string(Styles)}};
    return FaireArchive(membres);
}

}  // namespace norvane
