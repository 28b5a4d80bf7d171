// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <sstream>

#include "comb/Distances.h"
#include "comb/LigneCombinaison.h"
#include "comb/StatsCombinaison.h"
#include "Dossier.h"
#include "OracleComb.h"

namespace norvane {
namespace {

TEST(LigneCombinaison, EcriteEtLue) {
    const std::pair<Combinaison, const char*> cas[] = {
        {{{7, 23}, 112}, "07 23  (112)"},
        {{{1, 2, 3}, 0, true}, "01 02 03  (00) N"},
        {{{1, 2, 3, 4, 5, 6, 7, 8, 9, 49}, 65535}, "01 02 03 04 05 06 07 08 09 49  (65535)"},
    };
    for (const auto& [combinaison, ligne] : cas) {
        EXPECT_EQ(LigneCombinaison(combinaison), ligne);
        EXPECT_TRUE(LireLigneCombinaison(std::string(ligne) + " \r") == combinaison) << ligne;
    }
    std::istringstream refus(
        "|07 23|07 23 (12)|7 23  (12)|07 07  (12)|23 07  (12)|00 07  (12)|07 50  (12)|07  (12)|"
        "07 23  (1)|07 23  (65536)|07 23  (-1)|07 23  (1x)|07 23  (12) M|07 23  (12) NN|07 23  (12|"
        "07 23  ()| 07 23  (12)|01 02 03 04 05 06 07 08 09 10 11  (01)|07 23  (123456)");
    for (std::string ligne; std::getline(refus, ligne, '|');)
        EXPECT_FALSE(LireLigneCombinaison(ligne)) << ligne;
}

TEST(LigneCombinaison, FichiersDeListe) {
    const Dossier dossier;
    const auto fichier = dossier / "comb2.dat";
    EXPECT_TRUE(LireListe(fichier, 2)->empty());
    const std::vector<Combinaison> lignes = {{{3, 13}, 51}, {{5, 31}, 12, true}};
    ASSERT_TRUE(EcrireListe(fichier, lignes));
    EXPECT_EQ(lire(fichier), "03 13  (51)\n05 31  (12) N\n");
    EXPECT_TRUE(*LireListe(fichier, 2) == lignes);
    poser(fichier,
          "\xEF\xBB\xBF"
          "03 13  (51)\r\n05 31  (12) N\r\n\r\n");
    EXPECT_TRUE(*LireListe(fichier, 2) == lignes);

    std::string longue;
    for (std::size_t i = 0; i <= CapaciteListe; ++i) longue += "03 13  (51)\n";
    const std::pair<std::string, const char*> refus[] = {
        {"03 13  (51)\nbonjour\n", "Ligne 2 du"},
        {"03 13 14  (51)\n", "Ligne 1 du"},
        {"03 13  (51)\n\n03 13  (51)\n", "Ligne 2 du"},
        {std::string("\0\xFF\xFE", 3), "Ligne 1 du"},
        {longue, "compte 32737 lignes"},
        {std::string(3 << 20, ' '), ""}};
    for (const auto& [contenu, dit] : refus) {
        poser(fichier, contenu);
        const auto lue = LireListe(fichier, 2);
        ASSERT_FALSE(lue);
        EXPECT_NE(lue.erreur().find(dit), std::string::npos) << lue.erreur();
        EXPECT_NE(lue.erreur().find("comb2.dat"), std::string::npos) << lue.erreur();
    }
}

// Draws with gaps of every length, numbers that come once, never, last or first.
TEST(Distances, ProchainTirageDeChaqueNumero) {
    std::mt19937 hasard(5);
    for (const auto& [n, numeros] : {std::pair{90, 13}, {60, 49}, {1, 5}}) {
        const Etabli e(BaseAleatoire(hasard, n, numeros));
        TableDistances table;
        VersDistances(e.occ, table);
        ASSERT_EQ(table.DistanceTirage.size(), static_cast<std::size_t>(n));
        for (int d = 0; d < n; ++d)
            for (int numero = 1; numero <= NumeroMax; ++numero) {
                const auto present = [&](int i) {
                    return Tient(e.base.Tirages[static_cast<std::size_t>(i)], {numero});
                };
                int suivant = d + 1;
                while (suivant < n && !present(suivant)) ++suivant;
                ASSERT_EQ(table.DistanceTirage[static_cast<std::size_t>(d)]
                                              [static_cast<std::size_t>(numero - 1)],
                          present(d) ? suivant - d : d - suivant)
                    << d << ": " << numero;
            }
        VersPositions(table);
        EXPECT_EQ(table.DistanceTirage.capacity(), 0U);
    }
    // More draws than a word can tell.
    std::vector<Tirage> longue(33000, {{1, 2, 3, 4, 5}, 1, 0, 2023001, 20230101, 1, 0});
    longue.front().Numeros[4] = longue.back().Numeros[4] = 6;
    const Etabli e(FaireBase(std::move(longue)));
    TableDistances table;
    VersDistances(e.occ, table);
    EXPECT_EQ(table.DistanceTirage[0][5], DistanceMax);
    EXPECT_EQ(table.DistanceTirage[1][5], -DistanceMax);
    EXPECT_EQ(table.DistanceTirage[1000][5], -31999);
    EXPECT_EQ(table.DistanceTirage.back()[5], 1);
}

TEST(Selection, ExigeUnNumeroAbsolu) {
    const Etabli e(QuatreTirages());
    GrilleSelection seules{};
    seules[3] = Priorite::Secondaire;
    EXPECT_EQ(ConstruireSelection(seules, e.base, e.occ).erreur(),
              "La sélection doit toujours comporter au moins une case cochée verte...");
}

TEST(StatsCombinaison, ChaqueRangParDefinition) {
    std::mt19937 hasard(4);
    const Etabli e(BaseAleatoire(hasard, 70, 13));
    for (const auto& [inf, sup] : {std::pair{1, 70}, {20, 55}, {33, 33}})
        for (const auto& c : {std::vector<Mot>{2, 11},
                              {1, 2, 3, 4, 5, 6},
                              {3, 9, 40},
                              {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}}) {
            const auto lignes = StatsCombinaison(e.base, e.occ, c, inf, sup);
            ASSERT_EQ(lignes.size(), std::min<std::size_t>(c.size(), 5) + 1);
            int total = 0;
            for (std::size_t i = 0; i < lignes.size(); ++i) {
                const int bons = static_cast<int>(lignes.size() - 1 - i);
                Presences presences;
                int date = 0;
                for (int d = 0; d < 70; ++d) {
                    const Tirage& t = e.base.Tirages[static_cast<std::size_t>(d)];
                    presences.push_back(bons == std::count_if(t.Numeros, t.Numeros + 5, [&](int n) {
                                            return std::count(c.begin(), c.end(), n) > 0;
                                        }));
                    if (presences.back() && d >= inf - 1 && d < sup) date = t.DateTirage;
                }
                EXPECT_EQ(lignes[i].bons, bons);
                EXPECT_EQ(lignes[i].resultat, OracleStats(presences, inf - 1, sup - 1));
                EXPECT_EQ(lignes[i].date, date);
                total += lignes[i].NbFois;
            }
            EXPECT_EQ(total, sup - inf + 1);
        }
    const Etabli quatre(QuatreTirages());
    const std::vector<Mot> trois = {7, 20, 33};
    const auto lignes = StatsCombinaison(quatre.base, quatre.occ, trois, 1, 4);
    std::string textes;
    for (const Cellule& c : lignes[0].cellules) textes += c.texte + '|';
    EXPECT_EQ(textes, "3|2|50,00% |mercredi 5 octobre 2022|0|02  (01 3)|2|02  (01 4)|");
    EXPECT_EQ(lignes[0].ratioGraphique, 5000);
    EXPECT_EQ(lignes[2].cellules[3].texte, "Jamais sorti ");
    EXPECT_EQ(LibelleCombinaison(trois), "Combinaison à 3 numéros: 07 20 33");
}

}  // namespace
}  // namespace norvane
