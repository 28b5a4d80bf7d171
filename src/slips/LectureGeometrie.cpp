// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <utility>

#include "base/Fichiers.h"
#include "base/Textes.h"
#include "slips/Geometrie.h"
#include "slips/Marques.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t OctetsMax = 1 << 16;  ///< some fifty short lines
constexpr double MillimetresMax = 1000;
constexpr const char* Conseil =
    "La géométrie intégrée est employée : corrigez ce fichier ou retirez-le.";

/// A key and what it gives: one length, or two with a `;` between.
struct Cle {
    const char* section;
    const char* nom;
    double* premier;
    double* second = nullptr;
};

std::vector<Cle> Cles(GeometrieBulletin& g) {
    static constexpr const char* nomsGrilles[GrillesParBulletin] = {
        "grille1", "grille2", "grille3", "grille4", "grille5", "grille6"};
    std::vector<Cle> cles = {{"PAPIER", "largeur", &g.papier.x},
                             {"PAPIER", "hauteur", &g.papier.y},
                             {"CASE", "cote", &g.grille.cote},
                             {"CHANCES", "pas", &g.grille.pasChances}};
    const auto paire = [&](const char* section, const char* nom, Place& place) {
        cles.push_back({section, nom, &place.x, &place.y});
    };
    for (std::size_t i = 0; i < g.grilles.size(); ++i)
        paire("GRILLES", nomsGrilles[i], g.grilles[i]);
    paire("NUMEROS", "origine", g.grille.numeros);
    paire("NUMEROS", "pas", g.grille.pasNumeros);
    paire("CHANCES", "origine1", g.grille.chances[0]);
    paire("CHANCES", "origine6", g.grille.chances[1]);
    paire("2ND", "origine", g.second);
    for (const auto& [section, rangee] :
         {std::pair{"SEMAINES", &g.semaines}, std::pair{"JOKER1", &g.joker1},
          std::pair{"JOKER2", &g.joker2}, std::pair{"JOURS", &g.jours}}) {
        paire(section, "origine", rangee->origine);
        paire(section, "pas", rangee->pas);
    }
    return cles;
}

/// A length in millimetres, 0..MillimetresMax, comma or point.
std::optional<double> Longueur(std::string_view texte) {
    std::string nombre(Rogner(texte));
    std::ranges::replace(nombre, ',', '.');
    double x = 0;
    const char* fin = nombre.data() + nombre.size();
    const auto lu = std::from_chars(nombre.data(), fin, x, std::chars_format::fixed);
    if (lu.ec != std::errc{} || lu.ptr != fin || !(x >= 0 && x <= MillimetresMax))
        return std::nullopt;
    return x;
}

bool Poser(const Cle& cle, std::string_view valeur) {
    const std::size_t separateur = valeur.find(';');
    if ((separateur == valeur.npos) != (cle.second == nullptr)) return false;
    const auto premier = Longueur(valeur.substr(0, separateur));
    const auto second = cle.second == nullptr ? premier : Longueur(valeur.substr(separateur + 1));
    if (!premier || !second) return false;
    *cle.premier = *premier;
    if (cle.second != nullptr) *cle.second = *second;
    return true;
}

struct Valeur {
    std::string_view texte;
    int ligne;
};
using Valeurs = std::map<std::pair<std::string_view, std::string_view>, Valeur>;

/// The keys of a text by section and name; the number of the first line that is nothing of an ini.
std::optional<int> Separer(std::string_view texte, Valeurs& valeurs) {
    std::string_view section;
    for (int numero = 1; !texte.empty(); ++numero) {
        const auto fin = std::min(texte.find('\n'), texte.size());
        const std::string_view ligne = Rogner(texte.substr(0, fin));
        texte.remove_prefix(std::min(fin + 1, texte.size()));
        if (ligne.empty() || ligne.front() == ';' || ligne.front() == '#') continue;
        const auto egal = ligne.find('=');
        if (ligne.front() == '[' && ligne.back() == ']') {
            section = Rogner(ligne.substr(1, ligne.size() - 2));
        } else if (egal != ligne.npos) {
            valeurs[{section, Rogner(ligne.substr(0, egal))}] = {Rogner(ligne.substr(egal + 1)),
                                                                 numero};
        } else {
            return numero;
        }
    }
    return std::nullopt;
}

/// What is wrong with lengths that are numbers; empty when nothing is.
std::string Defaut(const GeometrieBulletin& g) {
    const double cote = g.grille.cote;
    if (!(cote > 0)) return "[CASE] cote doit être plus grand que 0";
    const auto serre = [&](Place pas) { return pas.x < cote && pas.y < cote; };
    const std::pair<const char*, bool> pas[] = {
        {"NUMEROS", g.grille.pasNumeros.x < cote || g.grille.pasNumeros.y < cote},
        {"CHANCES", g.grille.pasChances < cote},
        {"SEMAINES", serre(g.semaines.pas)},
        {"JOKER1", serre(g.joker1.pas)},
        {"JOKER2", serre(g.joker2.pas)},
        {"JOURS", serre(g.jours.pas)}};
    for (const auto& [section, tropPetit] : pas)
        if (tropPetit)
            return fmt::format("[{}] pas doit être au moins le côté d'une case, {} mm", section,
                               cote);
    for (const CaseBulletin& c : g.cases())
        if (HorsPapier(c, g))
            return fmt::format("la case {}{} est hors du papier de {} × {} mm",
                               LibelleCase(c.bloc, c.valeur),
                               c.grille == 0 ? "" : fmt::format(" de la grille {}", c.grille),
                               g.papier.x, g.papier.y);
    return {};
}

}  // namespace

Resultat<GeometrieBulletin> LireGeometrie(std::string_view texte, std::string_view nom) {
    const auto refus = [&](std::string_view defaut) {
        return Erreur{fmt::format("« {} » : {}. {}", nom, defaut, Conseil)};
    };
    Valeurs valeurs;
    if (const auto ligne = Separer(SansMarqueOctets(texte), valeurs))
        return refus(
            fmt::format("la ligne {} n'est ni une section, ni une clé, ni un commentaire", *ligne));
    GeometrieBulletin g{};
    for (const Cle& cle : Cles(g)) {
        const auto trouvee = valeurs.find({cle.section, cle.nom});
        if (trouvee == valeurs.end())
            return refus(fmt::format("il manque [{}] {}", cle.section, cle.nom));
        const Valeur& valeur = trouvee->second;
        if (!Poser(cle, valeur.texte))
            return refus(
                fmt::format("ligne {}, [{}] {} : « {} » n'est pas {} de 0 à {} mm", valeur.ligne,
                            cle.section, cle.nom, Citer(valeur.texte),
                            cle.second == nullptr ? "une longueur" : "une paire x;y de longueurs",
                            MillimetresMax));
    }
    if (const std::string defaut = Defaut(g); !defaut.empty()) return refus(defaut);
    return g;
}

GeometrieChargee ChargerGeometrie(const fs::path& repertoire) {
    for (const fs::path& fichier :
         {repertoire / NomGeometrie, repertoire / "data" / NomGeometrie}) {
        if (!NomPresent(fichier)) continue;
        const auto texte = LireFichier(fichier, OctetsMax);
        if (!texte) return {GeometrieIntegree, fmt::format("{} {}", texte.erreur(), Conseil)};
        auto lue = LireGeometrie(*texte, fichier.string());
        if (!lue) return {GeometrieIntegree, lue.erreur()};
        return {*lue, {}};
    }
    return {GeometrieIntegree, {}};
}

}  // namespace norvane
