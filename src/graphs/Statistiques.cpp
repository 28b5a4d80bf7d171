// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "graphs/Statistiques.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "base/Dates.h"
#include "stats/Noyau.h"

namespace norvane {

namespace {

constexpr int ChampsMobiles = 7;  // a swap leaves the eighth in place

std::int16_t Mot(int valeur) {
    return static_cast<std::int16_t>(
        std::min<int>(valeur, std::numeric_limits<std::int16_t>::max()));
}

RangeeStats FaireRangee(int numero, const ResultatStats& r) {
    return {Mot(numero),  Mot(r.Sorties),  Mot(r.Ecart),     Mot(r.EcartMax),
            Mot(r.Suite), Mot(r.SuiteMax), Mot(r.SuitePrec), Mot(r.EcartPrec)};
}

/// Quicksort around the first row.
void TriRapide(std::span<RangeeStats> rangees, std::size_t champ) {
    if (rangees.size() < 2) return;
    const std::int16_t pivot = rangees.front()[champ];
    std::size_t i = 0;
    std::size_t j = rangees.size() - 1;
    for (;;) {
        while (rangees[i][champ] < pivot) ++i;
        while (rangees[j][champ] > pivot) --j;
        if (i >= j) break;
        std::swap_ranges(rangees[i].begin(), rangees[i].begin() + ChampsMobiles,
                         rangees[j].begin());
        ++i;
        --j;
    }
    TriRapide(rangees.first(j + 1), champ);
    TriRapide(rangees.subspan(j + 1), champ);
}

Attendu FaireAttendu(int tirages, double chance) {
    return {tirages * chance, 2 * std::sqrt(tirages * chance * (1 - chance))};
}

}  // namespace

TableGraphe CalculerTable(const Occurrences& occ, int inf, int sup) {
    TableGraphe table;
    auto* rangee = table.data();
    const auto remplir = [&](const auto& listes) {
        int numero = 0;
        for (const ListeOccurrences& liste : listes)
            *rangee++ = FaireRangee(++numero, StatsIntervalle(liste, inf - 1, sup - 1));
    };
    remplir(occ.ListeNumeros);
    remplir(occ.ListeChances);
    return table;
}

void TrierTable(TableGraphe& table, TriGraphe tri) {
    const std::span rangees(table);
    TriRapide(rangees.first(NumeroMax), static_cast<std::size_t>(tri));
    TriRapide(rangees.subspan(NumeroMax), static_cast<std::size_t>(tri));
}

std::array<PointGraphe, NbPlaces> PointsStatistiques(const TableGraphe& table,
                                                     const Tirage& superieur) {
    std::array<PointGraphe, NbPlaces> points;
    for (int place = 1; place <= NbPlaces; ++place) {
        const auto rang = static_cast<std::size_t>(place - 1);
        const int numero = table[rang][0];
        const GenreStats genre = ElementDe(place).genre;
        const bool sorti =
            genre == GenreStats::Numeros
                ? std::ranges::find(superieur.Numeros, numero) != std::end(superieur.Numeros)
                : superieur.Chance == numero;
        points[rang] = {
            place, table[rang][1], {genre, numero}, sorti ? Teinte::Sorti : Teinte::NonSorti};
    }
    return points;
}

std::string TitreStatistiques(const Base& base, int inf, int sup) {
    const auto date = [&](int tirage) {
        return DateLongue(base.Tirages[static_cast<std::size_t>(tirage - 1)].DateTirage);
    };
    const int n = sup - inf + 1;
    if (n == 1) return fmt::format("Graphe de Statistiques (sur {} tirage, le {})", n, date(sup));
    return fmt::format("Graphe de Statistiques (sur {} tirages, du {} au {})", n, date(inf),
                       date(sup));
}

Attendus CalculerAttendus(const TableGraphe& table, int nbTirages) {
    int avecChance = 0;
    for (const RangeeStats& rangee : std::span(table).subspan(NumeroMax)) avecChance += rangee[1];
    return {FaireAttendu(nbTirages, double{NbBoules} / NumeroMax),
            FaireAttendu(avecChance, 1.0 / ChanceMax)};
}

}  // namespace norvane
