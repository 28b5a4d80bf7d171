// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <map>
#include <random>

#include "tickets/FichiersGrilles.h"
#include "tickets/GrillesHasard.h"
#include "tickets/Rangs.h"

namespace norvane {
namespace {

/// Calls `fait` with the good numbers of each simple grid of n numbers, the first g of them good.
template <typename Fait>
void ParGrilleSimple(int n, int g, Fait fait) {
    for (unsigned choix = 0; choix < 1U << n; ++choix)
        if (std::popcount(choix) == 5)
            fait(static_cast<std::size_t>(std::popcount(choix & ((1U << g) - 1))));
}

ComptesRangs Enumerer(int n, int g, int c, int gc, bool depuis2017) {
    constexpr std::array<std::size_t, 6> sansChance = {9, 9, 7, 5, 3, 1},
                                         avecChance = {8, 8, 6, 4, 2, 0};
    std::array<int, 10> comptes{};  // the last one for what wins nothing
    ParGrilleSimple(n, g, [&](std::size_t k) {
        for (int chance = 0; chance < c; ++chance) {
            const bool bonne = chance < gc;
            ++comptes[(bonne && (depuis2017 || k == 5) ? avecChance : sansChance)[k]];
            if (bonne && !depuis2017 && k < 5) ++comptes[8];
        }
    });
    ComptesRangs rangs;
    std::copy_n(comptes.begin(), rangs.size(), rangs.begin());
    return rangs;
}

TEST(Rangs, ChaqueLigneContreLesGrillesSimples) {
    std::map<int, std::array<ComptesRangs, 2>> attendues;
    for (const auto [n, c] : TypesVendus)
        for (int g = 0; g <= 5; ++g)
            for (int gc = c == 10 ? 1 : 0; gc <= 1; ++gc) {
                const int cle = std::stoi(std::to_string(n) + std::to_string(g) +
                                          std::to_string(c) + std::to_string(gc));
                EXPECT_EQ(CleRang(n, g, c, gc), cle);
                const auto ligne = Enumerer(n, g, c, gc, true);
                if (ligne != ComptesRangs{}) attendues[cle] = {ligne, Enumerer(n, g, c, gc, false)};
            }
    ASSERT_EQ(attendues.size(), 312U);
    ASSERT_EQ(TableRangs2017().size(), 312U);
    ASSERT_EQ(TableRangsAvant2017().size(), 312U);
    std::size_t i = 0, differentes = 0;
    for (const auto& [cle, lignes] : attendues) {
        EXPECT_EQ(TableRangs2017()[i].cle, cle);
        EXPECT_EQ(TableRangsAvant2017()[i++].cle, cle);
        EXPECT_EQ(ChercherRangs(cle, 20170306), lignes[0]) << cle;
        EXPECT_EQ(ChercherRangs(cle, 20170305), lignes[1]) << cle;
        differentes += lignes[0] != lignes[1];
    }
    EXPECT_EQ(differentes, 118U);
    for (const int cle : {0, 5010, 5110, 6601, 51100, 7291, 99999, -1})
        EXPECT_FALSE(ChercherRangs(cle, 20240101)) << cle;
}

TEST(Rangs, ChaqueLigneDu2ndTirage) {
    EXPECT_EQ(TableRangs2nd().size(), 20U);
    for (int n = 4; n <= 10; ++n)
        for (int g = 0; g <= 5; ++g) {
            ComptesRangs2nd comptes{};
            ParGrilleSimple(n, g, [&](std::size_t k) {
                if (k >= 2 && n < 10) ++comptes[5 - k];
            });
            EXPECT_EQ(ChercherRangs2nd(n, g).value_or(ComptesRangs2nd{}), comptes) << n << g;
        }
}

TEST(Rangs, GrillesSurTirages) {
    struct {
        Grille grille;
        int date;
        ComptesRangs gagne;
    } const cas[] = {
        {{4.4, {3, 10, 11, 2, 1}, {6, 7}}, 20170306, {0, 0, 0, 0, 1, 1, 0, 0, 0}},
        {{4.4, {3, 10, 11, 2, 1}, {6, 7}}, 20170305, {0, 0, 0, 0, 0, 2, 0, 0, 1}},
        {{277.2, {1, 2, 3, 4, 5, 6, 7, 8, 9}, {7}}, 20200101, {1, 0, 20, 0, 60, 0, 40, 0, 5}},
        // Written by hand: four numbers without a chance, or what no table knows.
        {{1, {4, 3, 2, 1}, {}}, 20200101, {0, 0, 0, 1, 0, 0, 0, 0, 0}},
        {{1, {30, 31, 32, 1}, {}}, 20200101, {}},
        {{1, {4, 3, 2, 1}, {7}}, 20200101, {}},
        {{0, {}, {}}, 20200101, {}},
    };
    for (const auto& c : cas)
        EXPECT_EQ(RangsGagnes(c.grille, {{1, 2, 3, 4, 5}, 7, 0, 0, c.date, 1, JokerAbsent}),
                  c.gagne)
            << TexteGrilles({&c.grille, 1}) << c.date;

    const Tirage second = {{1, 2, 3, 4, 5}, 0, 0, 0, 20200101, 2, JokerAbsent};
    Grille grille = {31.2, {1, 2, 3, 4, 5, 6}, {4, 9}};
    EXPECT_EQ(Rangs2ndGagnes(grille, second), (ComptesRangs2nd{1, 5, 0, 0}));
    grille.mise = 26.4;
    EXPECT_EQ(Rangs2ndGagnes(grille, second), ComptesRangs2nd{});
}

TEST(Rangs, GainsNominaux) {
    const std::array<double, 6> g = {0, 0, 5, 20, 500, 100000};
    for (int taille = 2; taille <= 10; ++taille)
        for (std::size_t k = 0; k <= static_cast<std::size_t>(taille); ++k) {
            double attendu = taille <= 5 ? g[k] : 0;
            if (taille > 5 && k <= 5)
                ParGrilleSimple(taille, static_cast<int>(k), [&](auto j) { attendu += g[j]; });
            EXPECT_EQ(GainNominal(taille, static_cast<int>(k), {5, 20, 500, 100000}), attendu);
        }
}

using Chiffres = std::array<int, 7>;
/// Digits left and right, tolerances left and right, euros left and right.
using Champs = std::array<double, 6>;

/// Equal digits from the left: none let pass, and one let pass if it is near.
std::pair<int, int> Prefixes(const Chiffres& joue, const Chiffres& tire) {
    const auto egaux = [&](std::ptrdiff_t de) {
        return std::mismatch(joue.begin() + de, joue.end(), tire.begin() + de).first - joue.begin();
    };
    const auto n = egaux(0);
    if (n == 7) return {7, 7};
    const int ecart =
        std::abs(joue[static_cast<std::size_t>(n)] - tire[static_cast<std::size_t>(n)]);
    return {n, ecart == 1 || ecart == 9 ? egaux(n + 1) : n};
}

Champs Attendu(const LigneJoker& ligne, const Chiffres& tire) {
    Chiffres j = ligne.chiffres, t = tire;
    auto [exactG, g] = Prefixes(j, t);
    std::reverse(j.begin(), j.end()), std::reverse(t.begin(), t.end());
    auto [exactD, d] = Prefixes(j, t);
    const bool option = ligne.code > 2, deux = g > exactG && d > exactD;
    if (!option || (deux && g < d)) g = exactG;
    if (!option || (deux && g != exactG)) d = exactD;
    const auto gain = [&](int exact, int n) {
        constexpr double simple[] = {0, 1, 5, 50, 500, 2500, 25000, 250000};
        constexpr double tolere[] = {0, 1, 1.5, 6, 60, 600, 3000, 30000};
        return (ligne.code % 2 == 1 ? 1 : 2) * (n > exact ? tolere : simple)[n];
    };
    return {1.0 * g,
            1.0 * d,
            g > exactG ? exactG : -1.0,
            d > exactD ? 6.0 - exactD : -1.0,
            gain(exactG, g),
            g < 7 ? gain(exactD, d) : 0};
}

void Verifier(const Chiffres& joue, const Chiffres& tire) {
    for (int code = 1; code <= 4; ++code) {
        const ResultatJoker r = GainJokerLigne({joue, code}, tire);
        const Champs obtenu = {1.0 * r.gauche,          1.0 * r.droite, 1.0 * r.toleranceGauche,
                               1.0 * r.toleranceDroite, r.gainGauche,   r.gainDroite};
        ASSERT_EQ(obtenu, Attendu({joue, code}, tire)) << testing::PrintToString(joue) << code;
    }
}

// 0 and 9 are near each other, 5 is far from both.
TEST(Joker, ToutesLesPairesEtDautresAuHasard) {
    for (int a = 0; a < 128; ++a)
        for (int b = 0; b < 2187; ++b) {
            Chiffres joue, tire;
            for (int i = 0, reste = b; i < 7; ++i, reste /= 3) {
                joue[static_cast<std::size_t>(i)] = 9 * (a >> i & 1);
                tire[static_cast<std::size_t>(i)] = "\0\x9\x5"[reste % 3];
            }
            ASSERT_NO_FATAL_FAILURE(Verifier(joue, tire));
        }
    std::mt19937 alea(7389164);
    for (int essai = 0; essai < 100000; ++essai) {
        Chiffres joue, tire;
        for (std::size_t i = 0; i < 7; ++i) {
            joue[i] = static_cast<int>(alea() % 10);
            tire[i] = (joue[i] + std::array{0, 0, 0, 0, 1, 9, 1, 9, 5, 3}[alea() % 10]) % 10;
        }
        ASSERT_NO_FATAL_FAILURE(Verifier(joue, tire));
        EXPECT_EQ(GainJokerLigne({joue, 4}, ChiffresJoker(JokerAbsent)).gain(), 0);
    }
}

TEST(Joker, Prix) {
    for (const auto& [code, prix] : {std::pair{1, 1}, {2, 2}, {3, 2}, {4, 4}})
        EXPECT_EQ(PrixJoker(code), prix);
}

TEST(Montants, ConvertisEnDixMilliemes) {
    std::mt19937_64 alea(655957);
    for (int essai = 0; essai < 20000; ++essai) {
        const auto euros = static_cast<std::int64_t>(alea() >> (20 + alea() % 40));
        const Conversion c = Convertir(static_cast<double>(euros) / 10000.0, 6.55957);
        ASSERT_EQ(c.euros, euros);
        ASSERT_EQ(c.francs, euros / 100000 * 655957 + (euros % 100000 * 655957 + 50000) / 100000);
    }
    EXPECT_EQ(Convertir(-2.5, 6.55957).francs, -163989);
    EXPECT_EQ(Convertir(0.1 + 0.2, 6.55957).euros, 3000);
    for (const double fou : {1e300, -1e300, HUGE_VAL, std::nan("")}) {
        const Conversion c = Convertir(fou, 6.55957);
        EXPECT_TRUE(std::isnan(fou) ? c.euros == 0 : std::signbit(fou) == (c.francs < 0)) << fou;
    }
}

TEST(Montants, Textes) {
    EXPECT_EQ(LibelleMontant(1234.5, "€", 6.55957, true), "1\u00A0234,50 Euros (8\u00A0097,79 F)");
    EXPECT_EQ(LibelleMontant(0, "CHF", 2, false), "0,00 CHF");
    EXPECT_EQ(LibelleMonnaie("€", true), " Euro");
    EXPECT_EQ(LibelleMonnaie("$", true), " $");
}

TEST(RangExiste, SelonLaDateDuTirage) {
    const auto rangs = [](int date, int sousTirage) {
        Tirage tirage{};
        tirage.DateTirage = date;
        tirage.SousTirage = sousTirage;
        std::string image;
        for (int rang = 0; rang < NbRangsLoto; ++rang)
            image += RangExiste(tirage, rang) ? '+' : '-';
        return image;
    };
    EXPECT_EQ(rangs(20081004, 2), "---------");
    EXPECT_EQ(rangs(20081006, 1), "++-+-+-++");
    EXPECT_EQ(rangs(20170305, 1), "++-+-+-++");
    EXPECT_EQ(rangs(20170306, 1), "+++++++++");
    EXPECT_EQ(rangs(20191104, 1), "+++++++++");
    EXPECT_EQ(rangs(20191104, 2), "++++-----");
}

// As the price list prints them: a stake computed must equal the one read from a file.
TEST(TableMises, GrillesVendues) {
    const std::vector<std::vector<double>> vendues = {
        {2.2, 4.4, 6.6, 8.8, 11.0, 13.2, 15.4, 17.6, 19.8, 22.0},
        {13.2, 26.4, 39.6, 52.8, 66.0, 79.2, 92.4, 105.6, 118.8, 132.0},
        {46.2, 92.4, 138.6, 184.8, 231.0, 277.2, 323.4, 369.6},
        {123.2, 246.4, 369.6},
        {277.2}};
    for (int n = 5; n <= 9; ++n)
        for (int c = 1; c <= 10; ++c) {
            const auto& rangee = vendues[static_cast<std::size_t>(n - 5)];
            const auto rang = static_cast<std::size_t>(c - 1);
            EXPECT_EQ(TableMises(n, c), rang < rangee.size() ? rangee[rang] : MiseInjouable)
                << n << " + " << c;
        }
    for (const auto& [n, c] : {std::pair{0, 0}, {4, 1}, {4, 10}, {0, 7}, {9, 0}})
        EXPECT_EQ(TableMises(n, c), MiseIncomplete) << n << " + " << c;
    for (const auto& [n, c] : {std::pair{-1, 1}, {10, 1}, {10, 0}, {5, 11}, {3, 11}, {5, -1}})
        EXPECT_EQ(TableMises(n, c), MiseInjouable) << n << " + " << c;
}

TEST(TableMises, AvecLOption) {
    EXPECT_EQ(MiseGrille(5, 1, true), 3.0);
    EXPECT_EQ(MiseGrille(6, 2, false), 26.4);
    EXPECT_EQ(MiseGrille(9, 1, true), 378.0);
    EXPECT_EQ(MiseGrille(10, 1, true), MiseInjouable);
    const int six[] = {6, 2, 3, 4, 5, 1}, deux[] = {9, 4};
    EXPECT_EQ(FaireGrille(six, deux, true), (Grille{31.2, {6, 2, 3, 4, 5, 1}, {9, 4}}));
}

TEST(TypeGrille, Libelles) {
    EXPECT_EQ(TypesVendus.size(), 32U);
    for (const TypeGrille type : TypesVendus) EXPECT_EQ(LireTypeGrille(LibelleType(type)), type);
    EXPECT_EQ(LireTypeGrille("07 + 08C"), (TypeGrille{7, 8}));
    for (const char* faux : {"07 + 09C", "7 + 8C", "05 + 00C", "", "05 + 01C "})
        EXPECT_FALSE(LireTypeGrille(faux)) << faux;
}

/// The generator on 64 bits, and one drawing after the other without a repeat.
struct Oracle {
    std::uint64_t etat;

    std::vector<int> tirer(int combien, int max) {
        std::vector<int> valeurs;
        while (std::ssize(valeurs) < combien) {
            etat = (etat * 22695477 + 1) % (1ULL << 32);
            const int v = static_cast<int>(etat / 65536 % 32768) % max + 1;
            if (std::count(valeurs.begin(), valeurs.end(), v) == 0) valeurs.push_back(v);
        }
        return valeurs;
    }
};

TEST(Hasard, LesDeuxCheminsPourChaqueGrilleVendue) {
    for (const TypeGrille type : TypesVendus) {
        const auto graine = 4294967000U + static_cast<std::uint32_t>(10 * type.n + type.c);
        Oracle oracle{graine};
        GenerateurHasard seul(graine), lot(graine);
        std::vector<Grille> grilles = {{0, {}, {}}};
        AjouterGrillesHasard(grilles, lot, type, 20);
        ASSERT_EQ(grilles.size(), 21U);
        for (std::size_t i = 1; i <= 20; ++i) {
            auto numeros = oracle.tirer(type.n, 49), chances = oracle.tirer(type.c, 10);
            EXPECT_EQ(TirerGrille(seul, type), FaireGrille(numeros, chances, false));
            std::sort(numeros.begin(), numeros.end());
            std::sort(chances.begin(), chances.end());
            EXPECT_EQ(grilles[i], FaireGrille(numeros, chances, false));
        }
    }
}

}  // namespace
}  // namespace norvane
