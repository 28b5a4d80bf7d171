// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "Dossier.h"
#include "slips/Marques.h"
#include "slips/PrixBulletins.h"

namespace norvane {
namespace {

using enum BlocBulletin;

const std::string Fichier = lire(NORVANE_DATA "/bulletin.ini");

std::string Remplacer(std::string texte, std::string_view avant, std::string_view apres) {
    const auto place = texte.find(avant);
    EXPECT_NE(place, std::string::npos) << avant;
    return texte.replace(place, avant.size(), apres);
}

/// Thirteen grids: two full slips and one more; the eighth with the option.
std::vector<Grille> Treize() {
    std::vector<Grille> grilles(13, FaireGrille({1, 5, 10, 44, 49}, {6}, false));
    grilles[7] = FaireGrille({2, 3, 4, 5, 6, 7}, {1, 10}, true);
    return grilles;
}

TEST(Geometrie, LeFichierEstCelleDuProgramme) {
    const auto lue = LireGeometrie(Fichier, "bulletin.ini");
    ASSERT_TRUE(lue) << lue.erreur();
    EXPECT_EQ(*lue, GeometrieIntegree);
    std::string autre =
        Remplacer(Remplacer(Fichier, "cote=2.6", "cote = 2,5 "), "[JOURS]", "[ JOURS ]");
    autre = Remplacer(autre, "origine=10;132", "origine=10,5 ; 131\r");
    const auto lueAutre = LireGeometrie("\xEF\xBB\xBF" + autre, "bulletin.ini");
    ASSERT_TRUE(lueAutre) << lueAutre.erreur();
    EXPECT_EQ(lueAutre->grille.cote, 2.5);
    EXPECT_EQ(lueAutre->jours.origine, (Place{10.5, 131}));
}

TEST(Geometrie, ToutesLesCasesTiennentSansSeToucher) {
    const auto cases = GeometrieIntegree.cases();
    ASSERT_EQ(cases.size(), 6U * (49 + 10 + 1) + 4 + 3 + 3 + 3);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_FALSE(HorsPapier(cases[i], GeometrieIntegree));
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_GT(std::max(std::abs(cases[i].place.x - cases[j].place.x),
                               std::abs(cases[i].place.y - cases[j].place.y)),
                      2.6)
                << LibelleCase(cases[i].bloc, cases[i].valeur);
    }
    EXPECT_EQ(LibelleCase(Joker2, 3), "JOKER+ 2, + ou -1");
    EXPECT_EQ(LibelleCase(Joker1, 2), "JOKER+ 1, 2€");
    EXPECT_EQ(LibelleCase(Jour, 3), "samedi");
}

TEST(Geometrie, RefusDUnFichierAbime) {
    for (std::size_t n = 0; n < Fichier.size() - 1; n += n < Fichier.size() - 40 ? 37 : 1)
        ASSERT_FALSE(LireGeometrie(Fichier.substr(0, n), "b")) << n;
    const struct {
        const char* avant;
        const char* apres;
        const char* dit;
    } cas[] = {
        {"[JOURS]", "[AUTRE]", "il manque [JOURS] origine"},
        {"cote=2.6", "", "il manque [CASE] cote"},
        {"cote=2.6", "cote=deux", "ligne 14, [CASE] cote : « deux » n'est pas une longueur"},
        {"cote=2.6", "cote=2.6mm", "« 2.6mm »"},
        {"cote=2.6", "cote=inf", "« inf »"},
        {"cote=2.6", "cote=0", "cote doit être plus grand que 0"},
        {"cote=2.6", "cote", "la ligne 14 n'est ni une section"},
        {"pas=3.8;3.7", "pas=3.8;0", "[NUMEROS] pas doit être au moins"},
        {"pas=3.8;3.7", "pas=3.8", "une paire x;y"},
        {"pas=3.8\n", "pas=0\n", "[CHANCES] pas doit être au moins"},
        {"pas=15;0", "pas=0;0", "[JOURS] pas doit être au moins"},
        {"pas=15;0", "pas=15;x", "« 15;x »"},
        {"pas=15;0", "pas=-15;0", "« -15;0 »"},
        {"grille6=54.5;68", "grille6=60;68", "la case chance 5 de la grille 6 est hors du papier"},
        {"hauteur=190.5", "hauteur=150", "la case JOKER+ 1, 1€ est hors du papier"},
    };
    for (const auto& [avant, apres, dit] : cas) {
        const auto lue = LireGeometrie(Remplacer(Fichier, avant, apres), "b.ini");
        ASSERT_FALSE(lue) << apres;
        EXPECT_TRUE(lue.erreur().starts_with("« b.ini » : ")) << lue.erreur();
        EXPECT_NE(lue.erreur().find(dit), std::string::npos) << lue.erreur();
    }
}

TEST(Geometrie, DuDossierPuisDeSesDonnees) {
    const Dossier dossier;
    const auto charger = [&] { return ChargerGeometrie(dossier.chemin()); };
    EXPECT_EQ(charger().geometrie, GeometrieIntegree);
    std::filesystem::create_directory(dossier / "data");
    poser(dossier / "data/bulletin.ini", Remplacer(Fichier, "cote=2.6", "cote=2.4"));
    EXPECT_EQ(charger().geometrie.grille.cote, 2.4);
    poser(dossier / "bulletin.ini", Remplacer(Fichier, "cote=2.6", "cote=2.3"));
    EXPECT_EQ(charger().geometrie.grille.cote, 2.3);
    EXPECT_EQ(charger().avertissement, "");
    poser(dossier / "bulletin.ini", "cote=");
    EXPECT_EQ(charger().geometrie, GeometrieIntegree);
    EXPECT_NE(charger().avertissement.find("La géométrie intégrée est employée"),
              std::string::npos);
}

TEST(Marques, ApercuAuPixel) {
    const struct {
        int marque;
        BlocBulletin bloc;
        int valeur, gauche, haut, droite, bas;
    } cas[] = {// Box of 26 at (33, 55): margins 9.75, 8.9375, 8.125, 6.5; a half is not rounded up.
               {1, Numero, 1, 43, 65, 49, 71},      {2, Numero, 1, 42, 64, 50, 72},
               {3, Numero, 1, 41, 63, 51, 73},      {4, Numero, 1, 39, 61, 52, 74},
               {4, Numero, 5, 191, 61, 204, 74},    {4, Numero, 10, 191, 98, 204, 111},
               {4, Numero, 49, 153, 394, 166, 407}, {4, Chance, 1, 58, 465, 71, 478},
               {4, Chance, 6, 20, 502, 33, 515},    {1, Chance, 10, 176, 506, 182, 512},
               {9, Chance, 5, 210, 465, 223, 478}};
    for (const auto& c : cas) {
        Grille grille;
        if (c.bloc == Numero)
            grille.numeros.cocher(c.valeur);
        else
            grille.chances.cocher(c.valeur);
        EXPECT_EQ(
            MarquesApercu(grille, c.marque),
            (std::vector<MarqueApercu>{{c.bloc, c.valeur, c.gauche, c.haut, c.droite, c.bas}}))
            << c.marque << ' ' << c.valeur;
    }
}

// Each mark against the table read by hand: its box, its part of the box, the offsets.
TEST(Marques, SurLePapierParTaille) {
    const auto grilles = Treize();
    OptionsBulletin options{3, 1, 2, -1, 1, 1};
    for (int taille = 1; taille <= MarqueMax; ++taille)
        for (const auto& [haut, gauche] : {std::pair{0.0, 0.0}, {1.5, -0.7}}) {
            const MiseEnPlace mise{GeometrieIntegree, taille, haut, gauche};
            const double b =
                std::array{0.25, 0.3125, 0.375, 0.5}[static_cast<std::size_t>(taille - 1)];
            const auto marques = MarquesBulletin(mise, grilles, options, 2);
            ASSERT_EQ(marques.size(), 5 * 6U + 9 + 6);
            const auto verifier = [&](std::size_t i, int grille, BlocBulletin bloc, int valeur,
                                      double x, double y) {
                const CaseBulletin& m = marques.at(i);
                EXPECT_EQ(std::tuple(m.grille, m.bloc, m.valeur), std::tuple(grille, bloc, valeur));
                EXPECT_NEAR(m.cote, b * 2.6, 1e-9);
                EXPECT_NEAR(m.place.x + m.cote / 2, x + 1.3 + gauche, 1e-9) << i;
                EXPECT_NEAR(m.place.y + m.cote / 2, y + 1.3 + haut, 1e-9) << i;
            };
            verifier(0, 1, Numero, 1, 3.5 + 3.3, 10 + 5.5);
            verifier(3, 1, Numero, 44, 3.5 + 3.3 + 3 * 3.8, 10 + 5.5 + 8 * 3.7);
            verifier(5, 1, Chance, 6, 3.5 + 1.4, 10 + 49.6);
            verifier(6, 2, Numero, 2, 29 + 3.3 + 3.8, 10 + 5.5);
            verifier(12, 2, Chance, 1, 29 + 5.2, 10 + 45.9);
            verifier(13, 2, Chance, 10, 29 + 1.4 + 4 * 3.8, 10 + 49.6);
            verifier(14, 2, Second, 1, 29 + 18.5, 10 + 1.6);
            verifier(37, 6, Numero, 49, 54.5 + 3.3 + 3 * 3.8, 68 + 5.5 + 9 * 3.7);
            verifier(39, 0, Semaines, 3, 20, 144);
            verifier(40, 0, Joker1, 2, 20, 156);
            verifier(41, 0, Joker2, 1, 48, 156);
            verifier(42, 0, Joker2, 3, 68, 156);
            verifier(43, 0, Jour, 2, 25, 132);
            verifier(44, 0, Jour, 3, 40, 132);
        }
    EXPECT_EQ(MarquesBulletin({}, grilles, {}, 3).size(), 6U);
    EXPECT_TRUE(MarquesBulletin({}, grilles, {}, 4).empty());
}

TEST(Marques, CellesQuiTomberaientSontNommees) {
    const auto grilles = Treize();
    OptionsBulletins options;
    MiseEnPlace mise;
    const auto dit = [&](int du, int au) {
        return AvertissementHorsPapier(mise, grilles, options, du, au);
    };
    EXPECT_EQ(dit(1, 3), "");
    // The mark of Chance 6 begins at 3.5 + 1.4 + 0.65 = 5.55.
    mise.DecalageImprimanteBordGauche = -5.55;
    EXPECT_EQ(dit(1, 3), "");
    mise.DecalageImprimanteBordGauche = -5.6;
    EXPECT_EQ(dit(3, 3),
              "1 marque tomberait hors du papier (bulletin 3, grille 1, chance 6) : "
              "réduisez les décalages de l'imprimante.");
    EXPECT_EQ(dit(1, 2),
              "4 marques tomberaient hors du papier (bulletin 1, grille 1, chance 6 ; "
              "bulletin 1, grille 4, chance 6 ; bulletin 2, grille 1, chance 6 ; …) : "
              "réduisez les décalages de l'imprimante.");
    mise.DecalageImprimanteBordGauche = 0;
    mise.DecalageImprimanteBordHaut = 33;
    options.a(3).Joker1 = 0;
    EXPECT_NE(dit(3, 3).find("(bulletin 3, JOKER+ 1, 1€)"), std::string::npos) << dit(3, 3);
}

TEST(Bulletins, CasesDesOptions) {
    OptionsBulletin o;
    CocherSemaines(o, 3, true);
    CocherSemaines(o, 0, true);
    EXPECT_EQ(o.Semaines, 2);
    CocherSemaines(o, 3, false);
    EXPECT_EQ(o.Semaines, 2);
    CocherSemaines(o, 0, false);
    EXPECT_EQ(o.Semaines, SansOption);

    std::int32_t champ = SansOption;
    const struct {
        int item;
        bool coche;
        int attendu;
    } pas[] = {{2, false, -1}, {0, true, 0}, {1, true, 1},  {2, true, 3},  {2, true, 3},
               {0, false, 3},  {0, true, 0}, {2, true, 2},  {2, false, 0}, {2, true, 2},
               {0, false, -1}, {1, true, 1}, {1, false, -1}};
    for (const auto& [item, coche, attendu] : pas) {
        EXPECT_TRUE(CocherJoker(champ, item, coche));
        EXPECT_EQ(champ, attendu) << item << coche;
    }
    EXPECT_EQ(CocherJoker(champ, 2, true).erreur(), "Cochez d'abord 1€ ou 2€...");
    EXPECT_EQ(champ, SansOption);
}

TEST(Bulletins, PourTous) {
    EXPECT_EQ(NbBulletins(0), 0);
    EXPECT_EQ(NbBulletins(6), 1);
    EXPECT_EQ(NbBulletins(9999), 1667);
    auto grilles = Treize();
    OptionsBulletins options;
    options.a(2) = {4, 0, 3, 1, -1, 1};
    options.a(1).Lundi = 1;
    SemainesPourTous(options, 2, 3);
    EXPECT_EQ(options.bulletins,
              (std::vector<OptionsBulletin>{{4, -1, -1, 1, -1, -1}, {4, 0, 3, 1, -1, 1}, {4}}));
    OptionsPourTous(options, grilles, 2);
    EXPECT_EQ(options.bulletins, std::vector<OptionsBulletin>(3, {4, 0, 3, 1, -1, 1}));
    for (std::size_t g = 0; g < grilles.size(); ++g)
        EXPECT_EQ(ParticipeAu2ndTirage(grilles[g]), g == 1 || g == 7) << g;
    // The last slip has one grid: the other places stay as they are.
    Cocher2ndTirage(grilles[12], true);
    EXPECT_EQ(grilles[12].mise, 3.0);
    OptionsPourTous(options, grilles, 3);
    for (std::size_t g = 0; g < grilles.size(); ++g)
        EXPECT_EQ(ParticipeAu2ndTirage(grilles[g]), g % 6 == 0 || g == 1 || g == 7) << g;
}

TEST(Bulletins, Prix) {
    auto grilles = Treize();
    grilles[12] = {1.0, {1, 2, 3}, {}};
    OptionsBulletins options;
    options.a(2) = {4, 0, 3, 1, -1, 1};
    const auto lignes = PrixBulletins(grilles, options, 1, 3);
    ASSERT_EQ(lignes.size(), 3U);
    EXPECT_EQ(lignes[0], (PrixBulletin{1, 6, 0, 0, 13.2, 0, 0, 1, 1, 13.2}));
    // Five simple grids and one of 6 + 2 (26.4, and 6 x 0.8); Joker+ 1 and 4; two days, four weeks.
    EXPECT_EQ(lignes[1], (PrixBulletin{2, 6, 0, 1, 37.4, 4.8, 5, 2, 4, 377.6}));
    EXPECT_EQ(lignes[2], (PrixBulletin{3, 0, 1, 0, 0, 0, 0, 1, 1, 0}));
    EXPECT_EQ(PrixTotal(lignes), 390.8);
    EXPECT_EQ(PrixBulletins(grilles, options, 2, 2), std::vector{lignes[1]});
}

TEST(Bulletins, FichierDesOptions) {
    const Dossier dossier;
    const auto fichier = FichierOptions(dossier / "mes grilles.grl");
    EXPECT_EQ(fichier.filename(), "mes grilles.bul");
    OptionsBulletins options;
    EXPECT_EQ(*LireOptions(fichier), options);
    options.a(2) = {5, 0, 3, 1, -1, 1};
    options.a(4);
    ASSERT_TRUE(EcrireOptions(options, fichier));
    EXPECT_EQ(lire(fichier), "2\n-1 -1 -1 -1 -1 -1\n5 0 3 1 -1 1\n");
    options.bulletins.resize(2);
    EXPECT_EQ(*LireOptions(fichier), options);
    poser(fichier,
          "\xEF\xBB\xBF"
          "1 \r\n2\t-1 -1 -1 -1 -1\r\n\r\n");
    EXPECT_EQ(LireOptions(fichier)->de(1).Semaines, 2);
    const std::pair<const char*, const char*> cas[] = {
        {"", "la ligne 1"},
        {"un\n", "la ligne 1 (« un »)"},
        {"2001\n", "la ligne 1"},
        {"-1\n", "la ligne 1"},
        {"1 1\n", "la ligne 1"},
        {"1\n", "1 bulletins sont annoncés, et le fichier en tient 0"},
        {"0\n2 0 0 1 1 1\n", "le fichier en tient plus"},
        {"2\n2 0 0 1 1 1\n2 0 0 1 1", "la ligne 3"},
        {"1\n2 0 0 1 1 1 1\n", "la ligne 2"},
        {"1\n2 0 0 1 1 x\n", "la ligne 2"},
        {"1\n2 0 0 1 1-1\n", "la ligne 2"},
        {"1\n1 0 0 1 1 1\n", "la ligne 2"},
        {"1\n6 0 0 1 1 1\n", "la ligne 2"},
        {"1\n2 4 0 1 1 1\n", "la ligne 2"},
        {"1\n2 0 -2 1 1 1\n", "la ligne 2"},
        {"1\n2 0 0 1 0 1\n", "la ligne 2"},
        {"1\n2 0 0 1 1 2\n", "la ligne 2"},
    };
    for (const auto& [contenu, dit] : cas) {
        poser(fichier, contenu);
        const auto lues = LireOptions(fichier);
        ASSERT_FALSE(lues) << contenu;
        EXPECT_NE(lues.erreur().find(dit), std::string::npos) << lues.erreur();
    }
}

}  // namespace
}  // namespace norvane
