// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/ExportTableau.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "Balisage.h"

namespace norvane {

namespace {

void TerminerLigne(std::string& texte) {
    texte.erase(texte.find_last_not_of(' ') + 1);
    texte += '\n';
}

std::string Protege(std::string_view cellule) {
    if (cellule.find_first_of(";\"\r\n") == cellule.npos) return std::string(cellule);
    std::string resultat = "\"";
    for (const char c : cellule) {
        if (c == '"') resultat += '"';
        resultat += c;
    }
    return resultat + '"';
}

std::string Html(std::string_view texte) {
    return Baliser(texte, "<br>", "&#160;");
}

/// Calls `ecrire(colonne, texte)` for each cell of a row, or of the heading.
template <typename Ecrire>
void ParcourirEntete(const TableauExporte& tableau, const Ecrire& ecrire) {
    for (std::size_t c = 0; c < tableau.colonnes.size(); ++c) ecrire(c, tableau.colonnes[c].entete);
}
template <typename Ecrire>
void ParcourirLigne(const std::vector<CelluleExportee>& ligne, const Ecrire& ecrire) {
    for (std::size_t c = 0; c < ligne.size(); ++c) ecrire(c, ligne[c].texte);
}

}  // namespace

std::string EnTexte(const TableauExporte& tableau) {
    constexpr std::string_view Separateur = "  ";
    std::vector<std::size_t> largeurs(tableau.colonnes.size());
    const auto mesurer = [&](std::size_t c, const std::string& cellule) {
        largeurs[c] = std::max(largeurs[c], Largeur(cellule));
    };
    ParcourirEntete(tableau, mesurer);
    for (const auto& ligne : tableau.lignes) ParcourirLigne(ligne, mesurer);

    std::string texte;
    std::string sortie;
    const auto ecrire = [&](std::size_t c, const std::string& brut) {
        const std::string cellule = SurUneLigne(brut);
        const std::string marge(largeurs[c] - Largeur(cellule), ' ');
        if (c > 0) sortie += Separateur;
        sortie += tableau.colonnes[c].aDroite ? marge + cellule : cellule + marge;
    };
    const auto finir = [&] {
        TerminerLigne(sortie);
        texte += sortie;
        sortie.clear();
    };

    for (const auto& ligne : tableau.titre) texte += ligne + '\n';
    if (!tableau.titre.empty()) texte += '\n';
    ParcourirEntete(tableau, ecrire);
    finir();
    for (std::size_t c = 0; c < largeurs.size(); ++c) ecrire(c, std::string(largeurs[c], '-'));
    finir();
    for (const auto& ligne : tableau.lignes) {
        ParcourirLigne(ligne, ecrire);
        finir();
    }
    return texte;
}

std::string EnCsv(const TableauExporte& tableau) {
    std::string texte = "\xEF\xBB\xBF";
    const auto ecrire = [&](std::size_t c, const std::string& cellule) {
        if (c > 0) texte += ';';
        texte += Protege(cellule);
    };
    const auto ecrireTitre = [&](const std::string& ligne) {
        texte += Protege(ligne);
        texte.append(tableau.colonnes.size() - 1, ';');
        texte += "\r\n";
    };
    for (const auto& ligne : tableau.titre) ecrireTitre(ligne);
    if (!tableau.titre.empty()) ecrireTitre({});
    ParcourirEntete(tableau, ecrire);
    texte += "\r\n";
    for (const auto& ligne : tableau.lignes) {
        ParcourirLigne(ligne, ecrire);
        texte += "\r\n";
    }
    return texte;
}

std::string EnHtml(const TableauExporte& tableau, TeteHtml tete) {
    std::string titre;
    for (const auto& ligne : tableau.titre) titre += (titre.empty() ? "" : "\n") + ligne;

    std::string page =
        "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
        "\"http://www.w3.org/TR/html4/loose.dtd\">\n<html lang=\"fr\">\n<head>\n"
        "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">\n"
        "<meta name=\"viewport\" content=\"width=device-width\">\n<title>" +
        Baliser(SurUneLigne(titre), " ", " ") +
        "</title>\n<style type=\"text/css\">\n"
        "body { font-family: sans-serif; font-size: 9pt; }\n"
        "table { border-collapse: collapse; margin: auto; }\n"
        "th, td { border: 1px solid #808080; padding: 2px 6px; }\n"
        "thead { display: table-header-group; }\n"
        "tr { page-break-inside: avoid; }\n"
        "</style>\n</head>\n<body>\n";
    if (tete == TeteHtml::Lignes) {
        for (const auto& ligne : tableau.titre)
            page += "<center><b>" + Html(ligne) + "<BR><BR> </b></center>\n";
    } else if (!titre.empty()) {
        page += "<p>" + Html(titre) + "</p>\n";
    }

    std::string balise = "th";
    const auto ecrire = [&](std::size_t c, const std::string& cellule) {
        page += '<' + balise + (tableau.colonnes[c].aDroite ? " align=\"right\">" : ">");
        page += Html(cellule) + "</" + balise + '>';
    };
    page += "<table>\n<thead>\n<tr>";
    ParcourirEntete(tableau, ecrire);
    page += "</tr>\n</thead>\n<tbody>\n";
    balise = "td";
    for (const auto& ligne : tableau.lignes) {
        page += "<tr>";
        ParcourirLigne(ligne, ecrire);
        page += "</tr>\n";
    }
    return page + "</tbody>\n</table>\n</body>\n</html>\n";
}

Resultat<std::string> Exporter(const TableauExporte& tableau, FormatTableau format) {
    switch (format) {
        case FormatTableau::Texte:
            return EnTexte(tableau);
        case FormatTableau::Html:
            return EnHtml(tableau);
        case FormatTableau::OpenDocument:
            return EnOpenDocument(tableau);
        case FormatTableau::Xlsx:
            return EnXlsx(tableau);
        default:
            return EnCsv(tableau);
    }
}

}  // namespace norvane
