// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "EssaiBillets.h"
#include "SeptTirages.h"

namespace norvane {
namespace {

constexpr const char* Incomplete = "La grille en cours n'est pas complète...";
constexpr const char* Aucune = "Aucune grille sélectionnée...";
constexpr const char* EnSelection =
    "Terminez le Mode Sélection dans l'onglet Résultats pour utiliser cette fonctionnalité.";

struct Cas {
    const char* evenements;
    const char* refus;  ///< of the last one
    const char* etat;
};

void Verifier(std::span<const Cas> tous) {
    for (const Cas& cas : tous) {
        Essai essai;
        EXPECT_EQ(essai.jouer(cas.evenements), cas.refus) << cas.evenements;
        EXPECT_EQ(essai.etat(), cas.etat) << cas.evenements;
    }
}

// What is being ticked is told in full: it has no stake before it goes to its place.
TEST(SaisieBillets, EntryOfGrids) {
    const Cas cas[] = {
        {"E0", "", "Grilles 1/1 _ [_] recu[] choix[]"},
        // Order of ticking; one that is unticked leaves its place.
        {"E0 n9 n3 n5 n9 c2 n9", "", "Grilles 1/1 3.5.9+2@0 [_] recu[] choix[]"},
        {"E0 n9 c2 x", "", "Grilles 1/1 _ [_] recu[] choix[]"},
        {"E0 n1 a", Incomplete, "Grilles 1/1 1+@0 [_] recu[] choix[]"},
        {"E0 t3 a", "", "Grilles 2/2 _ [t3 _] recu[] choix[]"},
        {"E0 t3 a t4 a", "", "Grilles 3/3 _ [t3 t4 _] recu[] choix[]"},
        // The option stays for the next ticket, and comes back with one that has it.
        {"E0 o1 t3 a t4 a o0 t5 d1", "", "Grilles 1/3 t3' 2nd [t3' t4' t5] recu[] choix[]"},
        // Moving stores what is in hand, refuses what is not whole, goes no further than the ends.
        {"E0 t3 a t4 d1", "", "Grilles 1/2 t3 [t3 t4] recu[] choix[]"},
        {"E0 t3 a n1 d1", Incomplete, "Grilles 2/2 1+@0 [t3 _] recu[] choix[]"},
        {"E0 t3 a n1 d7", "", "Grilles 2/2 1+@0 [t3 _] recu[] choix[]"},
        {"E0 t3 a t4 a t5 d-3 t6 d99", "", "Grilles 3/3 t5 [t6 t4 t5] recu[] choix[]"},
        // From a place before, a new ticket still comes at the end.
        {"E0 t3 a t4 a t5 d1 t6 a", "", "Grilles 4/4 _ [t6 t4 t5 _] recu[] choix[]"},
        {"E0 t3 a t4 d1 s", "", "Grilles 1/1 t4 [t4] recu[] choix[]"},
        {"E0 t3 a s s", "", "Grilles 0/0 _ [] recu[] choix[]"},
        {"E0 s d1", "", "Grilles 0/0 _ [] recu[] choix[]"},
        // An emptied list takes up what is being ticked, whole or not.
        {"E0 s n1 a n2", "", "Grilles 1/1 1.2+@0 [_] recu[] choix[]"},
        {"E0 s t3 a", "", "Grilles 2/2 _ [t3 _] recu[] choix[]"},
        {"E0 s t3 p s", "", "Grilles 0/0 _ [] recu[] choix[]"},
        {"E0 t3 a t4 p", "", "Grilles 2/2 8.7.6.5.4+5@0 [t3 t4] recu[] choix[]"},
        {"E0 n1 p", Incomplete, "Grilles 1/1 1+@0 [_] recu[] choix[]"},
        {"E0 t3 a S", "", "Grilles 0/0 _ [] recu[] choix[]"},
        // The end: what is not whole is dropped, were it a ticket of the stock.
        {"E0 t3 a t4 f", "", "Normal 2/2 _ [t3 t4] recu[] choix[t3 t4]*"},
        {"E0 t3 a n1 f", "", "Normal 1/1 _ [t3] recu[] choix[t3]*"},
        {"E0 t3 a t4 d1 x f", "", "Normal 1/1 _ [t4] recu[] choix[t4]*"},
        {"E0 s t3 f", "", "Normal 1/1 _ [t3] recu[] choix[t3]*"},
        {"E0 f", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 n1 q", Incomplete, "Grilles 1/1 1+@0 [_] recu[] choix[]"},
        {"E0 t3 q Q", "", "Normal 1/1 _ [t3] recu[] choix[t3]*"},
        // Behind the stock; nothing is unsaved that a file holds.
        {"E0 t3 f w E0", "", "Grilles 2/2 _ [t3 _] recu[] choix[t3]"},
        {"E0 t3 f w E0 f", "", "Normal 1/1 _ [t3] recu[] choix[t3]"},
        {"E0 t3 f w E0 t4 f", "", "Normal 2/2 _ [t3 t4] recu[] choix[t3 t4]*"},
        {"E0 t3 f E0 S f", "", "Normal 0/0 _ [] recu[] choix[]"},
        // Out of turn, nothing happens.
        {"n1 c1 o1 h1 h2 a s S f Q d1 k2 j1 v20240805 p", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 f C n1 o1 h3 a k0 Q E1 x", "", "Consultation 1/1 t3 [t3] recu[] choix[t3]*"},
        {"E0 l1 C k1 r20240805 g b2", EnSelection, "Grilles 1/1 _ [_] recu[] choix[]"},
    };
    Verifier(cas);
}

TEST(SaisieBillets, Receipt) {
    const Cas cas[] = {
        {"E1 f", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E1 t3 a t4 f", "", "JokerCompte 2/2 _ [t3 t4] recu[t3 t4] choix[]"},
        {"E1 t3 f n1 x o1 s S a d1", "", "JokerCompte 1/1 _ [t3] recu[t3] choix[]"},
        {"E1 t3 f k0", "", "JokerDate 1/1 _ [t3] recu[t3] choix[]"},
        {"E1 t3 f k2 j12345", "", "JokerNumeros 1/1 _ [t3] recu[t3] choix[] J0012345x4"},
        // Back to a number, to the one before it, to the count; from the date too.
        {"E1 t3 f k3 j1 j2 J j3", "",
         "JokerNumeros 1/1 _ [t3] recu[t3] choix[] J0000001x4 "
         "J0000003x4"},
        {"E1 t3 f k2 j1 j2 J J", "", "JokerNumeros 1/1 _ [t3] recu[t3] choix[]"},
        {"E1 t3 f k2 j1 J J k0 J J", "", "JokerCompte 1/1 _ [t3] recu[t3] choix[]"},
        // The option 2nd Tirage is that of this receipt alone.
        {"E1 o1 t3 a t4 f k0 v20240805 E1 t5", "", "Recu 1/1 9.8.7.6.5+6@0 [_] recu[] choix[]"},
        {"E1 t3 f k1 j9876543", "", "JokerDate 1/1 _ [t3] recu[t3] choix[] J9876543x4"},
        {"E1 t3 f k1 j12345678", "Erreur de saisie, Numéro Joker+...",
         "JokerNumeros 1/1 _ [t3] recu[t3] choix[]"},
        {"E1 t3 f k0 v20240806", "Cette date ne correspond à aucun Tirage...",
         "JokerDate 1/1 _ [t3] recu[t3] choix[]"},
        {"E1 t3 a t4 f k0 v20240805", "", "Normal 1/2 _ [t3 t4] recu[t3 t4] choix[]"},
        // Given up, it stays in memory; the next one takes its place.
        {"E1 t3 f k1 j1 f", "", "Normal 1/1 _ [t3] recu[t3] choix[] J0000001x4"},
        {"E1 t3 f k1 j1 f E1", "", "Recu 1/1 _ [_] recu[] choix[]"},
        {"E1 t3 Q", "", "Normal 1/1 _ [t3] recu[t3] choix[]"},
        // Replaced, or behind the one that is there.
        {"E1 t3 f k1 j1 v20300102 E1 t4 f k1 j2 v20300102 r20300102", "",
         "Consultation 1/1 t4 [t4] recu[t4] choix[] J0000002x4"},
        {"E1 t3 f k1 j1 v20300102 E1 t4 f k1 j2 V20300102", "",
         "Normal 1/2 _ [t3 t4] recu[t3 t4] choix[] J0000001x4 J0000002x4"},
        // Neither touches the stock, nor what is unsaved of it.
        {"E0 t3 f E1 t4 f k0 v20300102", "", "Normal 1/1 _ [t4] recu[t4] choix[t3]*"},
        {"E0 t3 f w E1 t4 f k0 v20300102 C S", "", "Consultation 0/0 _ [] recu[] choix[t3]"},
        {"E1 t3 f k1 j1 f C S", "", "Consultation 0/0 _ [] recu[] choix[]"},
    };
    Verifier(cas);
}

TEST(SaisieBillets, ConsultationCopyAndFiles) {
    const Cas cas[] = {
        {"C", Aucune, "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 a t4 f C", "", "Consultation 1/2 t3 [t3 t4] recu[] choix[t3 t4]*"},
        {"E0 t3 a t4 f C d9", "", "Consultation 2/2 t4 [t3 t4] recu[] choix[t3 t4]*"},
        {"E0 t3 a o1 t4 f C d2 f", "", "Normal 2/2 _ 2nd [t3 t4'] recu[] choix[t3 t4']*"},
        // One list only: that one, whatever was wished.
        {"E0 t3 f l1", "", "Normal 0/0 _ [] recu[] choix[t3]*"},
        {"E0 t3 f l1 C", "", "Consultation 1/1 t3 [t3] recu[] choix[t3]*"},
        {"E0 t3 f E1 t4 Q l0 C", "", "Consultation 1/1 t3 [t3] recu[t4] choix[t3]*"},
        {"E0 t3 f E1 t4 Q C", "", "Consultation 1/1 t4 [t4] recu[t4] choix[t3]*"},
        {"E1 t4 Q E0 t3 f C l1", "", "Consultation 1/1 t4 [t4] recu[t4] choix[t3]*"},
        {"E0 t3 f C l1", "", "Consultation 1/1 t3 [t3] recu[] choix[t3]*"},
        // Chosen in Normal: what the reports take from then on.
        {"E0 t3 f E1 t4 a t5 f k0 v20300102 l0", "", "Normal 1/1 _ [t3] recu[t4 t5] choix[t3]*"},
        {"E1 t4 a t5 f k0 v20300102 E0 t3 f l1", "", "Normal 2/2 _ [t4 t5] recu[t4 t5] choix[t3]*"},
        // What is deleted here is deleted for good.
        {"E0 t3 a t4 f w C s", "", "Consultation 1/1 t4 [t4] recu[] choix[t4]*"},
        {"E0 t3 a t4 f w C d2 s", "", "Consultation 1/1 t3 [t3] recu[] choix[t3]*"},
        {"E0 t3 f C s", "", "Consultation 0/0 _ [] recu[] choix[]"},
        {"E0 t3 f C S f", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 f w E1 t4 a t5 Q C s", "", "Consultation 1/1 t5 [t5] recu[t5] choix[t3]"},
        // Copies.
        {"b1", "1 combinaison copiée...", "Consultation 1/1 t40 [t40] recu[] choix[t40]*"},
        {"b2", "2 combinaisons copiées...",
         "Consultation 1/2 t40 [t40 t40] recu[] choix[t40 t40]*"},
        {"b0", "0 combinaisons copiées...", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 f w b0", "0 combinaisons copiées...", "Consultation 1/1 t3 [t3] recu[] choix[t3]"},
        {"E1 t3 Q C b1", "1 combinaison copiée...",
         "Consultation 1/1 t40 [t40] recu[t3] choix[t40]*"},
        {"E1 t3 f b1", EnSelection, "JokerCompte 1/1 _ [t3] recu[t3] choix[]"},
        // Files: saved during an entry, the entry; a load takes the mark and the place of the
        // stock.
        {"E0 t3 a t4 f w E0 t5 f g", "", "Consultation 1/2 t3 [t3 t4] recu[] choix[t3 t4]"},
        {"E0 t3 f E0 t4 p w S f g", "", "Consultation 1/2 t3 [t3 t4] recu[] choix[t3 t4]"},
        {"E0 t3 f w E1 t4 Q g", "", "Consultation 1/1 t3 [t3] recu[t4] choix[t3]"},
        {"w g", "", "Consultation 0/0 _ [] recu[] choix[]"},
    };
    Verifier(cas);
}

TEST(SaisieBillets, WhatIsAskedBefore) {
    Essai e;
    EXPECT_EQ(e.saisie.suite(), SuiteSaisie::ModeNormal);
    e.jouer("E1");
    EXPECT_EQ(e.saisie.suite(), SuiteSaisie::NumerosJoker);
    e.jouer("t3 a");
    EXPECT_EQ(e.saisie.suite(), SuiteSaisie::DateParticipation);
    e.jouer("t4 p S");
    EXPECT_EQ(e.saisie.suite(), SuiteSaisie::ModeNormal);
    e.jouer("f");

    // Each line goes on from the one before: what a deletion, and an opening, would lose.
    const struct {
        const char* evenements;
        bool suppression, ouverture;
    } etapes[] = {
        {"E0", false, false},        {"t3 a", true, false},  {"f", true, true},
        {"w", false, false},         {"C", false, false},    {"s", false, false},
        {"g", false, false},         {"b1", true, true},     {"w", false, false},
        {"s", true, true},           {"f E0", true, true},   {"w Q", false, false},
        {"f", false, false},         {"E0 t5", true, false}, {"S", false, false},
        {"f E1 t3 f", false, false}, {"f C", false, false},  {"b1", true, true},
        {"f E1 t4", false, true},
    };
    for (const auto& etape : etapes) {
        e.jouer(etape.evenements);
        EXPECT_EQ(e.saisie.suppressionPerdrait(), etape.suppression) << etape.evenements;
        EXPECT_EQ(e.saisie.ouverturePerdrait(), etape.ouverture) << etape.evenements;
    }

    Essai v;
    ASSERT_TRUE(v.saisie.peutVerifier(false) && v.saisie.peutVerifier(true));
    EXPECT_EQ(v.saisie.peutVerifier(false)->phrase,
              "Il faut d'abord sélectionner un tirage en mémoire...");
    EXPECT_EQ(v.saisie.peutVerifier(true)->phrase, Aucune);
    v.jouer("E0 t3 f");
    EXPECT_FALSE(v.saisie.peutVerifier(true));

    // Balance or verification, and the lists on offer.
    const struct {
        const char* evenements;
        bool bilan, grilles, recu, choix;
    } listes[] = {
        {"E0 t3 f", false, true, true, true},    {"C", true, true, false, true},
        {"f", true, true, true, true},           {"E0", true, true, false, false},
        {"f E1 t4", false, false, false, false}, {"f", false, false, false, false},
        {"f l0", true, true, true, true},        {"l1", false, false, true, true},
        {"l0 C", true, true, true, true},        {"l1", false, false, true, true},
        {"f E0 f", false, true, true, true},     {"C S", true, true, true, false},
    };
    Essai b;
    for (const auto& etape : listes) {
        b.jouer(etape.evenements);
        EXPECT_EQ(b.saisie.bilan(), etape.bilan) << etape.evenements;
        EXPECT_EQ(b.saisie.ModeGrilles(), etape.grilles) << etape.evenements;
        EXPECT_EQ(b.saisie.listeOfferte(true), etape.recu) << etape.evenements;
        EXPECT_EQ(b.saisie.listeOfferte(false), etape.choix) << etape.evenements;
    }
}

// Every pair of counts: what is sold, or may become so.
TEST(SaisieBillets, TicksAreRefusedBeyondWhatIsSold) {
    constexpr int chancesMax[] = {10, 10, 10, 10, 10, 10, 10, 8, 3, 1, -1};
    for (int n = 0; n <= 9; ++n)
        for (int c = 0; c <= chancesMax[n]; ++c) {
            Essai e;
            e.jouer("E0");
            for (int i = 1; i <= n; ++i) ASSERT_EQ(e.faire('n', i), "");
            for (int i = 1; i <= c; ++i) ASSERT_EQ(e.faire('c', i), "");
            const std::string coche = fmt::format("Vous avez coché {} chances, v", c);
            const bool vendue = c <= chancesMax[n + 1];
            EXPECT_EQ(e.faire('n', 49),
                      vendue ? ""
                             : fmt::format("{}ous ne pouvez pas cocher plus de {} numéros.",
                                           c < 2 ? "V" : coche, n));
            EXPECT_EQ(e.saisie.grilleEnMain().n(), n + (vendue ? 1 : 0)) << n << " " << c;
            if (vendue) e.faire('n', 49);
            if (c == 10) continue;
            EXPECT_EQ(e.faire('c', 10),
                      c < chancesMax[n]
                          ? ""
                          : fmt::format("Vous avez coché {} numéros, vous ne pouvez pas cocher "
                                        "plus de {} chances.",
                                        n, c));
        }
}

TEST(SaisieBillets, Capacity) {
    Essai e;
    const auto plein = [&e](std::size_t nombre) {
        e.billets.ListeChoix.assign(nombre, Ticket(1));
        e.saisie.commencer(false);
    };
    plein(NbGrillesMax - 1);
    EXPECT_EQ(e.saisie.grille(), NbGrillesMax);
    EXPECT_EQ(e.saisie.reste(), 1);
    EXPECT_EQ(e.jouer("t2 a"), "");
    EXPECT_EQ(e.saisie.grille(), NbGrillesMax);
    EXPECT_EQ(e.billets.ListeGrilles.back(), Ticket(2));
    const auto refus = e.saisie.ajouter();
    ASSERT_TRUE(refus);
    EXPECT_EQ(refus->titre, Refus::Titre::Message);
    EXPECT_TRUE(refus->phrase.starts_with("Vous avez atteint la capacité maximum"));
    EXPECT_TRUE(refus->detail.ends_with("poursuivez vos opérations en mémoire."));
    EXPECT_EQ(e.jouer("s"), "");
    EXPECT_EQ(e.jouer("t3 a"), "");
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
    e.jouer("f");

    plein(NbGrillesMax);
    EXPECT_EQ(Dire(e.saisie.grilleEnMain()), "t1") << "no place is opened, the last one shows";
    e.jouer("h5 f");
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
    EXPECT_EQ(e.jouer("b1"), "Tous les bulletins sont remplis...");
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
    e.jouer("f");
    plein(NbGrillesMax - 5);
    e.jouer("h7 f");
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
    e.billets.ListeChoix.assign(NbGrillesMax - 2, Ticket(1));
    EXPECT_EQ(e.jouer("b2"), "2 combinaisons copiées...");
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
}

TEST(SaisieBillets, RandomTickets) {
    Essai e;
    GenerateurHasard hasard(7);
    e.saisie.semer(7);
    e.jouer("E0 o1 n1 h1");
    EXPECT_EQ(e.saisie.grilleEnMain().numeros, TirerGrille(hasard, {5, 1}).numeros);
    EXPECT_EQ(e.saisie.nombre(), 1);
    EXPECT_TRUE(e.billets.ListeGrilles[0].vide());
    EXPECT_TRUE(e.saisie.enMainPerdue());
    // A batch takes the open place; the ticket in hand is kept when it was added before.
    const Grille enMain = e.saisie.grilleEnMain();
    std::vector<Grille> attendues = {FaireGrille(enMain.numeros, enMain.chances, true)};
    AjouterGrillesHasard(attendues, hasard, {5, 1}, 3);
    e.jouer("a h3");
    EXPECT_EQ(e.billets.ListeGrilles, attendues);
    EXPECT_EQ(e.saisie.grilleEnMain(), attendues.back());
    EXPECT_EQ(e.saisie.grille(), 4);
    EXPECT_FALSE(e.saisie.option2nd() || e.saisie.enMainPerdue());
    // None: the open place goes, and the ticket on it.
    for (const char* rien : {"a n1 h0", "a t3 h0"}) {
        e.jouer(rien);
        EXPECT_EQ(e.billets.ListeGrilles, attendues);
        EXPECT_EQ(e.saisie.grille(), 4);
    }
    // One that has its place goes there before the batch.
    e.jouer("d1 t3 o0 h2");
    EXPECT_EQ(e.saisie.nombre(), 6);
    EXPECT_EQ(e.billets.ListeGrilles[0], Ticket(3));
}

TEST(SaisieBillets, RoomForRandomTickets) {
    Essai e;
    const auto places = [&e](const char* evenements) {
        e.jouer(evenements);
        return std::pair(e.saisie.reste(), e.saisie.libres());
    };
    EXPECT_EQ(places("E0"), std::pair(9999, 9999));
    EXPECT_EQ(places("h2"), std::pair(9998, 9997));
    EXPECT_EQ(places("a"), std::pair(9997, 9997));
    e.jouer("S f");
    e.billets.ListeChoix.assign(NbGrillesMax - 2, Ticket(1));
    EXPECT_EQ(places("E0"), std::pair(2, 2));
    EXPECT_EQ(places("h3"), std::pair(1, 0));
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
}

// A stake that a file tells otherwise than the price list stays while nothing else changes.
TEST(SaisieBillets, AnUnchangedTicketKeepsItsStake) {
    const Grille lue{2.5, {3, 14, 25, 31, 44}, {7}};
    const struct {
        const char* evenements;
        double mise;
        bool changee;
    } cas[] = {
        {"d1 d2 d1 f", 2.5, false},         {"d1 n3 n3 d2 f", 3.0, true},
        {"d1 o0 o1 d2 f", 2.5, false},      {"d1 o0 d2 f", 2.2, true},
        {"d1 n44 n44 c7 c7 f", 2.5, false}, {"d1 n44 n45 d2 f", 3.0, true},
    };
    for (const auto& c : cas) {
        Essai e;
        e.billets.ListeChoix = {lue, Ticket(4)};
        e.jouer("E0 s d1");
        EXPECT_EQ(e.saisie.carte(Base{}, -1).grille, lue);
        e.jouer(c.evenements);
        EXPECT_EQ(e.billets.ListeChoix[0].mise, c.mise) << c.evenements;
        EXPECT_EQ(e.billets.aSauver, c.changee) << c.evenements;
    }
}

TEST(SaisieBillets, CardOfTheTicketOnShow) {
    const Base base = SeptTirages();
    Essai e;
    e.billets.ListeChoix = {FaireGrille({45, 7, 12, 23, 34}, {5}, true)};
    e.jouer("E0");
    EXPECT_FALSE(e.saisie.carte(base, 3).avecMise || e.saisie.carte(base, 3).incomplete);
    e.jouer("n9");
    EXPECT_TRUE(e.saisie.carte(base, 3).incomplete);
    EXPECT_FALSE(e.saisie.carte(base, 3).avecMise);
    e.jouer("x t3 o1");
    const CarteGrille saisie = e.saisie.carte(base, 3);
    EXPECT_EQ(saisie.grille, Ticket(3, true));
    EXPECT_TRUE(saisie.avecMise && !saisie.incomplete && !saisie.resultat);
    EXPECT_EQ(saisie.numero, 2);
    EXPECT_EQ(saisie.nombre, 2);
    e.jouer("f C");
    const CarteGrille carte = e.saisie.carte(base, 3);
    EXPECT_EQ(carte.grille, e.billets.ListeChoix[0]);
    EXPECT_TRUE(carte.avecMise && !carte.incomplete);
    ASSERT_TRUE(carte.resultat);
    EXPECT_EQ(carte.resultat->gain, 2000000);
    EXPECT_TRUE(e.saisie.carte(base, 0).resultat);
    EXPECT_FALSE(e.saisie.carte(base, -1).resultat);
    e.jouer("S");
    EXPECT_FALSE(e.saisie.carte(base, 3).avecMise || e.saisie.carte(base, 3).resultat);
}

}  // namespace
}  // namespace norvane
