// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <array>
#include <string_view>

#include "base/Dates.h"
#include "reports/Historique.h"

namespace norvane {

namespace {

/// What makes each row of the table of categories.
constexpr std::array<std::string_view, 12> LibellesCategories{
    "5 + chance", "5", "4 + chance", "4",          "3 + chance", "3",
    "2 + chance", "2", "1 + chance", "0 + chance", "1",          "0"};

/// " 03 14 25".
std::string Liste(Ensemble valeurs) {
    std::string texte;
    for (const int n : valeurs) texte += fmt::format(" {:02}", n);
    return texte;
}

std::string Nom(const Element& e) {
    return fmt::format("{} {}", e.genre == GenreStats::Numeros ? "du numéro" : "de la chance",
                       e.valeur);
}
std::string Nom(const CoupleChances& c) {
    return fmt::format("des chances {} et {}", c.premiere, c.seconde);
}
std::string Nom(const RangCombinaison& r) {
    return fmt::format("du rang {} de la combinaison{}", r.bons, Liste(r.numeros));
}
std::string Nom(const CategorieChances& c) {
    return fmt::format("du rang {} de la grille{} + C{}",
                       LibellesCategories[static_cast<std::size_t>(c.categorie)], Liste(c.numeros),
                       Liste(c.chances));
}

}  // namespace

std::string NomHistorique(const Historique& historique) {
    return "Historique " +
           std::visit([](const auto& sujet) { return Nom(sujet); }, historique.sujet);
}

std::string TitreHistorique(const Historique& historique) {
    const auto tirage = [](int numero, const Tirage& t) {
        return fmt::format("{} ({})", numero, DateCourte(t.DateTirage));
    };
    const std::string nom = NomHistorique(historique);
    const std::string debut = tirage(historique.inf, historique.tirages.front());
    if (historique.inf == historique.sup) return fmt::format("{}, tirage {}", nom, debut);
    return fmt::format("{}, tirages {} à {}", nom, debut,
                       tirage(historique.sup, historique.tirages.back()));
}

std::string LigneChiffres(const ChiffresHistorique& c) {
    return fmt::format(
        "Ecart Actuel={}, Ecart Max={}, Ecart Moyen={}, Suite Actuelle={}, Suite Max={}",
        c.ecartActuel, c.ecartMax, c.ecartMoyen, c.suiteActuelle, c.suiteMax);
}

std::string MessageNonSorti(const SujetHistorique& sujet) {
    std::string_view quoi = "Rang non sorti";
    if (const auto* e = std::get_if<Element>(&sujet)) {
        quoi = e->genre == GenreStats::Numeros ? "Numéro non sorti" : "Chance non sortie";
    } else if (std::holds_alternative<CoupleChances>(sujet)) {
        quoi = "Chances non sorties";
    }
    return fmt::format("{} sur la période...", quoi);
}

}  // namespace norvane
