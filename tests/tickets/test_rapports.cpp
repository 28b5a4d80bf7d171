// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "base/BaseIntegree.h"
#include "Cumulateur.h"
#include "SeptTirages.h"
#include "tickets/Bilan.h"
#include "tickets/GrillesHasard.h"
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

TEST(Verification, RapportsEntiers) {
    const Base base = SeptTirages();
    for (const Cas& cas : TousLesCas())
        for (const int numero : cas.numeros)
            EXPECT_EQ(RedigerVerification(base, numero, cas.grilles, cas.jokers, cas.monnaie),
                      Attendu(cas.rapport))
                << cas.rapport << ", draw " << numero;
}

TEST(Verification, JokerPerduOuJamaisPublie) {
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

TEST(Verification, MisesDansLaListe) {
    const std::vector<Grille> grilles = {{1.2, {9, 10, 11, 12, 13}, {10}},
                                         {2, {9, 10, 11, 12, 13}, {1}}};
    std::ostringstream euros;
    EcrireListeGrilles(grilles, {"€uro", 6.55957}, euros);
    EXPECT_EQ(euros.str(),
              "Combinaison 1 (5N + 1C) N: 9  10 11 12 13  C: 10  (Mise: 1.2 Euro)\n"
              "Combinaison 2 (5N + 1C) N: 9  10 11 12 13  C: 1  (Mise: 2 Euros)\n");
}

TEST(Verification, UneGrillePourLaPage) {
    const Base base = SeptTirages();
    const auto verifier = [&base](const Grille& grille, std::size_t numero) {
        return VerifierGrille(grille, base.Tirages[numero - 1], base.Rapports[numero - 1]);
    };
    const ResultatGrille premier = verifier(NeufNumeros, 4), second = verifier(NeufNumeros, 5);
    EXPECT_FALSE(premier.second);
    EXPECT_EQ(premier.comptes, (ComptesRangs{0, 0, 0, 0, 0, 15, 0, 60, 0}));
    EXPECT_DOUBLE_EQ(premier.gain, 600);
    EXPECT_EQ(second.bons.numeros, 5);
    EXPECT_TRUE(second.second);
    EXPECT_EQ(second.comptes, (ComptesRangs{1, 20, 60, 40}));
    EXPECT_DOUBLE_EQ(second.gain, 121320);
    Grille sansOption = NeufNumeros;
    sansOption.mise = TableMises(9, 1);
    EXPECT_EQ(verifier(sansOption, 5).gain, 0);
}

/// `nombre` tickets of random types, every third with the option.
std::vector<Grille> GrillesAleatoires(std::size_t nombre) {
    std::mt19937 types(20240724);
    GenerateurHasard hasard(20240724);
    std::vector<Grille> grilles;
    while (grilles.size() < nombre) {
        const Grille g = TirerGrille(hasard, TypesVendus[types() % TypesVendus.size()]);
        grilles.push_back(FaireGrille(g.numeros, g.chances, grilles.size() % 3 == 0));
    }
    return grilles;
}

/// The definition: record by record, the wins that the prize rules tell.
BilanGrille BilanLent(const Base& base, int premier, int dernier, const Grille& grille) {
    BilanGrille bilan;
    const auto ajouter = [](const auto& comptes, const RapportsTirage& rapports, auto& cumuls) {
        for (std::size_t rang = 0; rang < comptes.size(); ++rang) {
            cumuls[rang].fois += comptes[rang];
            cumuls[rang].gain += comptes[rang] * rapports[rang].Gain;
        }
    };
    for (auto i = static_cast<std::size_t>(premier - 1); i < static_cast<std::size_t>(dernier);
         ++i) {
        const Tirage& tirage = base.Tirages[i];
        if (tirage.DateTirage >= 20191104 && tirage.SousTirage == 2) {
            ajouter(Rangs2ndGagnes(grille, tirage), base.Rapports[i], bilan.Bilan2nd);
        } else {
            ajouter(RangsGagnes(grille, tirage), base.Rapports[i], bilan.BilanRangs);
        }
    }
    return bilan;
}

TEST(Bilan, SansGrille) {
    const Base base = SeptTirages();
    EXPECT_EQ(RedigerBilan(base, 6, 6, {}, {}),
              "Statistiques sur 1 tirage\nle mercredi 24 juillet 2024\n\n\n\n"
              "BILAN DES GAINS (pour toutes les combinaisons et tous les rangs de gain) :\n\n");
}

TEST(Bilan, ChaqueGrilleContreLaDefinition) {
    const Base base = BaseIntegree(true);
    std::vector<Grille> grilles = GrillesAleatoires(300);
    // No tickets that are sold, but a list made by hand may hold them.
    grilles.push_back({1, {7, 12, 23, 34}, {}});
    grilles.push_back({5, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {1, 2}});
    grilles.push_back({0, {}, {}});
    // Whole base, the two changes of the rules, around a word of sixty-four records, one record.
    for (const auto& [premier, dernier] :
         {std::pair{1, 8072}, {6000, 7000}, {7000, 7063}, {7000, 7064}, {8072, 8072}}) {
        const Cumulateur cumulateur(base, premier, dernier, grilles);
        for (std::size_t k = 0; k < grilles.size(); ++k)
            ASSERT_EQ(cumulateur.cumuler(grilles[k]), BilanLent(base, premier, dernier, grilles[k]))
                << "ticket " << k << ", " << premier << ".." << dernier;
    }
}

TEST(Bilan, MemeTextePourToutNombreDeFils) {
    const Base base = BaseIntegree(false);
    const auto grilles = GrillesAleatoires(333);
    const auto rediger = [&](unsigned fils) {
        return RedigerBilan(base, 1, base.NbTirages, grilles, {}, {{}, nullptr, fils});
    };
    const auto seul = rediger(1);
    ASSERT_TRUE(seul);
    for (const unsigned fils : {0U, 2U, 7U, 64U}) EXPECT_TRUE(rediger(fils) == seul) << fils;
}

TEST(Bilan, ProgresEtArret) {
    const Base base = BaseIntegree(true);
    const auto grilles = GrillesAleatoires(NbGrillesMax);
    for (const unsigned fils : {1U, 3U}) {
        std::stop_source dejaArrete;
        dejaArrete.request_stop();
        Progres rien;
        EXPECT_FALSE(
            RedigerBilan(base, 1, 8072, grilles, {}, {dejaArrete.get_token(), &rien, fils}));
        EXPECT_EQ(rien.fait(), 0);

        // Stopped by whoever watches, unless it is through by then; once in many it is not.
        int arrets = 0;
        for (int essai = 0; essai < 50 && arrets == 0; ++essai) {
            std::stop_source source;
            Progres progres;
            std::jthread guetteur([&](const std::stop_token& fini) {
                while (progres.fait() < 30 && !fini.stop_requested()) std::this_thread::yield();
                source.request_stop();
            });
            const auto texte =
                RedigerBilan(base, 1, 8072, grilles, {}, {source.get_token(), &progres, fils});
            EXPECT_EQ(progres.fait() == 100, texte.has_value());
            arrets += texte ? 0 : 1;
        }
        EXPECT_EQ(arrets, 1) << fils;
    }
}

}  // namespace
}  // namespace norvane
