// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Tickets of numbers and chances as a whole, by counting draw for draw.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <ranges>

#include "BasesEssai.h"
#include "Dossier.h"
#include "OracleStats.h"
#include "tickets/Binomial.h"
#include "tickets/CombinaisonsNC.h"

namespace norvane {
namespace {

/// The categories as their table lists them: numbers, then whether the Chance is found.
constexpr struct {
    int bons;
    bool chance;
} Attendues[NbCategoriesNC] = {{5, true}, {5, false}, {4, true},  {4, false},
                               {3, true}, {3, false}, {2, true},  {2, false},
                               {1, true}, {0, true},  {1, false}, {0, false}};

const LigneNC Tickets[] = {{{1, 2, 3, 4, 5}, {1}},
                           {{2, 4, 6, 8, 10, 12}, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}},
                           {{1, 3, 5, 7, 9, 11, 30, 40, 49}, {3}},
                           {{40, 41, 42, 43, 44}, {9, 10}}};

/// Whether draw `d` (zero-based) is of a category.
bool estDe(const Base& base, int d, const LigneNC& ticket, std::size_t categorie) {
    const Tirage& t = base.Tirages[static_cast<std::size_t>(d)];
    const auto bons = std::ranges::count_if(
        t.Numeros, [&](int n) { return ticket.numeros.commun(Ensemble{n}).taille() == 1; });
    const bool ancienne = base.AnciensTirages && d < base.NbAnciensTirages;
    const auto chances = ticket.chances.valeurs();
    const bool chance = !ancienne && std::ranges::count(chances, t.Chance) > 0;
    return bons == Attendues[categorie].bons && chance == Attendues[categorie].chance;
}

TEST(CategoriesNC, ChacuneParDefinition) {
    std::mt19937 hasard(5);
    Base base = BaseAleatoire(hasard, 90, 13);
    for (const bool anciens : {false, true}) {
        base.AnciensTirages = anciens;
        base.NbAnciensTirages = 30;
        for (const auto& [inf, sup] : {std::pair{1, 90}, {25, 61}, {40, 40}})
            for (const LigneNC& ticket : Tickets) {
                const TableauCategories tableau = StatsCategories(base, inf, sup, ticket);
                int total = 0;
                for (std::size_t k = 0; k < NbCategoriesNC; ++k) {
                    Presences presences;
                    int date = 0;
                    for (int d = 0; d < 90; ++d) {
                        presences.push_back(estDe(base, d, ticket, k));
                        if (presences.back() && d >= inf - 1 && d < sup)
                            date = base.Tirages[static_cast<std::size_t>(d)].DateTirage;
                    }
                    const LigneCategorie& ligne = tableau[k];
                    EXPECT_EQ(ligne.resultat, OracleStats(presences, inf - 1, sup - 1)) << k;
                    EXPECT_EQ(ligne.NbFois, ligne.resultat.Sorties);
                    EXPECT_EQ(ligne.date, date);
                    EXPECT_EQ(ligne.bons, Attendues[k].bons);
                    EXPECT_EQ(ligne.chance, Attendues[k].chance);
                    total += ligne.NbFois;
                }
                EXPECT_EQ(total, sup - inf + 1);
            }
    }
}

TEST(CategoriesNC, Textes) {
    const LigneNC ticket{{7, 20, 33, 41, 48}, {1, 3}};
    const auto tableau = StatsCategories(QuatreTirages(), 1, 4, ticket);
    const auto textes = [&](std::size_t categorie) {
        std::string texte;
        for (const Cellule& c : tableau[categorie].cellules) texte += c.texte + '|';
        return texte;
    };
    EXPECT_EQ(textes(3),
              "4|2|50,00% |mercredi 5 octobre 2022|0|01  (02 05/10/2022)|1|"
              "01  (02 05/10/2022)|");
    EXPECT_EQ(textes(6),
              "2 + |1|25,00% |lundi 3 octobre 2022|3|03  (01 03/10/2022)|0|"
              "01  (01 03/10/2022)|");
    EXPECT_EQ(textes(0), "5 + |0|00,00% |Jamais sorti |4|04  (01)|0|00  (01)|");
    for (std::size_t k = 0; k < NbCategoriesNC; ++k) {
        const Cellule& sortis = tableau[k].cellules[0];
        EXPECT_EQ(std::get<RangTable>(sortis.cible.value()).indice, static_cast<int>(k));
        EXPECT_EQ(sortis.cle, 11 - static_cast<int>(k));
    }
    EXPECT_EQ(StatsCategories(QuatreTirages(), 2, 2, ticket)[3].cellules[2].texte, "100,00% ");
    EXPECT_EQ(LibelleTicket(ticket), "[5 + 2C] -->  N: 07 20 33 41 48   C: 01 03 ");
}

TEST(ListesNC, UneLigneParChoixDeChances) {
    const std::vector<int> numeros = {3, 14, 25, 31, 44, 45, 46, 47, 49};
    for (const TypeGrille& type : TypesVendus) {
        const Ensemble choisis =
            Ensemble::de(std::span(numeros).first(static_cast<size_t>(type.n)));
        std::vector<LigneNC> liste{{choisis, {1}}};
        AfficherListeNE(liste, choisis, type);
        ASSERT_EQ(std::ssize(liste), Combinaisons(10, type.c));
        for (std::size_t i = 0; i < liste.size(); ++i) {
            EXPECT_EQ(liste[i].type(), type);
            EXPECT_EQ(liste[i].numeros, choisis);
            if (i == 0) continue;
            EXPECT_LT(liste[i - 1].chances.valeurs(), liste[i].chances.valeurs());
        }
        AfficherListeNEAppend(liste, choisis, type);
        EXPECT_EQ(std::ssize(liste), 2 * Combinaisons(10, type.c));
        AfficherListeNE(liste, choisis, {type.n == 9 ? 5 : type.n + 1, 1});
        EXPECT_TRUE(liste.empty());
    }
    std::vector<LigneNC> liste;
    AfficherListeNE(liste, {3, 14, 25, 31, 44}, {5, 2});
    EXPECT_EQ(TexteLigneNC(liste[9]), "N: 03 14 25 31 44   C: 02 03 ");
}

/// Sets of five numbers, and of some chances.
std::vector<LigneNC> lignesAuHasard(std::mt19937& hasard, int combien) {
    std::vector<LigneNC> liste;
    GenerateurHasard generateur(static_cast<std::uint32_t>(hasard()));
    for (int i = 0; i < combien; ++i) {
        const Grille g = TirerGrille(generateur, TypesVendus[hasard() % TypesVendus.size()]);
        liste.push_back({g.numeros.ensemble(), g.chances.ensemble()});
    }
    return liste;
}

/// Those of no draw of the interval in a category below `fin`.
std::vector<LigneNC> jamais(std::vector<LigneNC> liste, const Base& base, int inf, int sup,
                            std::size_t fin) {
    std::erase_if(liste, [&](const LigneNC& ligne) {
        for (int d = inf - 1; d < sup; ++d)
            for (std::size_t k = 0; k < fin; ++k)
                if (estDe(base, d, ligne, k)) return true;
        return false;
    });
    return liste;
}

TEST(ListesNC, FiltresParDefinition) {
    std::mt19937 hasard(8);
    Base base = BaseAleatoire(hasard, 60, 49);
    const std::vector<LigneNC> toutes = lignesAuHasard(hasard, 400);
    for (const auto& [inf, sup, anciens] :
         {std::tuple{11, 20, 0}, {30, 30, 0}, {1, 60, 0}, {11, 20, 15}, {3, 9, 15}}) {
        base.AnciensTirages = anciens > 0;
        base.NbAnciensTirages = anciens;
        const SortiesNC sorties(base, inf, sup);
        std::vector<LigneNC> filtre0 = toutes, sansSorties = toutes;
        FiltrerGagnantes(filtre0, sorties);
        SupprSorties(sansSorties, sorties);
        EXPECT_EQ(filtre0, jamais(toutes, base, inf, sup, 8));
        EXPECT_EQ(sansSorties, jamais(toutes, base, inf, sup, 10));
        if (sup != 20) continue;
        EXPECT_TRUE(filtre0.size() > sansSorties.size() && !sansSorties.empty());
    }
    std::vector<LigneNC> chances = {{{1}, {1, 2}}, {{2}, {2, 3}}, {{3}, {2}}};
    FiltrerChances(chances, {2, 3});
    EXPECT_EQ(chances, (std::vector<LigneNC>{{{2}, {2, 3}}, {{3}, {2}}}));
    FiltrerChances(chances, {});
    EXPECT_TRUE(chances.empty());
}

TEST(ListesNC, JamaisSortiesEtArret) {
    std::mt19937 hasard(9);
    const Base base = BaseAleatoire(hasard, 40, 49);
    std::vector<LigneNC> combinaisons;
    GenerateurHasard generateur(3);
    for (int i = 0; i < 30000; ++i)
        combinaisons.push_back(
            {TirerGrille(generateur, {5, 10}).numeros.ensemble(), {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}});
    const SortiesNC sorties(base, 5, 12);
    Progres progres;
    const Trouvees trouvees =
        JamaisSorties(sorties, combinaisons.size(),
                      [&](std::size_t i) { return combinaisons[i].numeros; }, {{}, &progres});
    EXPECT_EQ(trouvees.lignes, jamais(combinaisons, base, 5, 12, 8));
    EXPECT_TRUE(!trouvees.lignes.empty() && !trouvees.arretee && progres.fait() == 100);

    // Stopped in the middle: what was found so far, and not much more work.
    std::stop_source arret;
    Progres avant;
    std::size_t vues = 0;
    const Trouvees debut = JamaisSorties(sorties, combinaisons.size(),
                                         [&](std::size_t i) {
                                             if (i == 9000) arret.request_stop();
                                             EXPECT_EQ(i, vues++);
                                             return combinaisons[i].numeros;
                                         },
                                         {arret.get_token(), &avant});
    EXPECT_TRUE(debut.arretee && vues > 9000 && vues < 15000);
    EXPECT_TRUE(avant.fait() > 0 && avant.fait() < 50);
    combinaisons.resize(vues);
    EXPECT_EQ(debut.lignes, jamais(combinaisons, base, 5, 12, 8));
}

TEST(ListesNC, FichiersRelus) {
    const Dossier dossier;
    std::mt19937 hasard(2);
    for (const TypeGrille type : {TypeGrille{5, 5}, {9, 1}, {6, 10}}) {
        std::vector<LigneNC> liste;
        AfficherListeNE(liste, Ensemble::de(std::views::iota(49 - type.n + 1, 50)), type);
        ASSERT_TRUE(EnregistrerListeNC(liste, dossier / "l.dat"));
        const auto relue = ChargerListeNC(dossier / "l.dat");
        ASSERT_TRUE(relue) << relue.erreur();
        EXPECT_EQ(*relue, liste);
    }
    const auto lue = LireListeNC(
        "\xEF\xBB\xBFN: 03 14 25 31 44   C: 02 07\r\nN: 01 02 03 04 05   C: 09 10 \r\n\r\n");
    ASSERT_TRUE(lue) << lue.erreur();
    EXPECT_EQ(TexteListeNC(*lue), "N: 03 14 25 31 44   C: 02 07 \nN: 01 02 03 04 05   C: 09 10 \n");
}

TEST(ListesNC, FichiersRefuses) {
    const std::string bonne = "N: 03 14 25 31 44   C: 02 07 \n";
    const struct {
        std::string texte;
        const char* dit;
    } cas[] = {
        {"", "la ligne 1 manque"},
        {" \r\n\n", "la ligne 1 manque"},
        {bonne + "\n" + bonne, "ligne 2, «  » n'a pas la forme"},
        {bonne + "03 14 25 31 44 02 07\n", "ligne 2, « 03 14 25 31 44 02 07 » n'a pas la forme"},
        {"N: 03 14 25 31 44\n", "ligne 1, « N: 03 14 25 31 44 » n'a pas la forme"},
        {"N: 03 14 25 31 44   C: 02 C: 07 \n", "n'a pas la forme"},
        {"N: 03 14 25 31 4   C: 02 07 \n", "n'a pas la forme"},
        {"N: 03 14 25 31 4x   C: 02 07 \n", "n'a pas la forme"},
        {bonne + bonne + "N: 03 14 25 31 50   C: 02 07 \n", "ligne 3, le numéro 50 n'existe pas"},
        {"N: 00 14 25 31 44   C: 02 07 \n", "le numéro 0 n'existe pas"},
        {"N: 03 14 25 31 44   C: 02 11 \n", "la chance 11 n'existe pas"},
        {"N: 03 14 14 31 44   C: 02 07 \n", "le numéro 14 n'est pas à sa place"},
        {"N: 03 14 25 31 44   C: 07 02 \n", "la chance 2 n'est pas à sa place"},
        {"N: 03 14 25 31   C: 02 07 \n", "ligne 1, une grille 04 + 02C n'est pas vendue"},
        {"N: 03 14 25 31 44   C: \n", "une grille 05 + 00C n'est pas vendue"},
        {bonne + "N: 03 14 25 31 44   C: 02 \n",
         "ligne 2, une grille 05 + 01C dans une liste de 05 + 02C"},
        {bonne + "N: 03 14 25 31 44 45   C: 02 07 \n",
         "ligne 2, une grille 06 + 02C dans une liste de 05 + 02C"},
    };
    const Dossier dossier;
    for (const auto& c : cas) {
        poser(dossier / "l.dat", c.texte);
        const auto lue = ChargerListeNC(dossier / "l.dat");
        ASSERT_FALSE(lue) << c.texte;
        EXPECT_NE(lue.erreur().find(c.dit), std::string::npos) << lue.erreur();
        EXPECT_NE(lue.erreur().find("l.dat"), std::string::npos);
    }
}

/// Ticks them all; the phrase of the first refusal.
std::string cocher(CombinaisonsNC& nc, Ensemble numeros, Ensemble chances) {
    for (const auto& [genre, valeurs] :
         {std::pair{GenreStats::Numeros, numeros}, {GenreStats::Chances, chances}})
        for (const int valeur : valeurs)
            if (const auto refus = nc.basculer(genre, valeur)) return refus->phrase;
    return {};
}

TEST(CombinaisonsNC, Cocher) {
    const struct {
        Ensemble numeros, chances;
        GenreStats genre;
        const char* dit;
    } cas[] = {
        {{1, 2, 3, 4, 5, 6, 7},
         {1, 2, 3, 4, 5, 6, 7, 8},
         GenreStats::Chances,
         "Vous avez coché 7 numéros, vous ne pouvez pas cocher plus de 8 chances."},
        {{1, 2, 3, 4, 5, 6},
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 10},
         GenreStats::Numeros,
         "Vous avez coché 10 chances, vous ne pouvez pas cocher plus de 6 numéros."},
        {{1, 2, 3, 4, 5, 6, 7, 8, 9},
         {1},
         GenreStats::Numeros,
         "Vous ne pouvez pas cocher plus de 9 numéros."},
    };
    for (const auto& c : cas) {
        CombinaisonsNC nc;
        EXPECT_EQ(cocher(nc, c.numeros, c.chances), "");
        const auto refus = nc.basculer(c.genre, c.genre == GenreStats::Numeros ? 49 : 10);
        ASSERT_TRUE(refus) << c.dit;
        EXPECT_EQ(refus->phrase, c.dit);
        EXPECT_TRUE(refus->titre == Refus::Titre::Attention);
        EXPECT_EQ(nc.SelectionNC, (LigneNC{c.numeros, c.chances}));
        EXPECT_FALSE(nc.basculer(GenreStats::Numeros, 1));
        EXPECT_EQ(nc.NbNumerosNC(), c.numeros.taille() - 1);
        EXPECT_EQ(nc.NbChancesNC(), c.chances.taille());
    }
}

TEST(CombinaisonsNC, DeLaSelectionALaListe) {
    CombinaisonsNC nc;
    cocher(nc, {44, 3, 14, 25}, {7});
    EXPECT_EQ(nc.valider().value().phrase, "Votre sélection n'est pas complète...");
    EXPECT_TRUE(nc.montree.vide() && nc.ListeNC.empty() && !nc.grille());
    nc.choisirType({5, 2});
    EXPECT_TRUE(nc.ListeNC.empty());
    cocher(nc, {31}, {2});
    EXPECT_EQ(nc.grille().value(), FaireGrille({3, 14, 25, 31, 44}, {2, 7}, false));
    EXPECT_FALSE(nc.valider());
    EXPECT_TRUE(nc.TypeNC == (TypeGrille{5, 2}) && nc.ListeNC.size() == 45);
    // A line chosen is the ticket on show, and the one to add.
    nc.choisirLigne(9);
    EXPECT_EQ(nc.grille().value(), FaireGrille({3, 14, 25, 31, 44}, {2, 3}, false));
    // What is ticked afterwards waits for its validation.
    nc.decocherTout();
    cocher(nc, {1, 2, 3, 4, 5, 6}, {2, 3, 4});
    nc.filtrerChances();
    EXPECT_TRUE(nc.ListeNC.size() == 3 && !nc.ligne && nc.TypeNC == (TypeGrille{5, 2}));
    EXPECT_EQ(nc.montree, (LigneNC{{3, 14, 25, 31, 44}, {2, 3}}));
    nc.choisirType({5, 10});
    EXPECT_EQ(TexteListeNC(nc.ListeNC), "N: 03 14 25 31 44   C: 01 02 03 04 05 06 07 08 09 10 \n");
    nc.choisirType({6, 3});
    EXPECT_TRUE(nc.ListeNC.empty() && nc.TypeNC == (TypeGrille{6, 3}));
    EXPECT_FALSE(nc.valider());
    EXPECT_EQ(nc.ListeNC.size(), 120U);
    // Filters over draws; a list from elsewhere, cut short or not.
    nc.choisirLigne(0);
    nc.filtrerSorties(SortiesNC(QuatreTirages(), 2, 2));
    EXPECT_TRUE(nc.ListeNC.size() == 120 && !nc.ligne);
    nc.filtrerGagnantes(
        SortiesNC(FaireBase({{{1, 2, 33, 41, 48}, 0, 0, 0, 20221003, 1, 0}}), 1, 1));
    EXPECT_TRUE(nc.ListeNC.empty());
    nc.prendre({5, 10}, {{{1, 2, 3, 4, 5}, {1}}}, true);
    EXPECT_TRUE(nc.partielle && nc.TypeNC == (TypeGrille{5, 10}) && nc.ListeNC.size() == 1);
    nc.choisirType({6, 1});
    EXPECT_TRUE(!nc.partielle && nc.ListeNC.size() == 10);
    // At random, in place of what was ticked.
    GenerateurHasard hasard(4), meme(4);
    nc.tirer(hasard, {7, 8});
    const Grille tiree = TirerGrille(meme, {7, 8});
    EXPECT_EQ(nc.SelectionNC, (LigneNC{tiree.numeros.ensemble(), tiree.chances.ensemble()}));
}

}  // namespace
}  // namespace norvane
