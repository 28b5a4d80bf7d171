// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <sstream>

#include "SeptTirages.h"
#include "tickets/Verification.h"

namespace norvane {
namespace {

const Monnaie Dollar = {"$", 6.55957};

LigneJoker Joker(const char* chiffres, int code) {
    LigneJoker ligne{{}, code};
    for (std::size_t i = 0; i < ligne.chiffres.size(); ++i) ligne.chiffres[i] = chiffres[i] - '0';
    return ligne;
}

const Grille DixChances = {132, {7, 12, 23, 34, 45, 49}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}};
const Grille NeufNumeros = {378, {1, 7, 12, 23, 40, 2, 3, 4, 6}, {9}};  // with the option

// The reports were written by hand from the rules, draw by draw of SeptTirages.
struct Cas {
    const char* rapport;
    std::vector<int> numeros;  ///< draw numbers that must all give this report
    std::vector<Grille> grilles;
    std::vector<LigneJoker> jokers;
    Monnaie monnaie;
};

std::vector<Cas> TousLesCas() {
    // 3 good of 5 + the Chance of 2; 5 of 6 + the Chance of 10; one number alone, with an option
    // that this draw does not know; four numbers without a chance; 4 of 9 + the Chance.
    const std::vector<Grille> avant2019 = {{4.4, {7, 12, 23, 1, 2}, {5, 6}},
                                           DixChances,
                                           {3, {45, 1, 2, 3, 4}, {9}},
                                           {1, {7, 12, 23, 34}, {}},
                                           {277.2, {7, 12, 23, 34, 1, 2, 3, 4, 5}, {5}}};
    return {
        // No Chance and no prizes then: five good numbers win rank 2, of nothing. Numbers in the
        // order of the ticket. Four numbers without a chance win a rank of nothing and are lost.
        {"avant-2008",
         {1},
         {{3, {44, 3, 25, 14, 31}, {7}}, {2.2, {1, 2, 4, 5, 6}, {7}}, {1, {3, 14, 25, 1}, {}}},
         {},
         {}},
        // The Chance pays the stake back beside the rank of the numbers.
        {"2008-2017", {2}, avant2019, {}, {}},
        // The Chance lifts the rank. A symbol in place of the word. Joker+: +OU-1 from the left
        // with the right side given up, both ends without it, one digit.
        {"2017-2019-dollar",
         {3},
         avant2019,
         {Joker("0000000", 3), Joker("9000501", 1), Joker("9333333", 1)},
         Dollar},
        // Both draws, whichever of them was chosen: all nine ranks over the first two tickets, all
        // four of the 2nd Tirage on the third, which counts its stake twice like the fourth. Every
        // sentence of the Joker+, 1.5 told as 2, and a number that wins nothing.
        {"deux-tirages",
         {4, 5},
         {DixChances,
          {92.4, {34, 7, 23, 46, 47, 48, 49}, {5, 9}},
          NeufNumeros,
          {3, {44, 46, 47, 48, 49}, {10}}},
         {Joker("1234567", 1), Joker("1234568", 3), Joker("1900000", 1), Joker("1900007", 2),
          Joker("2900000", 3), Joker("1234500", 1), Joker("1334900", 4), Joker("0000007", 1),
          Joker("9900008", 3), Joker("0000567", 2), Joker("9900077", 3), Joker("1234067", 1),
          Joker("2934467", 3), Joker("5000000", 1)},
         {}},
        // Neither neighbour is of the date. Three times 2.2 as doubles is a little more than 6.6:
        // a gain equal to the stake is told as a gain of 0,00.
        {"premier-seul",
         {6},
         {{2.2, {2, 3, 4, 5, 6}, {8}},
          {2.2, {1, 3, 4, 5, 13}, {8}},
          {2.2, {24, 25, 26, 27, 28}, {8}}},
         {},
         {}},
        // A single ticket; a Joker+ that wins its price back shows no figure.
        {"second-seul", {7}, {{3, {16, 5, 1, 2, 3}, {1}}}, {Joker("7000000", 1)}, {}},
    };
}

TEST(Verification, WholeReports) {
    const Base base = SeptTirages();
    for (const Cas& cas : TousLesCas())
        for (const int numero : cas.numeros)
            EXPECT_EQ(RedigerVerification(base, numero, cas.grilles, cas.jokers, cas.monnaie),
                      Attendu(cas.rapport))
                << cas.rapport << ", draw " << numero;
}

TEST(Verification, JokerLostOrNeverPublished) {
    const auto verifier = [](const LigneJoker& ligne, std::int32_t joker, const Monnaie& monnaie) {
        std::ostringstream flux;
        EXPECT_EQ(VerifierJoker({&ligne, 1}, ChiffresJoker(joker), monnaie, flux), 0);
        return flux.str();
    };
    EXPECT_EQ(verifier(Joker("7777777", 4), 1234560, {}),
              "JOKER+ DU JOUR : 1 2 3 4 5 6 0 \nPerdu...\n"
              "Gain= 0 Euros , Mise totale=4 Euros donc Perte=4 Euros (26,24 F)\n\n");
    // A digit of 0 is no neighbour of one that was never drawn.
    EXPECT_EQ(verifier(Joker("0000000", 3), JokerAbsent, Dollar),
              "JOKER+ DU JOUR : \nPerdu...\n"
              "Gain= 0 $ , Mise totale=2 $ donc Perte=2 $ (13,12 F)\n\n");
}

TEST(Verification, StakesInTheList) {
    const std::vector<Grille> grilles = {{1.2, {9, 10, 11, 12, 13}, {10}},
                                         {2, {9, 10, 11, 12, 13}, {1}}};
    std::ostringstream euros;
    EcrireListeGrilles(grilles, {"€uro", 6.55957}, euros);
    EXPECT_EQ(euros.str(),
              "Combinaison 1 (5N + 1C) N: 9  10 11 12 13  C: 10  (Mise: 1.2 Euro)\n"
              "Combinaison 2 (5N + 1C) N: 9  10 11 12 13  C: 1  (Mise: 2 Euros)\n");
}

TEST(Verification, OneTicketForThePage) {
    const Base base = SeptTirages();
    Grille sansOption = NeufNumeros;
    sansOption.mise = TableMises(9, 1);
    const struct {
        Grille grille;
        std::size_t numero;
        Bons bons;
        ComptesRangs comptes;
        double gain;
    } cas[] = {{NeufNumeros, 4, {3, 0}, {0, 0, 0, 0, 0, 15, 0, 60, 0}, 600},
               {NeufNumeros, 5, {5, 0}, {1, 20, 60, 40}, 121320},
               {sansOption, 5, {5, 0}, {}, 0}};
    for (const auto& c : cas) {
        const ResultatGrille r =
            VerifierGrille(c.grille, base.Tirages[c.numero - 1], base.Rapports[c.numero - 1]);
        EXPECT_EQ(r.bons.numeros, c.bons.numeros);
        EXPECT_EQ(r.bons.chances, c.bons.chances);
        EXPECT_EQ(r.second, c.numero == 5);
        EXPECT_EQ(r.comptes, c.comptes);
        EXPECT_DOUBLE_EQ(r.gain, c.gain);
    }
}

}  // namespace
}  // namespace norvane
