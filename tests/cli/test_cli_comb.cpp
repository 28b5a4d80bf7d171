// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "BancCli.h"

namespace norvane {
namespace {

TEST_F(Cli, WholeOutputsOfTheCombinationCommands) {
    const struct {
        Args args;
        const char* out;
    } cas[] = {
        {{"comb", "extremes", "3"}, "3\t0\t3\t1\n07 33 41  (03)\n"},
        {{"comb", "extremes", "2"},
         "2\t0\t3\t4\n07 20  (03)\n07 33  (03)\n07 41  (03)\n33 41  (03)\n"},
        {{"comb", "extremes", "4"}, "4\t0\t2\t1\n07 20 33 41  (02)\n"},
        {{"comb", "extremes", "6"}, "6\t0\t2\t1\n01 07 20 33 41 49  (02)\n"},
        {{"comb", "bornes", "2", "3", "9"},
         "07 20\t3 0 1 2 2\n07 33\t3 0 1 3 3\n07 41\t3 0 1 3 3\n33 41\t3 0 1 3 3\n"},
        {{"comb", "bornes", "3", "2", "9", "--max", "1", "--stockage", "2"},
         "07 20 33\t0 65535 0 0 0 0 65535 0 0 0 0 65535 0 0 0 2 0 2 2 2\n"},
        {{"comb", "bornes", "3", "3", "3", "--stockage=1"}, "07 33 41\t0 65535 0 0 0 3 0 1 3 3\n"},
        {{"comb", "bornes", "4", "1", "1", "--compter"}, "18\n"},
        {{"comb", "bornes", "5", "0", "9", "--compter"}, "1906884\n"},
        {{"comb", "bornes", "2", "0", "9", "--compter", "--series"}, "48\n"},
        {{"comb", "bornes", "2", "0", "9", "--absolue", "20 7"}, "07 20\t3 0 0 0 0\n"},
        {{"comb", "bornes", "2", "0", "9", "--absolue", "20 7", "--compter"}, "1\n"},
        {{"comb", "bornes", "2", "0", "0", "--absolue", "7", "--secondaire", "20 2"},
         "02 07\t0 4 4 0 0\n"},
        {{"comb", "bornes", "2", "1", "9", "--absolue", "20 23 25"}, "20 23\t1 3 3 0 1\n"},
        {{"--de", "2", "--a", "3", "comb", "bornes", "3", "2", "2"}, "07 33 41\t2 0 0 2 2\n"},
        {{"comb", "bornes", "2", "5", "9"}, ""},
        {{"comb", "stats", "41 7"},
         "k\tNbFois\tDate\tEcart\tEcartMax\tNbEcartMax\tPosEcartMax\tSuite\tSuiteMax\t"
         "NbSuiteMax\tPosSuiteMax\n"
         "2\t3\t20221005\t0\t1\t1\t2\t3\t3\t1\t4\n"
         "1\t1\t20221003\t3\t3\t1\t1\t0\t1\t1\t1\n"
         "0\t0\t-\t4\t4\t1\t0\t0\t0\t1\t0\n"},
    };
    for (const auto& c : cas) {
        Args args = {"--base", "quatre.csv"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        const Sortie sortie = lancer(args);
        EXPECT_EQ(sortie.statut, StatutFait) << sortie.err;
        EXPECT_EQ(sortie.out, c.out) << testing::PrintToString(c.args);
        EXPECT_EQ(sortie.err, "");
    }
}

TEST_F(Cli, CombinationsRefused) {
    const std::pair<Args, const char*> cas[] = {
        {{"comb", "extremes", "1"}, "de 2 à 10 numéros, pas 1"},
        {{"comb", "extremes", "11"}, "de 2 à 10 numéros, pas 11"},
        {{"comb", "bornes", "2", "5", "4"}, "Bornes croisées : INF 5"},
        {{"comb", "bornes", "2", "0", "65535"}, "SUP 65535 est hors"},
        {{"comb", "bornes", "2", "0", "1", "--stockage", "3"}, "--stockage 3 n'existe pas"},
        {{"comb", "bornes", "2", "0", "1", "--max", "0"}, "--max 0"},
        {{"comb", "bornes", "10", "0", "99"}, "La liste compterait au moins"},
        {{"comb", "bornes", "3", "0", "9", "--secondaire", "4"}, "case cochée verte"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4 50"}, "« 50 » n'est pas un numéro"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4 4"}, "4 est donné deux fois"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", ""}, "il en faut de 1 à 49"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4", "--secondaire", "4"},
         "4 a les deux priorités"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4", "--series"}, "en mode séries"},
        {{"comb", "stats", "7"}, "compte 1 numéros : il en faut de 2 à 10"},
        {{"comb", "stats", "7 x"}, "« x » n'est pas un numéro de 1 à 49"},
    };
    for (const auto& [args, dit] : cas) refuse(args, dit);
}

TEST_F(Cli, ExtremesOfTheShippedBase) {
    EXPECT_EQ(lancer("comb extremes 2").out, "2\t12\t51\t2\n03 13  (51)\n05 31  (12)\n");
    EXPECT_EQ(lancer("--globale comb extremes 4").out,
              "4\t0\t5\t2\n01 08 33 39  (05)\n18 30 45 46  (05)\n");
    const std::string series = lancer("--de 3200 comb extremes 5 --series").out;
    EXPECT_EQ(std::count(series.begin(), series.end(), '\n'), 46);
}

}  // namespace
}  // namespace norvane
