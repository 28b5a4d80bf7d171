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
constexpr const char* AjoutEnSelection =
    "Pas d'ajout de combinaisons possible dans les bulletins en Mode Sélection...";

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
TEST(SaisieBillets, SaisieDeGrilles) {
    const Cas cas[] = {
        {"E0", "", "Grilles 1/1 _ [_] recu[] choix[]"},
        // Order of ticking; one that is unticked leaves its place.
        {"E0 n9 n3 n5 n9 c2 n9", "", "Grilles 1/1 3.5.9+2@0 [_] recu[] choix[]"},
        {"E0 n1 a", Incomplete, "Grilles 1/1 1+@0 [_] recu[] choix[]"},
        {"E0 t3 a t4 a", "", "Grilles 3/3 _ [t3 t4 _] recu[] choix[]"},
        // The option stays for the next ticket, and comes back with one that has it.
        {"E0 o1 t3 a t4 a o0 t5 d1", "", "Grilles 1/3 t3' 2nd [t3' t4' t5] recu[] choix[]"},
        // Moving stores what is in hand, refuses what is not whole, goes no further than the ends.
        {"E0 t3 a n1 d1", Incomplete, "Grilles 2/2 1+@0 [t3 _] recu[] choix[]"},
        {"E0 t3 a t4 a t5 d-3 t6 d99", "", "Grilles 3/3 t5 [t6 t4 t5] recu[] choix[]"},
        // From a place before, a new ticket still comes at the end.
        {"E0 t3 a t4 a t5 d1 t6 a", "", "Grilles 4/4 _ [t6 t4 t5 _] recu[] choix[]"},
        {"E0 t3 a t4 d1 s", "", "Grilles 1/1 t4 [t4] recu[] choix[]"},
        {"E0 t3 a s s", "", "Grilles 0/0 _ [] recu[] choix[]"},
        // An emptied list takes up what is being ticked, whole or not.
        {"E0 s n1 a n2", "", "Grilles 1/1 1.2+@0 [_] recu[] choix[]"},
        {"E0 s t3 p s", "", "Grilles 0/0 _ [] recu[] choix[]"},
        // The end: what is not whole is dropped, were it a ticket of the stock.
        {"E0 t3 a t4 f", "", "Normal 2/2 _ [t3 t4] recu[] choix[t3 t4]*"},
        {"E0 t3 a n1 f", "", "Normal 1/1 _ [t3] recu[] choix[t3]*"},
        {"E0 t3 a t4 d1 x f", "", "Normal 1/1 _ [t4] recu[] choix[t4]*"},
        {"E0 f", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 n1 q", Incomplete, "Grilles 1/1 1+@0 [_] recu[] choix[]"},
        {"E0 t3 q Q", "", "Normal 1/1 _ [t3] recu[] choix[t3]*"},
        // Behind the stock; nothing is unsaved that a file holds.
        {"E0 t3 f w E0 t4 f", "", "Normal 2/2 _ [t3 t4] recu[] choix[t3 t4]*"},
        {"E0 t3 f E0 S f", "", "Normal 0/0 _ [] recu[] choix[]"},
        // Out of turn, nothing happens.
        {"n1 c1 o1 h1 h2 a s S f Q d1 k2 j1 v20240805 p", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 f C n1 o1 h3 a k0 Q E1 x", "", "Consultation 1/1 t3 [t3] recu[] choix[t3]*"},
        {"E0 l1 C k1 r20240805 g b2", EnSelection, "Grilles 1/1 _ [_] recu[] choix[]"},
    };
    Verifier(cas);
}

TEST(SaisieBillets, RecuDeJeu) {
    const Cas cas[] = {
        {"E1 f", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E1 t3 f n1 x o1 s S a d1", "", "JokerCompte 1/1 _ [t3] recu[t3] choix[]"},
        // Back to a number, to the one before it, to the count; from the date too.
        {"E1 t3 f k3 j1 j2 J j3", "",
         "JokerNumeros 1/1 _ [t3] recu[t3] choix[] J0000001x4 "
         "J0000003x4"},
        {"E1 t3 f k2 j1 J J k0 J J", "", "JokerCompte 1/1 _ [t3] recu[t3] choix[]"},
        // The option 2nd Tirage is that of this receipt alone.
        {"E1 o1 t3 a t4 f k0 v20240805 E1 t5", "", "Recu 1/1 9.8.7.6.5+6@0 [_] recu[] choix[]"},
        {"E1 t3 f k1 j12345678", "Erreur de saisie, Numéro Joker+...",
         "JokerNumeros 1/1 _ [t3] recu[t3] choix[]"},
        {"E1 t3 f k0 v20240806", "Cette date ne correspond à aucun Tirage...",
         "JokerDate 1/1 _ [t3] recu[t3] choix[]"},
        {"E1 t3 a t4 f k0 v20240805", "", "Normal 1/2 _ [t3 t4] recu[t3 t4] choix[]"},
        // Given up, it stays in memory; the next one takes its place.
        {"E1 t3 f k1 j1 f E1", "", "Recu 1/1 _ [_] recu[] choix[]"},
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

TEST(SaisieBillets, ConsultationCopieEtFichiers) {
    const Cas cas[] = {
        {"C", Aucune, "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 a t4 f C d9", "", "Consultation 2/2 t4 [t3 t4] recu[] choix[t3 t4]*"},
        {"E0 t3 a o1 t4 f C d2 f", "", "Normal 2/2 _ 2nd [t3 t4'] recu[] choix[t3 t4']*"},
        // One list only: that one, whatever was wished.
        {"E0 t3 f l1 C", "", "Consultation 1/1 t3 [t3] recu[] choix[t3]*"},
        {"E0 t3 f E1 t4 Q l0 C", "", "Consultation 1/1 t3 [t3] recu[t4] choix[t3]*"},
        {"E0 t3 f E1 t4 Q C", "", "Consultation 1/1 t4 [t4] recu[t4] choix[t3]*"},
        {"E1 t4 Q E0 t3 f C l1", "", "Consultation 1/1 t4 [t4] recu[t4] choix[t3]*"},
        // Chosen in Normal: what the reports take from then on.
        {"E0 t3 f E1 t4 a t5 f k0 v20300102 l0", "", "Normal 1/1 _ [t3] recu[t4 t5] choix[t3]*"},
        {"E1 t4 a t5 f k0 v20300102 E0 t3 f l1", "", "Normal 2/2 _ [t4 t5] recu[t4 t5] choix[t3]*"},
        // What is deleted here is deleted for good.
        {"E0 t3 a t4 f w C s", "", "Consultation 1/1 t4 [t4] recu[] choix[t4]*"},
        {"E0 t3 f C S f", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 f w E1 t4 a t5 Q C s", "", "Consultation 1/1 t5 [t5] recu[t5] choix[t3]"},
        // Copies.
        {"E1 t3 Q C b1", "1 combinaison copiée...",
         "Consultation 1/1 t40 [t40] recu[t3] choix[t40]*"},
        {"b2", "2 combinaisons copiées...",
         "Consultation 1/2 t40 [t40 t40] recu[] choix[t40 t40]*"},
        {"b0", "0 combinaisons copiées...", "Normal 0/0 _ [] recu[] choix[]"},
        {"E0 t3 f w b0", "0 combinaisons copiées...", "Consultation 1/1 t3 [t3] recu[] choix[t3]"},
        {"E1 t3 f b1", EnSelection, "JokerCompte 1/1 _ [t3] recu[t3] choix[]"},
        // One grid by itself: the stock is then what is worked on.
        {"A3 A4", "", "Normal 2/2 _ [t3 t4] recu[] choix[t3 t4]*"},
        {"E1 t4 Q A3", "", "Normal 1/1 _ [t3] recu[t4] choix[t3]*"},
        {"E0 t3 f w C A5", "", "Consultation 2/2 t5 [t3 t5] recu[] choix[t3 t5]*"},
        {"E1 t4 a t5 Q C A3", "", "Consultation 1/1 t3 [t3] recu[t4 t5] choix[t3]*"},
        {"E0 A4", AjoutEnSelection, "Grilles 1/1 _ [_] recu[] choix[]"},
        {"E1 t4 f A3", AjoutEnSelection, "JokerCompte 1/1 _ [t4] recu[t4] choix[]"},
        {"A3 A4 E1 t5 Q P2", "", "Consultation 2/2 t4 [t3 t4] recu[t5] choix[t3 t4]*"},
        {"A3 P9 P0", "", "Consultation 1/1 t3 [t3] recu[] choix[t3]*"},
        {"P1", "", "Normal 0/0 _ [] recu[] choix[]"},
        {"A3 E1 P1", "", "Recu 1/1 _ [_] recu[] choix[t3]*"},
        // Files: saved during an entry, the entry; a load takes the mark and the place of the
        // stock.
        {"E0 t3 a t4 f w E0 t5 f g", "", "Consultation 1/2 t3 [t3 t4] recu[] choix[t3 t4]"},
        {"E0 t3 f E0 t4 p w S f g", "", "Consultation 1/2 t3 [t3 t4] recu[] choix[t3 t4]"},
        {"w g", "", "Consultation 0/0 _ [] recu[] choix[]"},
    };
    Verifier(cas);
}

TEST(SaisieBillets, CeQuiSeDemandeAvant) {
    // Each line goes on from the one before: what comes next, and what a deletion, and an opening,
    // would lose.
    using enum SuiteSaisie;
    const struct {
        const char* evenements;
        SuiteSaisie suite;
        bool suppression, ouverture;
    } etapes[] = {
        {"E0", ModeNormal, false, false},     {"t3 a", ModeNormal, true, false},
        {"f", ModeNormal, true, true},        {"w", ModeNormal, false, false},
        {"C", ModeNormal, false, false},      {"s", ModeNormal, false, false},
        {"g", ModeNormal, false, false},      {"b1", ModeNormal, true, true},
        {"w", ModeNormal, false, false},      {"s", ModeNormal, true, true},
        {"f E0", ModeNormal, true, true},     {"w Q", ModeNormal, false, false},
        {"f E1", NumerosJoker, false, false}, {"t5 a", DateParticipation, false, false},
        {"t4 p S", ModeNormal, false, false}, {"f C", ModeNormal, false, false},
        {"b1", ModeNormal, true, true},       {"f E1 t4", NumerosJoker, false, true},
    };
    Essai e;
    for (const auto& etape : etapes) {
        e.jouer(etape.evenements);
        EXPECT_EQ(e.saisie.suite(), etape.suite) << etape.evenements;
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

    // Balance or verification, and the lists on offer: grids, the receipt, the stock.
    const std::pair<const char*, const char*> listes[] = {
        {"E0 t3 f", "-grc"}, {"C", "bg-c"},  {"f", "bgrc"},      {"E0", "bg--"},
        {"f E1 t4", "----"}, {"f", "----"},  {"f l0", "bgrc"},   {"l1", "--rc"},
        {"l0 C", "bgrc"},    {"l1", "--rc"}, {"f E0 f", "-grc"}, {"C S", "bgr-"},
        {"f l1", "--rc"},    {"A3", "bgrc"},
    };
    Essai b;
    for (const auto& [evenements, offert] : listes) {
        b.jouer(evenements);
        const bool vrais[] = {b.saisie.bilan(), b.saisie.ModeGrilles(), b.saisie.listeOfferte(true),
                              b.saisie.listeOfferte(false)};
        for (std::size_t i = 0; i < 4; ++i)
            EXPECT_EQ(vrais[i], offert[i] != '-') << evenements << ' ' << i;
    }
}

TEST(SaisieBillets, PlaceDansLeStockEtStockPlein) {
    Essai e;
    e.jouer("A3 A4 A5 A4");
    EXPECT_EQ(e.saisie.placeDansStock(FaireGrille({4, 5, 6, 7, 8}, {5}, true)), 2);
    EXPECT_EQ(e.saisie.placeDansStock(FaireGrille({4, 5, 6, 7, 8}, {5, 6}, false)), 0);
    EXPECT_EQ(e.saisie.placeDansStock(FaireGrille({4, 5, 6, 7, 9}, {5}, false)), 0);
    e.billets.ListeChoix.resize(9998, Ticket(3));
    EXPECT_EQ(e.jouer("A6 A7"),
              "Vous avez atteint la capacité maximum pour la mise en mémoire de grilles...");
    EXPECT_EQ(e.saisie.placeDansStock(Ticket(6)), 9999);
    EXPECT_EQ(e.billets.ListeChoix.size(), 9999U);
}

// Every pair of counts: what is sold, or may become so.
TEST(SaisieBillets, CochesRefuseesAuDelaDeLaVente) {
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

TEST(SaisieBillets, Capacite) {
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
    EXPECT_EQ(std::pair(e.saisie.reste(), e.saisie.libres()), std::pair(5, 5));
    e.jouer("h2");
    EXPECT_EQ(std::pair(e.saisie.reste(), e.saisie.libres()), std::pair(4, 3));
    e.jouer("a h7");
    EXPECT_EQ(std::pair(e.saisie.reste(), e.saisie.libres()), std::pair(1, 0));
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
    e.jouer("f");
    e.billets.ListeChoix.assign(NbGrillesMax - 2, Ticket(1));
    EXPECT_EQ(e.jouer("b2"), "2 combinaisons copiées...");
    EXPECT_EQ(e.saisie.nombre(), NbGrillesMax);
}

TEST(SaisieBillets, GrillesAuHasard) {
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

// A stake that a file tells otherwise than the price list stays while nothing else changes.
TEST(SaisieBillets, UneGrilleInchangeeGardeSaMise) {
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

TEST(SaisieBillets, CarteDeLaGrilleMontree) {
    const Base base = SeptTirages();
    Essai e;
    e.billets.ListeChoix = {FaireGrille({45, 7, 12, 23, 34}, {5}, true)};
    const struct {
        const char* evenements;
        bool avecMise, incomplete;
        double gain;  ///< -1 for none told
        const char* carte;
    } etapes[] = {
        {"E0", false, false, -1, "2/2 _"},
        {"n9", false, true, -1, "2/2 9+@1"},
        {"x t3 o1", true, false, -1, "2/2 t3'"},
        {"f C", true, false, 2000000, "1/2 45.7.12.23.34+5@3"},
        {"S", false, false, -1, "0/0 _"},
    };
    for (const auto& etape : etapes) {
        e.jouer(etape.evenements);
        const CarteGrille carte = e.saisie.carte(base, 3);
        EXPECT_EQ(carte.avecMise, etape.avecMise) << etape.evenements;
        EXPECT_EQ(carte.incomplete, etape.incomplete) << etape.evenements;
        EXPECT_EQ(carte.resultat ? carte.resultat->gain : -1, etape.gain) << etape.evenements;
        EXPECT_EQ(fmt::format("{}/{} {}", carte.numero, carte.nombre, Dire(carte.grille)),
                  etape.carte);
    }
    e.jouer("f b1");
    EXPECT_TRUE(e.saisie.carte(base, 0).resultat);
    EXPECT_FALSE(e.saisie.carte(base, -1).resultat);
}

TEST(SaisieBillets, CeQuePrendLaCopieDeSecours) {
    const struct {
        const char* evenements;
        const char* copie;
    } cas[] = {
        {"", ""},
        {"E0 t3 f C", "t3"},
        // What a file holds is not copied, were it looked at or entered anew, until it changes.
        {"E0 t3 f w", ""},
        {"E0 t3 a t4 f w g f E0 s d1 d2", ""},
        {"E0 t3 a t4 f w E0 s t4 d1 s", ""},
        {"E0 t3 a t4 f w C s", "t4"},
        {"E0 t3 a t3 f w E0 t3", "t3 t3 t3"},
        // The stock, then what is being entered.
        {"E0 t3 f E0 S t4", "t3 t4"},
        {"E0 t3 f E1 t4 a t5", "t3 t4 t5"},
        {"E0 t3 f E1 t4 a t5 f k0", "t3 t4 t5"},
        {"E0 t3 f w E1 t4", "t4"},
        // A receipt without its file.
        {"E1 t3 f f", "t3"},
        {"E1 t3 f k0 v20240805 r20240805", ""},
        {"E1 t3 f f C S", ""},
        // The ticket in hand as it stands, from three numbers on.
        {"E0 n1 n2 n3", "1.2.3+@1"},
        {"E0 t3 a n1 n2", "t3"},
        {"E0 t3 a t4 d1 x n1", "t3 t4"},  // not the last one: its place is as it was
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

TEST(SaisieBillets, UnFichierQuiEchoueNeChangeRien) {
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

TEST(SaisieBillets, LaDateDUnRecuEtSonTirage) {
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

TEST(SaisieBillets, JokerEtDates) {
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
