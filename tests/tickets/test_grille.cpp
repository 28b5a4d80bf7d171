// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "tickets/FichiersGrilles.h"
#include "tickets/GrillesHasard.h"

namespace norvane {
namespace {

// As the price list prints them: a stake computed must equal the one read from a file.
TEST(TableMises, TheTicketsSold) {
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

TEST(TableMises, WithTheOption) {
    EXPECT_EQ(MiseGrille(5, 1, true), 3.0);
    EXPECT_EQ(MiseGrille(6, 2, false), 26.4);
    EXPECT_EQ(MiseGrille(9, 1, true), 378.0);
    EXPECT_EQ(MiseGrille(4, 1, true), MiseIncomplete);
    EXPECT_EQ(MiseGrille(10, 1, true), MiseInjouable);
    const int six[] = {6, 2, 3, 4, 5, 1}, deux[] = {9, 4};
    EXPECT_EQ(FaireGrille(six, deux, true), (Grille{31.2, {6, 2, 3, 4, 5, 1}, {9, 4}}));
}

TEST(TypeGrille, Labels) {
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

TEST(Hasard, BothPathsForEveryTicketSold) {
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
