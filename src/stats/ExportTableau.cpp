// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/ExportTableau.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace norvane {

namespace {

/// Characters of a UTF-8 text: the bytes that do not continue one.
std::size_t Largeur(std::string_view texte) {
    return static_cast<std::size_t>(std::count_if(texte.begin(), texte.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

/// Rows may be ragged: the table has as many columns as the longest of them.
std::size_t NbColonnes(const TableauExporte& tableau) {
    std::size_t n = tableau.entetes.size();
    for (const auto& ligne : tableau.lignes) n = std::max(n, ligne.size());
    return n;
}

std::string_view Cellule(const std::vector<std::string>& ligne, std::size_t colonne) {
    return colonne < ligne.size() ? std::string_view(ligne[colonne]) : std::string_view();
}

bool ADroite(const TableauExporte& tableau, std::size_t colonne) {
    return colonne < tableau.aDroite.size() && tableau.aDroite[colonne];
}

/// One line of padded text cannot hold line ends or tabs: they become blanks.
std::string SurUneLigne(std::string_view texte) {
    std::string resultat(texte);
    std::replace_if(
        resultat.begin(), resultat.end(),
        [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return resultat;
}

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
    std::string resultat;
    char precedent = '\0';
    for (const char c : texte) {
        switch (c) {
            case '&':
                resultat += "&amp;";
                break;
            case '<':
                resultat += "&lt;";
                break;
            case '>':
                resultat += "&gt;";
                break;
            case '"':
                resultat += "&quot;";
                break;
            case '\n':
                resultat += "<br>";
                break;
            // Browsers fold blanks; the maximum cells hold two in a row.
            case ' ':
                resultat += precedent == ' ' ? "&#160;" : " ";
                break;
            default:
                resultat += c;
        }
        precedent = c;
    }
    return resultat;
}

}  // namespace

std::string EnTexte(const TableauExporte& tableau) {
    constexpr std::string_view Separateur = "  ";
    const std::size_t n = NbColonnes(tableau);
    std::vector<std::size_t> largeurs(n);
    for (std::size_t c = 0; c < n; ++c) {
        largeurs[c] = Largeur(Cellule(tableau.entetes, c));
        for (const auto& ligne : tableau.lignes)
            largeurs[c] = std::max(largeurs[c], Largeur(Cellule(ligne, c)));
    }

    std::string texte;
    const auto ecrireLigne = [&](const std::vector<std::string>& ligne) {
        std::string sortie;
        for (std::size_t c = 0; c < n; ++c) {
            const std::string cellule = SurUneLigne(Cellule(ligne, c));
            const std::string marge(largeurs[c] - Largeur(cellule), ' ');
            if (c > 0) sortie += Separateur;
            sortie += ADroite(tableau, c) ? marge + cellule : cellule + marge;
        }
        TerminerLigne(sortie);
        texte += sortie;
    };

    for (const auto& ligne : tableau.titre) texte += ligne + '\n';
    if (!tableau.titre.empty()) texte += '\n';
    ecrireLigne(tableau.entetes);
    std::vector<std::string> filet;
    filet.reserve(largeurs.size());
    for (const std::size_t largeur : largeurs) filet.emplace_back(largeur, '-');
    ecrireLigne(filet);
    for (const auto& ligne : tableau.lignes) ecrireLigne(ligne);
    return texte;
}

std::string EnCsv(const TableauExporte& tableau) {
    const std::size_t n = NbColonnes(tableau);
    std::string texte = "\xEF\xBB\xBF";
    const auto ecrireLigne = [&](const std::vector<std::string>& ligne) {
        for (std::size_t c = 0; c < n; ++c) {
            if (c > 0) texte += ';';
            texte += Protege(Cellule(ligne, c));
        }
        texte += "\r\n";
    };
    for (const auto& ligne : tableau.titre) ecrireLigne({ligne});
    if (!tableau.titre.empty()) ecrireLigne({});
    ecrireLigne(tableau.entetes);
    for (const auto& ligne : tableau.lignes) ecrireLigne(ligne);
    return texte;
}

std::string EnHtml(const TableauExporte& tableau) {
    const std::size_t n = NbColonnes(tableau);
    std::string titre;
    for (const auto& ligne : tableau.titre) titre += (titre.empty() ? "" : "\n") + ligne;

    std::string page =
        "<!DOCTYPE html>\n<html lang=\"fr\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
        Html(SurUneLigne(titre)) +
        "</title>\n<style>\n"
        "body { font-family: sans-serif; font-size: 9pt; }\n"
        "table { border-collapse: collapse; }\n"
        "th, td { border: 1px solid #808080; padding: 2px 6px; }\n"
        "thead { display: table-header-group; }\n"
        "tr { page-break-inside: avoid; }\n"
        "</style>\n</head>\n<body>\n";
    if (!titre.empty()) page += "<p>" + Html(titre) + "</p>\n";

    const auto ecrireLigne = [&](const std::vector<std::string>& ligne, const std::string& balise) {
        page += "<tr>";
        for (std::size_t c = 0; c < n; ++c) {
            page += '<' + balise + (ADroite(tableau, c) ? " align=\"right\">" : ">");
            page += Html(Cellule(ligne, c)) + "</" + balise + '>';
        }
        page += "</tr>\n";
    };
    page += "<table>\n<thead>\n";
    ecrireLigne(tableau.entetes, "th");
    page += "</thead>\n<tbody>\n";
    for (const auto& ligne : tableau.lignes) ecrireLigne(ligne, "td");
    return page + "</tbody>\n</table>\n</body>\n</html>\n";
}

}  // namespace norvane
