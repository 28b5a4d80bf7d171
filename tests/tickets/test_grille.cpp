// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Contenu.h"
#include "tickets/FichiersGrilles.h"

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

TEST(Grille, PricedAndWritten) {
    const int cinq[] = {3, 14, 25, 44, 31}, six[] = {1, 2, 3, 4, 5, 6}, une[] = {7},
              deux[] = {4, 9};
    const std::vector<Grille> grilles = {
        FaireGrille(cinq, une, false), FaireGrille(six, deux, true), FaireGrille(cinq, une, true)};
    EXPECT_EQ(grilles[1], (Grille{31.2, 6, 1, 2, 3, 4, 5, 6, 2, 4, 9}));
    const std::string texte =
        "3\n2.2 5 3 14 25 44 31 1 7\n31.2 6 1 2 3 4 5 6 2 4 9\n3 5 3 14 25 44 31 1 7\n";

    const Dossier dossier;
    ASSERT_TRUE(SauverGrillesSecours({}, dossier.chemin()));
    EXPECT_EQ(lire(dossier.chemin() / "Grilles&Reçus/Grlbak.grl"), "0\n");
    ASSERT_TRUE(SauverGrillesSecours(grilles, dossier.chemin()));
    EXPECT_EQ(lire(dossier.chemin() / "Grilles&Reçus/Grlbak.grl"), texte);

    const Dossier occupe;
    poser(occupe / DossierGrilles, "un fichier");
    const auto fait = SauverGrillesSecours(grilles, occupe.chemin());
    ASSERT_FALSE(fait);
    EXPECT_NE(fait.erreur().find(DossierGrilles), std::string::npos) << fait.erreur();
}

}  // namespace
}  // namespace norvane
