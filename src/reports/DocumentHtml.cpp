// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <array>

#include "base/Fichiers.h"
#include "reports/DocumentExport.h"

namespace norvane {

namespace {

constexpr std::array Images{Image::Puce, Image::Retour};
static_assert(Images.size() == NbImages);

/// With nothing that markup would take for its own.
std::string Echapper(std::string_view texte) {
    std::string sortie;
    for (const char c : texte) {
        switch (c) {
            case '&':
                sortie += "&amp;";
                break;
            case '<':
                sortie += "&lt;";
                break;
            case '>':
                sortie += "&gt;";
                break;
            case '"':
                sortie += "&quot;";
                break;
            default:
                sortie += c;
        }
    }
    return sortie;
}

/// The picture itself as an address.
std::string AdresseDonnees(Image image) {
    std::string adresse = "data:image/svg+xml,";
    for (const char c : ImageSvg(image)) {
        const bool simple = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                            (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '/';
        if (simple) {
            adresse += c;
        } else {
            adresse += fmt::format("%{:02X}", static_cast<unsigned char>(c));
        }
    }
    return adresse;
}

std::string RegleStyle(JeuStyles jeu, int numero) {
    const FormatStyle& f = FormatDe(jeu, static_cast<Style>(numero));
    std::string familles;
    for (const char* famille : FamillesDe(f.fonte)) familles += fmt::format("\"{}\",", famille);
    return fmt::format(".s{} {{ font: {}{}{}pt {}{}; color: #{:06x}; text-decoration: {}; }}\n",
                       numero, f.italique ? "italic " : "", f.gras ? "bold " : "", f.corps,
                       familles, FamilleGenerique(f.fonte), f.couleur,
                       f.souligne ? "underline" : "none");
}

std::string Feuille(JeuStyles jeu) {
    std::string feuille = fmt::format(
        "html {{ -webkit-text-size-adjust: 100%; text-size-adjust: 100%; }}\n"
        "body {{ margin: 0 auto; max-width: 62em; padding: 0.5em 0.8em 3em; "
        "background: #{:06x}; }}\n"
        "p, pre, h1, h2 {{ margin: 0; font-size: 1em; font-weight: normal; "
        "white-space: pre-wrap; overflow-wrap: break-word; }}\n"
        "h2 {{ padding-top: 0.6em; }}\n"
        "pre {{ white-space: pre; overflow-x: auto; }}\n"
        ".c {{ text-align: center; }}\n"
        "hr {{ margin: 1em 0; border: 0; border-top: 1px solid #808080; }}\n"
        "img {{ width: 1em; height: 1em; vertical-align: -0.1em; }}\n",
        FondDe(jeu));
    for (int i = 0; i < NbStyles; ++i) feuille += RegleStyle(jeu, i);
    // On a phone the tables shrink to its width, as far as they can still be read.
    feuille +=
        "@media (max-width: 45em) {\n"
        "  p, h2 { font-size: 0.9em; }\n"
        "  .s0, .s6, .s7, .s8 { font-size: 11pt; }\n"
        "  .s1 { font-size: 15pt; }\n"
        "  .s4, .s10 { display: inline-block; padding: 0.25em 0; }\n"
        "  .s5, .s9 { font-size: max(7px, min(12pt, 2.5vw)); }\n"
        "  .s11 { font-size: max(7px, min(10pt, 1.8vw)); }\n"
        "}\n";
    return feuille;
}

/// The line of a table, whose pieces must stay below each other.
bool EstTable(const Bloc& bloc) {
    if (bloc.fragments.empty()) return false;
    const Style style = bloc.fragments.front().style;
    return style == Style::Table || style == Style::TableStatistique;
}

class Page {
 public:
    Page(const Document& document, PlaceImages images) : document_(document) {
        for (const Image image : Images) {
            sources_[static_cast<std::size_t>(image)] =
                images == PlaceImages::Fichiers ? FichierImage(image) : AdresseDonnees(image);
        }
    }

    std::string corps() {
        for (std::size_t i = 0; i < document_.blocs.size(); ++i) ajouter(i);
        return std::move(sortie_);
    }

 private:
    /// The lines of a table are one piece: it scrolls as a whole where it is too wide.
    void ajouter(std::size_t i) {
        const Bloc& bloc = document_.blocs[i];
        if (bloc.filet) {
            sortie_ += "<hr/>\n";
            return;
        }
        const bool table = EstTable(bloc);
        const bool ouvre = !table || i == 0 || !EstTable(document_.blocs[i - 1]);
        const bool ferme =
            !table || i + 1 == document_.blocs.size() || !EstTable(document_.blocs[i + 1]);
        const char* balise = table ? "pre" : i == 0 ? "h1" : bloc.ancre != SansAncre ? "h2" : "p";
        if (ouvre) {
            sortie_ += fmt::format("<{}", balise);
            if (i == 0 || bloc.ancre != SansAncre)
                sortie_ += fmt::format(" id=\"{}\"", AdresseHtml(bloc.ancre));
            sortie_ += bloc.centre ? " class=\"c\">" : ">";
        }
        if (bloc.fragments.empty()) sortie_ += "<br/>";
        for (const Fragment& fragment : bloc.fragments) ajouter(fragment);
        if (ferme) sortie_ += fmt::format("</{}>", balise);
        sortie_ += '\n';
    }

    void ajouter(const Fragment& fragment) {
        std::string dedans;
        if (fragment.image != Image::Aucune) {
            dedans = fmt::format("<img src=\"{}\" alt=\"{}\"/>",
                                 sources_[static_cast<std::size_t>(fragment.image)],
                                 ImageEnTexte(fragment.image));
        }
        dedans += Echapper(fragment.texte);
        const int style = static_cast<int>(fragment.style);
        if (fragment.lien == SansLien) {
            sortie_ += fmt::format("<span class=\"s{}\">{}</span>", style, dedans);
            return;
        }
        const Lien& lien = document_.liens[static_cast<std::size_t>(fragment.lien)];
        sortie_ += fmt::format("<a class=\"s{}\" href=\"#{}\" title=\"{}\">{}</a>", style,
                               AdresseHtml(document_.numeroAncre(lien.cible)),
                               Echapper(lien.survol), dedans);
    }

    const Document& document_;
    std::array<std::string, NbImages + 1> sources_;
    std::string sortie_;
};

}  // namespace

std::string AdresseHtml(int ancre) {
    return ancre == SansAncre ? "SignetLOTOSommaire" : fmt::format("SignetLOTO{}", ancre);
}

std::string FichierImage(Image image) {
    return fmt::format("varoimg{}.svg", static_cast<int>(image));
}

std::string EnHtml(const Document& document, JeuStyles jeu, PlaceImages images) {
    return fmt::format(
        "<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"fr\">\n<head>\n"
        "<meta charset=\"utf-8\"/>\n"
        "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
        "<title>{}</title>\n<style>\n{}</style>\n</head>\n<body>\n{}</body>\n</html>\n",
        Echapper(document.titre), Feuille(jeu), Page(document, images).corps());
}

Resultat<Rien> EcrireHtml(const Document& document, JeuStyles jeu,
                          const std::filesystem::path& fichier) {
    for (const Image image : Images) {
        auto ecrite = EcrireFichier(fichier.parent_path() / FichierImage(image), ImageSvg(image));
        if (!ecrite) return ecrite;
    }
    return EcrireFichier(fichier, EnHtml(document, jeu, PlaceImages::Fichiers));
}

}  // namespace norvane
