// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "Dossier.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {
namespace {

const std::vector<Grille> DeuxGrilles = {{2.2, {3, 14, 25, 31, 44}, {7}},
                                         {31.2, {1, 2, 3, 4, 5, 6}, {4, 10}}};
const std::string TexteDeuxGrilles = "2\n2.2 5 3 14 25 31 44 1 7\n31.2 6 1 2 3 4 5 6 2 4 10\n";
const LigneJoker Joker = {{1, 2, 3, 4, 5, 6, 7}, 3};
const std::string TexteUnJoker = "1 2 3 4 5 6 7 3 \n";
const std::string TexteUnRecu = TexteDeuxGrilles + "1\n" + TexteUnJoker;

TEST(FichiersGrilles, TextesALaLettreEtRetour) {
    EXPECT_EQ(TexteGrilles(DeuxGrilles), TexteDeuxGrilles);
    EXPECT_EQ(TexteRecu({DeuxGrilles, {Joker}}), TexteUnRecu);
    EXPECT_EQ(TexteGrilles({}), "0\n");
    EXPECT_EQ(TexteRecu({}), "0\n0\n");
    EXPECT_EQ(*LireGrilles(TexteDeuxGrilles), DeuxGrilles);
    EXPECT_TRUE(LireGrilles("0\n")->empty());
    const auto recu = LireRecu(TexteUnRecu);
    EXPECT_EQ(recu->grilles, DeuxGrilles);
    EXPECT_EQ(recu->jokers, std::vector{Joker});
    // Any stake of the price list keeps telling whether the option was taken.
    const std::vector<int> valeurs = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    for (const auto [n, c] : TypesVendus)
        for (const bool option : {false, true}) {
            const std::vector<Grille> grilles = {
                FaireGrille(std::span(valeurs).first(static_cast<std::size_t>(n)),
                            std::span(valeurs).first(static_cast<std::size_t>(c)), option)};
            EXPECT_EQ(*LireGrilles(TexteGrilles(grilles) + '\n'), grilles);
            EXPECT_EQ(ParticipeAu2ndTirage(LireGrilles(TexteGrilles(grilles))->front()), option);
        }
}

TEST(FichiersGrilles, ToleranceDeLecture) {
    for (const char* texte :
         {"\xEF\xBB\xBF 2\r\n2.2 5 3 14 25 31 44 1 7\r\n31.2 6 1 2 3 4 5 6 2 4 10",
          "2 2,20 5.0 3 14 25 3.1e1 44 1 7\t31,2\v6\f1 2 3 4 5 6 2 4 10\n\n \n"})
        EXPECT_EQ(*LireGrilles(texte), DeuxGrilles) << texte;
    EXPECT_EQ(LireRecu("0\n1\n1.9 2 3 4 5 6 7.5 3.2\n")->jokers, std::vector{Joker});
    // What nobody sells, but a hand or the safety copy of a grid in the making may hold.
    for (const Grille& grille :
         {Grille{0, {}, {}}, {1, {1, 2, 3, 4}, {}}, {5, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {2}}})
        EXPECT_EQ(*LireGrilles(TexteGrilles({&grille, 1})), std::vector<Grille>{grille});
}

/// What the reader says; nothing when it takes the text.
template <typename Lu>
std::string Refus(const Lu& lu) {
    return lu ? "" : lu.erreur();
}

TEST(FichiersGrilles, MalFormeRefuseAvecSaPlace) {
    const std::pair<const char*, const char*> listes[] = {
        {"", "à la ligne 1 : il manque le nombre de grilles"},
        {"deux\n", "le nombre de grilles est un nombre, pas « deux »"},
        {"4000000000\n2.2 5", "le nombre de grilles va de 0 à 9999, pas « 4000000000 »"},
        {"-1\n", "pas « -1 »"},
        {"1.5\n", "est un nombre entier"},
        {"9999\n", "ligne 2, grille 1 : il manque la mise"},
        {"1\nnan 5 1 2 3 4 5 1 7\n", "ligne 2, grille 1 : la mise est un nombre, pas « nan »"},
        {"1\n-2.2 5 1 2 3 4 5 1 7\n", "la mise va de 0 à 1000000000, pas « -2.2 »"},
        {"1\n2.2 4000000000 1 2 3 4 5 1 7\n", "le nombre de numéros va de 0 à 49"},
        {"1\n2.2 5 1 2 3 4 50 1 7\n", "un numéro va de 1 à 49, pas « 50 »"},
        {"2\n2.2 5 1 2 3 4 5 1 7\n2.2 5 1 2 3 2 5 1 7\n",
         "ligne 3, grille 2 : un numéro (2) est répété"},
        {"1\n2,2,0 5 1 2 3 4 5 1 7\n", "la mise est un nombre, pas « 2,2,0 »"},
        {"1\n2.2 5 1 2 3 4,0 5 1 7\n", "un numéro est un nombre, pas « 4,0 »"},
        {"1\n2.2 5 1 2 3 4 5 2 7 7\n", "une chance (7) est répétée"},
        {"1\n2.2 5 1 2 3 4 5 1 11\n", "une chance va de 1 à 10"},
        {"1\n2.2 5 1 2 3 4 5 1 7\n0\n", "à la ligne 3 : « 0 » est de trop à la fin"},
    };
    const std::pair<const char*, const char*> recus[] = {
        {"0\n4000000000\n", "le nombre de Joker+ va de"},
        {"0\n2000000000\n1 2", "ligne 3, Joker+ 1 : il manque un chiffre"},
        {"0\n1\n1 2 3 4 5 6 10 1\n", "un chiffre va de 0 à 9"},
        {"0\n1\n1 2 3 4 5 6 7 5\n", "le code de mise va de 1 à 4"},
        {"0\n", "il manque le nombre de Joker+"}};
    for (const auto& [texte, dit] : listes)
        EXPECT_NE(Refus(LireGrilles(texte)).find(dit), std::string::npos) << texte;
    for (const auto& [texte, dit] : recus)
        EXPECT_NE(Refus(LireRecu(texte)).find(dit), std::string::npos) << texte;
}

TEST(FichiersGrilles, CoupeNImporteOuRienDeFauxNEstLu) {
    // A list is whole without its last line end, so that of a last chance of 10 a 1 is whole too.
    const std::size_t chance = TexteDeuxGrilles.rfind(' ') + 1;
    for (std::size_t n = 0; n < chance; ++n)
        EXPECT_FALSE(LireGrilles(std::string(TexteDeuxGrilles, 0, n))) << n;
    EXPECT_EQ(LireGrilles(std::string(TexteDeuxGrilles, 0, chance + 1))->back().chances,
              ChancesCochees({4, 1}));
    EXPECT_EQ(*LireGrilles(std::string(TexteDeuxGrilles, 0, chance + 2)), DeuxGrilles);
    for (std::size_t n = 0; n < TexteUnRecu.size(); ++n) {
        const auto lu = LireRecu(std::string(TexteUnRecu, 0, n));
        EXPECT_TRUE(!lu || lu->jokers == std::vector{Joker}) << n;
    }
}

TEST(FichiersGrilles, RecusGardesParDateRemplacesOuJoints) {
    const Dossier dossier;
    const auto fichier = FichierRecu(dossier.chemin(), 20230125);
    EXPECT_EQ(fichier, dossier.chemin() / "Grilles&Reçus" / "20230125.rdj");
    EXPECT_EQ(DateRecu(fichier), 20230125);
    for (const char* nom : {"recu.rdj", "20230230.rdj", "2023012.rdj", "20230125b.rdj"})
        EXPECT_FALSE(DateRecu(nom)) << nom;

    const RecuDeJeu trois = {{3, DeuxGrilles[0]}, {Joker}};
    ASSERT_TRUE(EnregistrerRecu(trois, dossier.chemin(), 20230125, true));
    EXPECT_EQ(lire(fichier), TexteRecu(trois));
    ASSERT_TRUE(EnregistrerRecu({DeuxGrilles, {}}, dossier.chemin(), 20230125, false));
    ASSERT_TRUE(EnregistrerRecu(trois, dossier.chemin(), 20230125, true));
    const auto cinq = ChargerRecu(fichier);
    ASSERT_TRUE(cinq) << cinq.erreur();
    ASSERT_EQ(cinq->grilles.size(), 5U);
    EXPECT_EQ(cinq->grilles[1], DeuxGrilles[1]);
    EXPECT_EQ(cinq->grilles[4], DeuxGrilles[0]);
    EXPECT_EQ(cinq->jokers, std::vector{Joker});

    // Refused: what stands there cannot be read, or has no room left; it stays as it is.
    const RecuDeJeu plein = {{NbGrillesMax, DeuxGrilles[0]}, {}};
    const std::size_t tailleMax = std::size_t{16} << 20;
    const std::size_t lignes = (tailleMax - 20) / TexteUnJoker.size();
    const RecuDeJeu long_ = {{}, std::vector<LigneJoker>(lignes, Joker)};
    for (const std::string& ancien :
         {std::string("1\n2.2 5 3 14"), TexteRecu(plein), TexteRecu(long_)}) {
        ASSERT_LE(ancien.size(), tailleMax);
        poser(fichier, ancien);
        const auto fait = EnregistrerRecu(trois, dossier.chemin(), 20230125, true);
        ASSERT_FALSE(fait);
        EXPECT_NE(fait.erreur().find("20230125.rdj"), std::string::npos) << fait.erreur();
        EXPECT_TRUE(lire(fichier) == ancien);
    }
    // What the reader would refuse is not written anew either; a link to nowhere is no free place.
    const RecuDeJeu trop = {{}, std::vector<LigneJoker>(lignes + 2, Joker)};
    EXPECT_FALSE(EnregistrerRecu(trop, dossier.chemin(), 20230126, true));
    EXPECT_FALSE(std::filesystem::exists(FichierRecu(dossier.chemin(), 20230126)));
    std::filesystem::create_symlink("absent.rdj", FichierRecu(dossier.chemin(), 20230127));
    EXPECT_FALSE(EnregistrerRecu(trois, dossier.chemin(), 20230127, true));
}

TEST(FichiersGrilles, CopieDeSecoursEtDossier) {
    const Dossier dossier;
    const auto copie = dossier.chemin() / DossierGrilles / NomGrillesSecours;
    // The one before stays beside it, through a copy that says the same.
    const auto garde = dossier.chemin() / DossierGrilles / "Grlbak.grl~";
    ASSERT_TRUE(SauverGrillesSecours({}, dossier.chemin()));
    EXPECT_FALSE(std::filesystem::exists(garde));
    for (int fois = 0; fois < 2; ++fois) {
        ASSERT_TRUE(SauverGrillesSecours(DeuxGrilles, dossier.chemin()));
        EXPECT_EQ(lire(copie), TexteDeuxGrilles);
        EXPECT_EQ(lire(garde), "0\n");
    }
    ASSERT_TRUE(EnregistrerGrilles(DeuxGrilles, dossier / "a.grl"));
    EXPECT_EQ(lire(dossier / "a.grl"), TexteDeuxGrilles);
    EXPECT_FALSE(ChargerGrilles(dossier / "absent.grl"));

    const Dossier occupe;
    poser(occupe / DossierGrilles, "un fichier");
    for (const auto& fait : {SauverGrillesSecours(DeuxGrilles, occupe.chemin()),
                             EnregistrerRecu({}, occupe.chemin(), 20230125, true)}) {
        ASSERT_FALSE(fait);
        EXPECT_NE(fait.erreur().find(DossierGrilles), std::string::npos) << fait.erreur();
    }
    EXPECT_EQ(lire(occupe / DossierGrilles), "un fichier");
}

}  // namespace
}  // namespace norvane
