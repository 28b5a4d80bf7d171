// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/Rangs.h"

#include <algorithm>
#include <cstdint>

#include "tickets/Binomial.h"

namespace norvane {

const std::array<const char*, 12> LibellesRangLoto = {
    "Rang1 (5N + C)   --> ", "Rang2 (5N)       --> ", "Rang3 (4N + C)   --> ",
    "Rang4 (4N)       --> ", "Rang5 (3N + C)   --> ", "Rang6 (3N)       --> ",
    "Rang7 (2N + C)   --> ", "Rang8 (2N)       --> ", "Rang9(1 + C ou C)--> ",
    "Rang10 (3N)      --> ", "Rang11 (1N + 2*) --> ", "Rang12 (2N + 1*) --> "};

const std::array<const char*, NbRangs2nd> LibellesRang2nd = {
    "Rang1 (5N)       --> ", "Rang2 (4N)       --> ", "Rang3 (3N)       --> ",
    "Rang4 (2N)       --> "};

namespace {

constexpr std::size_t NbLignes = 312;
constexpr std::size_t NbLignes2nd = 20;
constexpr std::size_t RangChance = 8;  ///< RangLoto index of the Chance alone
constexpr int PasDeRang = 9;           ///< RangSimple: from here on nothing is won

/// RangLoto index by good numbers, without and with the right chance.
constexpr std::array<std::array<int, 2>, NbBoules + 1> TableRangSimple = {
    {{10, 8}, {9, 8}, {7, 6}, {5, 4}, {3, 2}, {1, 0}}};

constexpr int Cle(int n, int g, int c, int gc) {
    const int unite = c < 10 ? 100 : 1000;
    return (10 * n + g) * unite + c * 10 + gc;
}

constexpr int Cle2nd(int n, int g) {
    return n * 10 + g;
}

/// Subsets of five numbers with exactly k good ones, of n numbers that hold g good ones.
constexpr int Facons(int n, int g, int k) {
    return Combinaisons(g, k) * Combinaisons(n - g, NbBoules - k);
}

using Repartition = ComptesRangs (*)(int n, int g, int c, int gc);

constexpr ComptesRangs Repartir2017(int n, int g, int c, int gc) {
    ComptesRangs comptes{};
    for (int k = 0; k <= NbBoules; ++k) {
        const auto& rangs = TableRangSimple[static_cast<std::size_t>(k)];
        comptes[static_cast<std::size_t>(rangs[1])] += Facons(n, g, k) * gc;
        if (rangs[0] < PasDeRang)
            comptes[static_cast<std::size_t>(rangs[0])] += Facons(n, g, k) * (c - gc);
    }
    return comptes;
}

// Until March 2017 the Chance lifted the five numbers alone; below them it paid the stake back on
// top of the rank of the numbers.
constexpr ComptesRangs RepartirAvant2017(int n, int g, int c, int gc) {
    ComptesRangs comptes{};
    for (int k = 0; k < NbBoules; ++k) {
        const int rang = TableRangSimple[static_cast<std::size_t>(k)][0];
        if (rang < PasDeRang) comptes[static_cast<std::size_t>(rang)] += Facons(n, g, k) * c;
        comptes[RangChance] += Facons(n, g, k) * gc;
    }
    comptes[0] = Facons(n, g, NbBoules) * gc;
    comptes[1] = Facons(n, g, NbBoules) * (c - gc);
    return comptes;
}

/// A row for each result of a ticket sold that wins; ten chances never leave the right one out.
constexpr std::array<LigneRangs, NbLignes> FaireTable(Repartition repartir) {
    std::array<LigneRangs, NbLignes> table{};
    std::size_t nombre = 0;
    for (const TypeGrille type : TypesVendus)
        for (int g = 0; g <= NbBoules; ++g)
            for (int gc = type.c == ChanceMax ? 1 : 0; gc <= 1; ++gc) {
                const ComptesRangs comptes = repartir(type.n, g, type.c, gc);
                if (comptes != ComptesRangs{})
                    table[nombre++] = {Cle(type.n, g, type.c, gc), comptes};
            }
    std::ranges::sort(table, {}, &LigneRangs::cle);
    return table;
}

constexpr auto Table2017 = FaireTable(Repartir2017);
constexpr auto TableAvant2017 = FaireTable(RepartirAvant2017);
// A row left over would stand at the front with a key of 0.
static_assert(Table2017.front().cle > 0 && TableAvant2017.front().cle > 0);

constexpr auto Table2nd = [] {
    std::array<LigneRangs2nd, NbLignes2nd> table{};
    std::size_t nombre = 0;
    for (int n = 5; n <= 9; ++n)
        for (int g = 2; g <= NbBoules; ++g) {
            LigneRangs2nd& ligne = table[nombre++];
            ligne.cle = Cle2nd(n, g);
            for (int rang = 0; rang < NbRangs2nd; ++rang)
                ligne.comptes[static_cast<std::size_t>(rang)] = Facons(n, g, NbBoules - rang);
        }
    return table;
}();

/// Binary search. A result is as good as drawn by lot, so the steps are written for the processor
/// to choose without guessing.
template <typename Ligne, std::size_t Taille>
auto Chercher(const std::array<Ligne, Taille>& table, int cle)
    -> std::optional<decltype(Ligne::comptes)> {
    const Ligne* ligne = table.data();
    for (std::size_t reste = Taille; reste > 1;) {
        const std::size_t moitie = reste / 2;
        ligne = ligne[moitie].cle <= cle ? ligne + moitie : ligne;
        reste -= moitie;
    }
    if (ligne->cle != cle) return std::nullopt;
    return ligne->comptes;
}

}  // namespace

bool RangExiste(const Tirage& tirage, int rang) {
    if (EstSecondTirage(tirage)) return rang < NbRangs2nd;
    if (tirage.DateTirage < DateNouveauLoto) return false;
    // The ranks that came with the Chance: 4N + C, 3N + C and 2N + C.
    const bool nouveau = rang == 2 || rang == 4 || rang == 6;
    return !nouveau || tirage.DateTirage >= DateNouveauxRangs;
}

Bons CompterBons(const Grille& grille, const Tirage& tirage) {
    return {grille.numeros.ensemble().commun(Ensemble::de(tirage.Numeros)).taille(),
            grille.chances.contient(tirage.Chance) ? 1 : 0};
}

int CleRang(int n, int g, int c, int gc) {
    return Cle(n, g, c, gc);
}

std::span<const LigneRangs> TableRangs2017() {
    return Table2017;
}

std::span<const LigneRangs> TableRangsAvant2017() {
    return TableAvant2017;
}

std::span<const LigneRangs2nd> TableRangs2nd() {
    return Table2nd;
}

int RangSimple(int g, int gc) {
    return TableRangSimple[static_cast<std::size_t>(g)][static_cast<std::size_t>(gc)];
}

std::optional<ComptesRangs> ChercherRangs(int cle, int date) {
    return Chercher(date < DateNouveauxRangs ? TableAvant2017 : Table2017, cle);
}

std::optional<ComptesRangs2nd> ChercherRangs2nd(int n, int g) {
    return Chercher(Table2nd, Cle2nd(n, g));
}

std::optional<ComptesRangs> RangsResultat(int n, int g, int c, int gc, int date) {
    if (n != 4 || c != 0) return ChercherRangs(Cle(n, g, c, gc), date);
    const int rang = RangSimple(g, gc);
    if (rang >= PasDeRang) return std::nullopt;
    ComptesRangs comptes{};
    comptes[static_cast<std::size_t>(rang)] = 1;
    return comptes;
}

ComptesRangs RangsGagnes(const Grille& grille, const Tirage& tirage) {
    const Bons bons = CompterBons(grille, tirage);
    return RangsResultat(grille.n(), bons.numeros, grille.c(), bons.chances, tirage.DateTirage)
        .value_or(ComptesRangs{});
}

ComptesRangs2nd Rangs2ndGagnes(const Grille& grille, const Tirage& tirage) {
    if (!ParticipeAu2ndTirage(grille)) return {};
    return ChercherRangs2nd(grille.n(), CompterBons(grille, tirage).numeros)
        .value_or(ComptesRangs2nd{});
}

double GainNominal(int taille, int k, const std::array<double, 4>& gains) {
    if (k < 2 || k > NbBoules) return 0.0;
    if (taille <= NbBoules) return gains[static_cast<std::size_t>(k - 2)];
    double somme = 0.0;
    for (int j = 2; j <= k; ++j)
        somme += Facons(taille, k, j) * gains[static_cast<std::size_t>(j - 2)];
    return somme;
}

}  // namespace norvane
