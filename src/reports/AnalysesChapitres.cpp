// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The chapters that are lines of figures: numbers in common, statistics, endings, parity, sevens.
#include <fmt/format.h>

#include <array>
#include <string>
#include <utility>

#include "AnalysesMatiere.h"

namespace norvane {

namespace {

/// The five numbers behind the draw's own; those in common stand out.
void RedigerTirage(Redacteur& r, const MatiereAnalyses& m, int indice, const Communs& communs) {
    r.ligne(Style::Corps, fmt::format("{:4} : ", indice + 1));
    for (const int n : m.tirages[static_cast<std::size_t>(indice)].Numeros) {
        r.suite(communs.contient(n) ? Style::NumeroCommun : Style::Corps, fmt::format("{:2} ", n));
    }
}

/// Records i and i + 1.
void RedigerPaire(Redacteur& r, const MatiereAnalyses& m, int i) {
    const auto place = static_cast<std::size_t>(i);
    const Communs communs = NumerosCommuns(m.tirages[place], m.tirages[place + 1]);
    r.ligne(Style::Corps, communs.nombre == 1
                              ? "1 numéro en commun"
                              : fmt::format("{} numéros en commun", communs.nombre));
    RedigerTirage(r, m, i, communs);
    RedigerTirage(r, m, i + 1, communs);
    r.ligne(Style::Corps, "les numéros en commun : ");
    for (int k = 0; k < communs.nombre; ++k)
        r.suite(Style::Corps, fmt::format("{:2} ", communs.numeros[static_cast<std::size_t>(k)]));
    r.vide();
}

/// A number as it is read in French, with the fifteen digits that are sure.
std::string TexteGeneral(double x) {
    std::string texte = fmt::format("{:.15g}", x);
    if (const auto point = texte.find('.'); point != std::string::npos) texte[point] = ',';
    return texte;
}

/// The places of an array, the highest count first.
template <std::size_t N>
std::array<std::size_t, N> ParCompte(const std::array<int, N>& comptes) {
    std::array<std::size_t, N> places{};
    for (std::size_t i = 0; i < N; ++i) places[i] = i;
    TrierParCompte(places, [&](std::size_t i) { return comptes[i]; });
    return places;
}

}  // namespace

void RedigerCommuns(Redacteur& r, const MatiereAnalyses& m) {
    for (const int i : m.comptes.records) RedigerPaire(r, m, i);
}

void RedigerBilanCommuns(Redacteur& r, const MatiereAnalyses& m) {
    const ComptesAnalyses& c = m.comptes;
    const int minimum = c.MinCommuns == MinCommunsInconnu ? c.MaxCommuns : c.MinCommuns;
    r.vide();
    r.ligne(Style::Corps, fmt::format("Maximum : {}", c.MaxCommuns));
    r.ligne(Style::Corps, fmt::format("Minimum : {}", minimum));
    r.vide();
}

void RedigerMoyenneCommuns(Redacteur& r, const MatiereAnalyses& m) {
    r.vide();
    r.ligne(Style::Corps,
            "Numéros en commun en moyenne: " + TexteGeneral(m.comptes.SommeCommuns / m.d()));
    r.vide();
    r.filet();
}

void RedigerDixDerniers(Redacteur& r, const MatiereAnalyses& m) {
    for (int j = m.TirageSup - 9; j <= m.TirageSup; ++j) {
        if (j - 9 >= 1) RedigerPaire(r, m, j - 1);
    }
}

void RedigerStatistiques(Redacteur& r, const MatiereAnalyses& m) {
    const ComptesAnalyses& c = m.comptes;
    std::array<std::size_t, NumeroMax> numeros{};
    for (std::size_t k = 0; k < numeros.size(); ++k) numeros[k] = k + 1;
    TrierParCompte(numeros, [&](std::size_t n) { return c.NbFois[n]; });
    r.ligne(Style::TableStatistique,
            "           nbfois              écart           écart max         suite           "
            "suite max");
    int rang = 0;
    for (const std::size_t n : numeros) {
        r.ligne(Style::TableStatistique,
                fmt::format("{:02} |{:02}| --> {:4}{:16}{:2}{:16}{:2}{:14}{:2}{:16}{:2} ", ++rang,
                            n, c.NbFois[n], "", c.Ecart[n], "", std::max(c.EcartMax[n], c.Ecart[n]),
                            "", c.Suite[n], "", std::max(c.SuiteMax[n], c.Suite[n])));
    }
}

void RedigerTerminaisons(Redacteur& r, const MatiereAnalyses& m) {
    for (const std::size_t chiffre : ParCompte(m.comptes.Terminaisons)) {
        r.ligne(Style::Corps, fmt::format("Nombres se terminant par {} : {}", chiffre,
                                          m.comptes.Terminaisons[chiffre]));
    }
}

void RedigerParites(Redacteur& r, const MatiereAnalyses& m) {
    std::pair<int, const char*> premiers{m.comptes.NbImpairs, "impairs"};
    std::pair<int, const char*> seconds{m.comptes.NbPairs, "pairs"};
    if (m.comptes.NbPairs > m.comptes.NbImpairs) std::swap(premiers, seconds);
    const std::string sujet =
        m.d() == 0 ? "Le tirage totalise" : fmt::format("Les {} tirages totalisent", m.nombre());
    r.ligne(Style::Corps,
            fmt::format("{} {} nombres {} contre {} nombres {}", sujet, premiers.first,
                        premiers.second, seconds.first, seconds.second));
}

void RedigerSeptaines(Redacteur& r, const MatiereAnalyses& m) {
    static constexpr std::array<const char*, NbSeptaines> Noms{
        " 1 à 7 ", "8 à 14 ", "15 à 21 ", "22 à 28 ", "29 à 35 ", "36 à 42 ", "43 à 49 "};
    for (const std::size_t s : ParCompte(m.comptes.Septaines)) {
        r.ligne(Style::Corps, fmt::format("La septaine de {}totalise {} nombres", Noms[s],
                                          m.comptes.Septaines[s]));
    }
}

}  // namespace norvane
