// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphs/TexteElement.h"

#include <fmt/format.h>

#include <array>

namespace norvane {

namespace {

constexpr int NbLignes = 8;

/// A maximum and the draws it reaches over.
std::string Maximum(int valeur, int premier) {
    if (valeur == 0) return "0";
    return fmt::format("{}  ({}  {})", valeur, premier, premier + valeur - 1);
}

/// First draw of the latest gap of the greatest length. Its mark is the appearance behind it, but
/// for the gap that reaches the end of the interval, whose mark stands before it.
int DebutEcartMax(const ResultatStats& r, int sup) {
    return r.Ecart == r.EcartMax ? sup + 1 - r.EcartMax : r.PosEcartMax - r.EcartMax;
}

std::array<std::string, NbLignes> Lignes(const Element& element, const ResultatStats& r, int sup) {
    const bool numero = element.genre == GenreStats::Numeros;
    return {fmt::format("{} {}", numero ? "Numéro" : "Chance", element.valeur),
            fmt::format("Sorties ->   {}", r.Sorties),
            fmt::format("Ecart ->     {}", r.Ecart),
            "EcartMax ->  " + Maximum(r.EcartMax, DebutEcartMax(r, sup)),
            fmt::format("Suite ->     {}", r.Suite),
            "SuiteMax ->  " + Maximum(r.SuiteMax, r.PosSuiteMax - r.SuiteMax + 1),
            fmt::format("Suite précédente ->  {}", r.SuitePrec),
            fmt::format("Ecart précédent ->    {}", r.EcartPrec)};
}

/// With the separators in turn between the lines.
std::string Assembler(const std::array<std::string, NbLignes>& lignes, const char* impair,
                      const char* pair) {
    std::string texte = lignes.front();
    for (std::size_t i = 1; i < lignes.size(); ++i)
        texte += (i % 2 == 1 ? impair : pair) + lignes[i];
    return texte;
}

}  // namespace

ResultatStats StatsElement(const Occurrences& occ, const Element& element, int inf, int sup) {
    const auto k = static_cast<std::size_t>(element.valeur - 1);
    return StatsIntervalle(
        element.genre == GenreStats::Numeros ? occ.ListeNumeros[k] : occ.ListeChances[k], inf - 1,
        sup - 1);
}

std::string TexteElement(const Element& element, const ResultatStats& stats, int sup) {
    return Assembler(Lignes(element, stats, sup), "\n", "\n");
}

std::string TexteElementCourt(const Element& element, const ResultatStats& stats, int sup) {
    return Assembler(Lignes(element, stats, sup), "   |   ", "\n");
}

}  // namespace norvane
