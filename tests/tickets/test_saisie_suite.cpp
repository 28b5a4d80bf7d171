// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What follows the entry of grids: Joker+ numbers and date, files that fail, the safety copy.
#include "EssaiBillets.h"

namespace norvane {
namespace {

TEST(SaisieBillets, WhatTheSafetyCopyTakes) {
    const struct {
        const char* evenements;
        const char* copie;
    } cas[] = {
        {"", ""},
        {"E0 t3 f", "t3"},
        {"E0 t3 f C", "t3"},
        // What a file holds is not copied, were it looked at or entered anew, until it changes.
        {"E0 t3 f w", ""},
        {"E0 t3 a t4 f w g f E0 s d1 d2", ""},
        {"E0 t3 a t4 f w E0 s t4 d1 s", ""},
        {"E0 t3 a t4 f w C s", "t4"},
        {"E0 t3 f w E0 t4", "t3 t4"},
        {"E0 t3 a t3 f w E0 t3", "t3 t3 t3"},
        // The stock, then what is being entered.
        {"E0 t3 f E0 t4", "t3 t4"},
        {"E0 t3 f E0 S t4", "t3 t4"},
        {"E0 t3 f E1 t4 a t5", "t3 t4 t5"},
        {"E0 t3 f E1 t4 a t5 f k0", "t3 t4 t5"},
        {"E0 t3 f w E1 t4", "t4"},
        // A receipt without its file.
        {"E1 t3 f f", "t3"},
        {"E1 t3 f k0 v20240805", ""},
        {"E1 t3 f f E1", ""},
        {"E1 t3 f k0 v20240805 r20240805", ""},
        {"E1 t3 f f C S", ""},
        // The ticket in hand as it stands, from three numbers on.
        {"E0 n1 n2", ""},
        {"E0 n1 n2 n3", "1.2.3+@1"},
        {"E0 t3 a n1 n2", "t3"},
        {"E0 t3 a t4 d1 x n1", "t3 t4"},  // not the last one: its place is as it was
        {"E0 t3 a t4", "t3 t4"},
    };
    for (const auto& c : cas) {
        Essai e;
        e.jouer(c.evenements);
        const std::string avant = e.etat();
        EXPECT_EQ(Dire(e.saisie.grillesSecours()), c.copie) << c.evenements;
        EXPECT_EQ(e.etat(), avant) << "closing may still be refused";
    }
    // No more than can be read back; what was entered last stays.
    Essai e;
    e.billets.ListeChoix.assign(NbGrillesMax, Ticket(1));
    e.billets.aSauver = true;
    e.jouer("E1 t3 a t4 f f");
    const auto copie = e.saisie.grillesSecours();
    ASSERT_EQ(copie.size(), std::size_t{NbGrillesMax});
    EXPECT_EQ(copie.back(), Ticket(4));
}

TEST(SaisieBillets, AFileThatFailsChangesNothing) {
    Essai e;
    e.jouer("E1 t3 f k0 v20240805 E0 t4 f C");
    poser(e.dossier / "a.grl", "1\n2.2 5 3 14");
    poser(FichierRecu(e.dossier.chemin(), 20240805), "0\n1\n");
    const std::string avant = e.etat();
    EXPECT_NE(e.jouer("g").find("a.grl"), std::string::npos);
    EXPECT_NE(e.jouer("r20240805").find("20240805.rdj"), std::string::npos);
    EXPECT_FALSE(e.saisie.sauver(e.dossier / "absent" / "a.grl"));
    EXPECT_EQ(e.etat(), avant);
    e.jouer("f E1 t5 f k0");
    EXPECT_NE(e.jouer("V20240805"), "");
    EXPECT_EQ(e.saisie.etape(), EtapeJoker::Date);
    EXPECT_EQ(e.jouer("v20240805"), "");
    EXPECT_EQ(lire(FichierRecu(e.dossier.chemin(), 20240805)), "1\n2.2 5 9 8 7 6 5 1 6\n0\n");
}

TEST(SaisieBillets, TheDateOfAReceiptAndItsDraw) {
    const struct {
        const char* evenements;
        int date;
        bool proposer;
    } etapes[] = {
        {"E1 t3 f f", 0, false},          {"E1 t3 f k0 v20240805", 20240805, true},
        {"C f E0 t4 f", 20240805, true},  {"E1 x", 0, false},
        {"f r20240805", 20240805, false}, {"S", 0, false},
    };
    Essai e;
    for (const auto& etape : etapes) {
        e.jouer(etape.evenements);
        EXPECT_EQ(e.saisie.dateRecu(), etape.date) << etape.evenements;
        EXPECT_EQ(e.saisie.tirageAProposer(), etape.proposer) << etape.evenements;
    }
    e.jouer("f E1 t3 f k0 v20240805");
    e.saisie.tirageEstPropose();
    EXPECT_FALSE(e.saisie.tirageAProposer());
}

TEST(SaisieBillets, JokerAndDates) {
    Essai e;
    e.jouer("E1 t3 f k4");
    for (const char* faux : {"", "123456", "12345678", "123456 ", "1.3.4.5", "-123456", "12345a7"})
        EXPECT_TRUE(e.saisie.validerJoker(faux, 1, false)) << faux;
    EXPECT_EQ(e.saisie.validerJoker("12345", 1, false)->detail,
              "Un Numéro Joker+ a sept chiffres. Il en manque 2 : complétez-le, puis validez.");
    EXPECT_EQ(e.saisie.jokersRestants(), 4);
    for (const bool option : {false, true})
        for (const int mises : {1, 2}) e.saisie.validerJoker("0918273", mises, option);
    for (const int code : {1, 2, 3, 4}) {
        const LigneJoker attendue = {{0, 9, 1, 8, 2, 7, 3}, code};
        EXPECT_EQ(e.billets.ListeJoker[static_cast<std::size_t>(code - 1)], attendue);
    }
    EXPECT_EQ(e.saisie.etape(), EtapeJoker::Date);
    EXPECT_EQ(e.saisie.compteJoker(), 4);
    EXPECT_EQ(e.saisie.jokersRestants(), 0);
    e.jouer("J");
    EXPECT_EQ(e.saisie.jokerRepris()->code, 4);
    EXPECT_EQ(e.saisie.jokersRestants(), 1);
    e.jouer("j1");
    EXPECT_FALSE(e.saisie.jokerRepris());
    // Monday 26 February 2024 to Sunday 3 March.
    const std::pair<int, int> prochains[] = {
        {20240226, 20240226}, {20240227, 20240228}, {20240228, 20240228}, {20240229, 20240302},
        {20240301, 20240302}, {20240302, 20240302}, {20240303, 20240304}};
    for (const auto& [jour, prochain] : prochains) {
        EXPECT_EQ(ProchainJourDeTirage(jour), prochain);
        EXPECT_EQ(e.saisie.peutDater(jour).has_value(), jour != prochain) << jour;
    }
}

}  // namespace
}  // namespace norvane
