// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "comb/Noyaux.h"
#include "comb/StatsCombinaison.h"
#include "Contenu.h"
#include "OracleComb.h"

namespace norvane {
namespace {

ListeOccurrences Tirages(const Base& base, const Numeros& c, int inf, int sup) {
    ListeOccurrences liste;
    for (int d = inf - 1; d < sup; ++d)
        if (Tient(base.Tirages[static_cast<std::size_t>(d)], c))
            liste.push_back(static_cast<Occurrence>(d));
    return liste;
}

TEST(Noyaux, FollowersOfANumber) {
    std::mt19937 hasard(1);
    const Etabli e(BaseAleatoire(hasard, 80, 12));
    for (int a = 1; a <= 12; ++a) {
        const auto& liste = e.occ.ListeNumeros[static_cast<std::size_t>(a - 1)];
        Rangee comptes, rangee;
        ListesRangee listes;
        CompterSuiveurs(e.base, e.occ, liste, a, comptes);
        ListerSuiveurs(e.base, e.occ, liste, a, rangee, listes);
        EXPECT_EQ(comptes, rangee);
        for (int b = 1; b <= NumeroMax; ++b) {
            const auto attendu = b > a ? Tirages(e.base, {a, b}, 1, 80) : ListeOccurrences{};
            const auto k = static_cast<std::size_t>(b - 1);
            EXPECT_EQ(ListeOccurrences(listes(k, rangee).begin(), listes(k, rangee).end()), attendu)
                << a << ' ' << b;
        }
    }
}

TEST(Noyaux, DrawsSharedWithALimitDraw) {
    std::mt19937 hasard(2);
    const Etabli e(BaseAleatoire(hasard, 60, 10));
    for (const int limite : {1, 2, 37, 60}) {
        const auto& neufs = e.base.Tirages[static_cast<std::size_t>(limite - 1)].Numeros;
        for (int p = 0; p < NbBoules; ++p) {
            const auto& liste = e.occ.ListeNumeros[static_cast<std::size_t>(neufs[p] - 1)];
            const auto dedans = Tirages(e.base, {neufs[p]}, 1, limite);
            CompteursPlaces avant, listeAvant, compte, listeCompte;
            ListesPlaces listes, listesPlusBas;
            CompterCommunsAvant(e.base, liste, p, limite, avant);
            ListerCommunsAvant(e.base, liste, p, limite, listeAvant, listes);
            CompterCommuns(e.base, dedans, p, limite, compte);
            ListerCommuns(e.base, dedans, p, limite, listeCompte, listesPlusBas);
            EXPECT_EQ(avant, compte);
            EXPECT_EQ(listeAvant, listeCompte);
            EXPECT_EQ(listes, listesPlusBas);
            for (int q = 0; q < NbBoules; ++q) {
                const auto attendu =
                    q > p ? Tirages(e.base, {neufs[p], neufs[q]}, 1, limite) : ListeOccurrences{};
                EXPECT_EQ(listes[static_cast<std::size_t>(q)], attendu);
                EXPECT_EQ(avant[static_cast<std::size_t>(q)], attendu.size());
            }
        }
    }
}

TEST(LigneCombinaison, WrittenAndRead) {
    struct {
        std::vector<Mot> numeros;
        int nbFois;
        bool marque;
        const char* ligne;
    } const cas[] = {
        {{7, 23}, 112, false, "07 23  (112)"},
        {{1, 2, 3}, 0, true, "01 02 03  (00) N"},
        {{1, 2, 3, 4, 5, 6, 7, 8, 9, 49}, 65535, false, "01 02 03 04 05 06 07 08 09 49  (65535)"},
    };
    for (const auto& c : cas) {
        EXPECT_EQ(LigneCombinaison(c.numeros, c.nbFois, c.marque), c.ligne);
        EXPECT_EQ(std::string(c.ligne).find('('), c.numeros.size() * 3 + 1);
        const auto lue = LireLigneCombinaison(std::string(c.ligne) + " \r");
        ASSERT_TRUE(lue) << c.ligne;
        EXPECT_EQ(lue->numeros, c.numeros);
        EXPECT_EQ(lue->nbFois, c.nbFois);
        EXPECT_EQ(lue->marque, c.marque);
    }
    for (const char* ligne : {"",
                              "07 23",
                              "07 23 (12)",
                              "7 23  (12)",
                              "07 07  (12)",
                              "23 07  (12)",
                              "00 07  (12)",
                              "07 50  (12)",
                              "07  (12)",
                              "07 23  (1)",
                              "07 23  (65536)",
                              "07 23  (-1)",
                              "07 23  (1x)",
                              "07 23  (12) M",
                              "07 23  (12) NN",
                              "07 23  (12",
                              "07 23  ()",
                              " 07 23  (12)",
                              "01 02 03 04 05 06 07 08 09 10 11  (01)",
                              "07 23  (123456)"})
        EXPECT_FALSE(LireLigneCombinaison(ligne)) << ligne;
}

TEST(LigneCombinaison, ListFiles) {
    const Dossier dossier;
    const auto fichier = dossier / "comb2.dat";
    EXPECT_TRUE(LireListe(fichier, 2)->empty());
    const std::vector<std::string> lignes = {"03 13  (51)", "05 31  (12) N"};
    ASSERT_TRUE(EcrireListe(fichier, lignes));
    EXPECT_EQ(lire(fichier), "03 13  (51)\n05 31  (12) N\n");
    EXPECT_EQ(*LireListe(fichier, 2), lignes);
    poser(fichier,
          "\xEF\xBB\xBF"
          "03 13  (51)\r\n05 31  (12) N\r\n\r\n");
    EXPECT_EQ(*LireListe(fichier, 2), lignes);

    std::string longue;
    for (std::size_t i = 0; i <= CapaciteListe; ++i) longue += "03 13  (51)\n";
    struct {
        std::string contenu;
        const char* dit;
    } const refus[] = {{"03 13  (51)\nbonjour\n", "Ligne 2 du"},
                       {"03 13 14  (51)\n", "Ligne 1 du"},
                       {"03 13  (51)\n\n03 13  (51)\n", "Ligne 2 du"},
                       {std::string("\0\xFF\xFE", 3), "Ligne 1 du"},
                       {longue, "compte 32737 lignes"},
                       {std::string(3 << 20, ' '), ""}};
    for (const auto& c : refus) {
        poser(fichier, c.contenu);
        const auto lue = LireListe(fichier, 2);
        ASSERT_FALSE(lue);
        EXPECT_NE(lue.erreur().find(c.dit), std::string::npos) << lue.erreur();
        EXPECT_NE(lue.erreur().find("comb2.dat"), std::string::npos) << lue.erreur();
    }
}

TEST(Selection, TablesByTheirDefinition) {
    std::mt19937 hasard(3);
    Etabli e(BaseAleatoire(hasard, 90, 14));
    e.intervalle(11, 80);
    for (const auto& absolus : {Numeros{4}, {2, 9}, {1, 5, 8, 13}}) {
        e.choisir(absolus, {3, 7, 14, 40});
        const Selection& s = e.selection;
        EXPECT_EQ(s.SelAbsolue, absolus);
        EXPECT_EQ(s.NbComplement, 49 - s.NbSelAbsolue);
        EXPECT_EQ(s.TiragesSelection, Tirages(e.base, absolus, 11, 80));
        const auto verifier = [&](const std::vector<int>& numeros, const auto& rang,
                                  const auto& listes, const auto& sorties) {
            ASSERT_EQ(listes.size(), numeros.size());
            for (std::size_t i = 0; i < numeros.size(); ++i) {
                Numeros c = absolus;
                c.push_back(numeros[i]);
                std::sort(c.begin(), c.end());
                EXPECT_EQ(rang[static_cast<std::size_t>(numeros[i])], static_cast<int>(i));
                EXPECT_EQ(listes[i], Tirages(e.base, c, 11, 80));
                EXPECT_EQ(sorties[i], static_cast<int>(listes[i].size()));
            }
            EXPECT_EQ(rang[static_cast<std::size_t>(absolus[0])], -1);
        };
        verifier(s.Complement, s.RangComplement, s.ListesComplement, s.NbSortiesComplement);
        verifier(s.SelSecondaire, s.RangSecondaire, s.ListesSecondaire, s.NbSortiesSecondaire);
    }
    e.choisir(TousLesNumeros(11), {});
    EXPECT_TRUE(e.selection.TiragesSelection.empty() && e.selection.ListesComplement.empty());
    GrilleSelection seules{};
    seules[3] = Priorite::Secondaire;
    EXPECT_EQ(ConstruireSelection(seules, e.base, e.occ).erreur(),
              "La sélection doit toujours comporter au moins une case cochée verte...");
}

TEST(StatsCombinaison, EachRankByTheDefinition) {
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
    const std::array<std::string, 8> troisBons = {
        "3", "2", "50,00% ", "mercredi 5 octobre 2022", "0", "02  (01 3)", "2", "02  (01 4)"};
    EXPECT_EQ(lignes[0].cellules, troisBons);
    EXPECT_EQ(lignes[0].ratioGraphique, 5000);
    EXPECT_EQ(lignes[2].cellules[3], "Jamais sorti ");
    EXPECT_EQ(LibelleCombinaison(trois), "Combinaison à 3 numéros: 07 20 33");
}

}  // namespace
}  // namespace norvane
