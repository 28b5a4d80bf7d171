// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "comb/EtatCombinaisons.h"
#include "comb/LigneCombinaison.h"
#include "Dossier.h"

namespace norvane {
namespace {

constexpr int NbTirages = 2005;

std::string Lignes(int nombre, const std::string& ligne) {
    std::string texte;
    for (int i = 0; i < nombre; ++i) texte += ligne;
    return texte;
}

/// The nine lines of a state as text.
std::string Texte(const EtatCombinaisons& etat) {
    std::string texte;
    for (std::size_t n = TailleCombMin; n <= TailleCombMax; ++n)
        texte += std::to_string(etat.NbTiragesComb[n]) + ' ' + std::to_string(etat.BorneInf[n]) +
                 ' ' + std::to_string(etat.BorneSup[n]) + '\n';
    return texte;
}

const std::string Complet =
    "2000 12 46\n2000 0 12\n2000 0 4\n2000 0 2\n2000 0 1\n2000 0 1\n0 0 1\n2000 0 1\n2000 0 1\n";
const std::string CompletLu =
    "2000 12 46\n2000 0 12\n2000 0 4\n2000 0 2\n2005 0 1\n2005 0 1\n2005 0 1\n2005 0 1\n2005 0 1\n";
const std::string Zero = "0 0 0\n";

TEST(EtatCombinaisons, CeQuUnFichierDonne) {
    struct {
        std::string fichier, lu;
    } const cas[] = {
        {Complet, CompletLu},
        {Complet.substr(0, Complet.size() - 1), CompletLu},
        {"\xEF\xBB\xBF  2000  12\t46 \r\n900 0 3\r\n\r\n",
         "2000 12 46\n900 0 3\n" + Lignes(7, Zero)},
        // Cut between lines, inside a number, behind size 6.
        {Complet.substr(0, 11), "2000 12 46\n" + Lignes(8, Zero)},
        {"2000 12 46\n2000 0 1", "2000 12 46\n" + Lignes(8, Zero)},
        {Lignes(5, "7 0 2\n") + "7 1", Lignes(4, "7 0 2\n") + "2005 0 2\n" + Lignes(4, Zero)},
        // Crossed, above the draws, no count. 2000 draws: 17.007 of each pair and 1.086 of each
        // triple on an average.
        {"2000 46 12\n2000 0 2001\n2000 0 0\n2000 0 1\n2000 1 1\n2000 3 2\n1 0 2\n",
         Lignes(3, Zero) + "2000 0 1\n" + Lignes(3, "2005 0 0\n") + Lignes(2, Zero)},
        {"2000 17 18\n2000 1 2\n", "2000 17 18\n2000 1 2\n" + Lignes(7, Zero)},
        {"2000 18 18\n2000 2 2\n", Lignes(9, Zero)},
        {"2000 17 17\n2000 1 1\n", Lignes(9, Zero)},
        {Lignes(9, "0 0 1\n"), Lignes(4, "0 0 1\n") + Lignes(5, "2005 0 1\n")},
        {"", Lignes(9, Zero)},
    };
    for (const auto& c : cas) {
        SCOPED_TRACE(c.fichier);
        const Dossier dossier;
        if (!c.fichier.empty()) poser(dossier / NomCombCalc, c.fichier);
        const auto etat = LireCombCalc(dossier.chemin(), NbTirages);
        ASSERT_TRUE(etat) << etat.erreur();
        EXPECT_EQ(Texte(*etat), c.lu);
    }
}

TEST(EtatCombinaisons, NonSensRefuseAvecSaLigne) {
    std::vector<std::string> fichiers;
    for (const char* ligne : {"deux 12 46", "1 2", "1 2 3 4", "1 -2 3", "65536 0 1", "1,2,3", "",
                              "1 2 99999999999999999999", "1 2 3.5", "1\x01 2 3"})
        fichiers.push_back(std::string("1 2 3\n") + ligne + "\n1 2 3\n");
    fichiers.push_back(Complet + "1 2 3\n");
    for (const auto& fichier : fichiers) {
        const Dossier dossier;
        poser(dossier / NomCombCalc, fichier);
        const auto etat = LireCombCalc(dossier.chemin(), NbTirages);
        ASSERT_FALSE(etat) << fichier;
        EXPECT_TRUE(etat.erreur().starts_with(fichier < "2" ? "Ligne 2 du" : "Ligne 10 du"))
            << etat.erreur();
    }
}

TEST(EtatCombinaisons, LienVersNullePart) {
    const Dossier dossier;
    for (const char* nom : {NomCombCalc, "comb2.dat"})
        std::filesystem::create_symlink("absent", dossier / nom);
    EXPECT_NE(LireCombCalc(dossier.chemin(), NbTirages).erreur().find("un lien"),
              std::string::npos);
    EXPECT_NE(LireListe(dossier / "comb2.dat", 2).erreur().find("un lien"), std::string::npos);
}

TEST(EtatCombinaisons, EcritPuisRelu) {
    const Dossier dossier;
    poser(dossier / NomCombCalc, CompletLu);
    auto etat = *LireCombCalc(dossier.chemin(), NbTirages);
    ASSERT_TRUE(EcrireCombCalc(etat, dossier.chemin()));
    EXPECT_EQ(lire(dossier / NomCombCalc), CompletLu);

    etat.NbTiragesComb[3] = -10;
    ASSERT_TRUE(EcrireCombCalc(etat, dossier.chemin()));
    EXPECT_EQ(LireCombCalc(dossier.chemin(), NbTirages)->NbTiragesComb[3], 0);
    ASSERT_TRUE(EcrireCombCalcNeutre(dossier.chemin()));
    EXPECT_EQ(lire(dossier / NomCombCalc), Lignes(9, "0 0 1\n"));
    EXPECT_FALSE(EcrireCombCalcNeutre(dossier.chemin() / "absent"));
}

TEST(RestaurerFichiersFiltre, AvantEtApres) {
    using Fichiers = std::map<std::string, std::string>;
    const Fichiers entiere = {{"COMBCALC.INI", "etat"}, {"comb2.dat", "2"}, {"comb3.dat", "3"},
                              {"comb4.dat", "4"},       {"comb5.dat", "5"}, {"comb6.dat", "6"}};
    const Fichiers sauvegardes = {{"Combcalc.~in", "etat"}, {"comb2.~da", "2"}, {"comb3.~da", "3"},
                                  {"comb4.~da", "4"},       {"comb5.~da", "5"}, {"comb6.dat", "6"}};
    Fichiers filtree = sauvegardes;
    for (const auto& [nom, contenu] : entiere) filtree.try_emplace(nom, "filtrée");
    filtree["Combcalc.ini"] = "filtrée";
    struct {
        Fichiers avant, apres;
    } const cas[] = {
        {filtree, entiere},
        {{{"comb3.~da", "3"}, {"comb3.dat", "f"}, {"comb4.dat", "f"}, {"COMBCALC.INI", "f"}},
         {{"comb3.dat", "3"}}},
        {{{"COMBCALC.~IN", "etat"}, {"Combcalc.ini", "f"}}, {{"COMBCALC.INI", "etat"}}},
        // No backup at all.
        {{{"comb2.dat", "f"}, {"comb7.dat", "7"}, {"Combcalc.ini", "f"}},
         {{"COMBCALC.INI", Lignes(9, "0 0 1\n")}, {"comb7.dat", "7"}}},
    };
    for (const auto& c : cas) {
        const Dossier dossier;
        for (const auto& [nom, contenu] : c.avant) poser(dossier.chemin() / nom, contenu);
        const auto fait = RestaurerFichiersFiltre(dossier.chemin());
        ASSERT_TRUE(fait) << fait.erreur();
        EXPECT_EQ(Contenu(dossier), c.apres);
    }
    EXPECT_FALSE(RestaurerFichiersFiltre("/dossier/qui/manque"));
}

}  // namespace
}  // namespace norvane
