// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "DossierTemporaire.h"
#include "tickets/Grille.h"

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
    for (int n = -1; n <= 11; ++n)
        for (int c = -1; c <= 11; ++c) {
            SCOPED_TRACE(testing::Message() << n << " + " << c);
            double attendu = MiseInjouable;
            if (n >= 0 && n <= 9 && c >= 0 && c <= 10) {
                if (n < 5 || c == 0)
                    attendu = MiseIncomplete;
                else if (const auto& rangee = vendues[static_cast<std::size_t>(n - 5)];
                         static_cast<std::size_t>(c) <= rangee.size())
                    attendu = rangee[static_cast<std::size_t>(c - 1)];
            }
            EXPECT_EQ(TableMises(n, c), attendu);
        }
}

TEST(Grille, LaidOutPricedAndWritten) {
    const int cinq[] = {3, 14, 25, 44, 31};
    const int six[] = {1, 2, 3, 4, 5, 6};
    const int sept[] = {7};
    const int deux[] = {4, 9};
    const std::vector<Grille> grilles = {FaireGrille(cinq, sept, false),
                                         FaireGrille(six, deux, true),
                                         FaireGrille(cinq, sept, true)};
    EXPECT_EQ(grilles[0], (Grille{2.2, 5, 3, 14, 25, 44, 31, 1, 7}));
    EXPECT_EQ(grilles[1], (Grille{31.2, 6, 1, 2, 3, 4, 5, 6, 2, 4, 9}));
    const std::string texte =
        "3\n2.2 5 3 14 25 44 31 1 7\n31.2 6 1 2 3 4 5 6 2 4 9\n3 5 3 14 25 44 31 1 7\n";
    EXPECT_EQ(TexteGrilles(grilles), texte);
    EXPECT_EQ(TexteGrilles({}), "0\n");

    const DossierTemporaire dossier;
    for (int fois = 0; fois < 2; ++fois) {
        ASSERT_TRUE(SauverGrillesSecours(grilles, dossier.chemin()));
        const auto fichiers = dossier.lire(dossier.chemin() / "Grilles&Reçus" / "Grlbak.grl");
        EXPECT_EQ(fichiers, texte);
    }
}

TEST(Grille, SafetyCopyRefusedWhereNoFolderCanBe) {
    const DossierTemporaire dossier;
    dossier.ecrire(DossierGrilles, "un fichier");
    const auto fait = SauverGrillesSecours({}, dossier.chemin());
    ASSERT_FALSE(fait);
    EXPECT_NE(fait.erreur().find(DossierGrilles), std::string::npos) << fait.erreur();
    EXPECT_EQ(dossier.contenu().at(DossierGrilles), "un fichier");
}

}  // namespace
}  // namespace norvane
