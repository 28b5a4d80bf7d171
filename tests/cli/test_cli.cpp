// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <sstream>

#include "base/BaseIntegree.h"
#include "base/Stockage.h"
#include "base/TableCsv.h"
#include "BasesEssai.h"
#include "cli/Executer.h"
#include "DossierTemporaire.h"
#include "OracleStats.h"

namespace norvane {
namespace {

using Args = std::vector<std::string>;

struct Sortie {
    int statut;
    std::string out;
    std::string err;
};

Sortie Lancer(const Args& args, const std::filesystem::path& repertoire) {
    std::ostringstream out, err;
    const int statut = Executer(args, out, err, repertoire);
    return {statut, out.str(), err.str()};
}

class Cli : public testing::Test {
 protected:
    Cli() {
        const Base base = QuatreTirages();
        std::ostringstream csv;
        EcrireTableCsv(csv, base, 0, base.NbTirages - 1);
        dossier.ecrire("quatre.csv", csv.str());
    }

    Sortie lancer(const Args& args) const { return Lancer(args, dossier.chemin()); }

    /// With the four records as base.
    Sortie lancerQuatre(Args args) const {
        args.insert(args.begin(), {"--base", "quatre.csv"});
        return lancer(args);
    }

    DossierTemporaire dossier;
};

std::string Lignes(const std::string& texte, int premiere, int derniere) {
    std::istringstream flux(texte);
    std::string lignes, ligne;
    for (int i = 0; std::getline(flux, ligne); ++i)
        if (i >= premiere && i <= derniere) lignes += ligne + '\n';
    return lignes;
}

TEST_F(Cli, Base) {
    const Sortie integree = lancer({"base"});
    EXPECT_EQ(integree.statut, StatutFait) << integree.err;
    EXPECT_EQ(integree.out,
              "cle\tvaleur\nNbTirages\t3214\nNbAnciensTirages\t0\nAnciensTirages\t0\n"
              "Premier\t20081006\nDernier\t20240724\n");
    EXPECT_EQ(lancer({"--globale", "base"}).out,
              "cle\tvaleur\nNbTirages\t8072\nNbAnciensTirages\t4858\nAnciensTirages\t1\n"
              "Premier\t19760519\nDernier\t20240724\n");
    EXPECT_EQ(lancerQuatre({"base"}).out,
              "cle\tvaleur\nNbTirages\t4\nNbAnciensTirages\t0\nAnciensTirages\t0\n"
              "Premier\t20221003\nDernier\t20221005\n");
}

TEST_F(Cli, StoredBaseIsTheDefaultAndIsLeftAlone) {
    ASSERT_TRUE(SauverBase(QuatreTirages(), dossier.chemin() / "norvane.db"));
    const auto avant = dossier.contenu();
    EXPECT_EQ(Lignes(lancer({"base"}).out, 1, 1), "NbTirages\t4\n");
    EXPECT_EQ(dossier.contenu(), avant);
    EXPECT_EQ(lancer({"--base", "norvane.db", "tirages"}).out, avant.at("quatre.csv"));

    dossier.ecrire("norvane.db", "ceci n'est pas une base");
    const auto abimee = dossier.contenu();
    const Sortie refus = lancer({"base"});
    EXPECT_EQ(refus.statut, StatutRefus);
    EXPECT_NE(refus.err.find("norvane.db"), std::string::npos) << refus.err;
    EXPECT_EQ(dossier.contenu(), abimee);
}

TEST_F(Cli, DrawsAreTheTableByteForByte) {
    const std::string table = DossierTemporaire::lire(NORVANE_DATA "/tirages.csv");
    EXPECT_TRUE(lancer({"--globale", "tirages"}).out == table);
    EXPECT_TRUE(lancer({"--base", NORVANE_DATA "/tirages.csv", "--de=4859", "tirages"}).out ==
                lancer({"tirages"}).out);
    EXPECT_EQ(lancer({"--globale", "--de", "17", "--a", "17", "tirages"}).out,
              Lignes(table, 0, 0) + Lignes(table, 17, 17));
}

TEST_F(Cli, StatisticsOfFourDraws) {
    const std::string entete =
        "n\tSorties\tEcart\tEcartMax\tNbEcartMax\tPosEcartMax\tSuite\tSuiteMax\tNbSuiteMax\t"
        "PosSuiteMax\tEcartPrec\tSuitePrec\tSommeEcarts\n";
    EXPECT_EQ(lancerQuatre({"stats", "chances"}).out,
              entete +
                  "1\t1\t3\t3\t1\t1\t0\t1\t1\t1\t0\t1\t3\n"
                  "2\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n"
                  "3\t1\t1\t2\t1\t3\t0\t1\t1\t3\t2\t1\t3\n"
                  "4\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n"
                  "5\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n"
                  "6\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n"
                  "7\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n"
                  "8\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n"
                  "9\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n"
                  "10\t0\t4\t4\t1\t0\t0\t0\t1\t0\t0\t0\t4\n");
    const std::string numeros = lancerQuatre({"--de", "2", "--a", "3", "stats", "numeros"}).out;
    EXPECT_EQ(Lignes(numeros, 0, 0), entete);
    EXPECT_EQ(Lignes(numeros, 7, 7), "7\t2\t0\t0\t1\t2\t2\t2\t1\t3\t0\t0\t0\n");
    EXPECT_EQ(Lignes(numeros, 20, 20), "20\t1\t0\t1\t1\t3\t1\t1\t1\t3\t1\t0\t1\n");
    EXPECT_EQ(Lignes(numeros, 49, 60), "49\t1\t0\t1\t1\t3\t1\t1\t1\t3\t1\t0\t1\n");
}

TEST_F(Cli, StatisticsOfTheGlobalBaseAgainstTheDefinitions) {
    const Base base = BaseIntegree(true);
    const auto attendu = [&](int nombre, auto presencesDe, int de, int a) {
        std::string texte;
        for (int n = 1; n <= nombre; ++n) {
            const ResultatStats r = OracleStats(presencesDe(base, n), de - 1, a - 1);
            texte += std::to_string(n);
            for (const int valeur :
                 {int{r.Sorties}, int{r.Ecart}, int{r.EcartMax}, int{r.NbEcartMax},
                  int{r.PosEcartMax}, int{r.Suite}, int{r.SuiteMax}, int{r.NbSuiteMax},
                  int{r.PosSuiteMax}, int{r.EcartPrec}, int{r.SuitePrec}, r.SommeEcarts})
                texte += '\t' + std::to_string(valeur);
            texte += '\n';
        }
        return texte;
    };
    for (const auto& [de, a] : {std::pair{1, 8072}, {4000, 5000}, {8072, 8072}}) {
        Args args = {"--globale", "--de", std::to_string(de), "--a", std::to_string(a), "stats"};
        args.push_back("numeros");
        EXPECT_EQ(Lignes(lancer(args).out, 1, 99), attendu(NumeroMax, PresencesNumero, de, a));
        args.back() = "chances";
        EXPECT_EQ(Lignes(lancer(args).out, 1, 99), attendu(ChanceMax, PresencesChance, de, a));
    }
}

TEST_F(Cli, Refused) {
    dossier.ecrire("nonsens.csv", "a;b;c\n1;2;3\n");
    dossier.ecrire("base.txt", "");
    struct {
        Args args;
        const char* dit;
    } const cas[] = {
        {{"--base", "absente.csv", "base"}, "absente.csv » n'existe pas"},
        {{"--base", "absente.db", "base"}, "absente.db » n'existe pas"},
        {{"--base", "nonsens.csv", "base"}, "nonsens.csv"},
        {{"--base", "base.txt", "base"}, "doit finir par .db ou .csv"},
        {{"--base", "", "tirages"}, "doit finir par .db ou .csv"},
        {{"--base", "quatre.csv", "--globale", "base"}, "--globale ne vaut que"},
        {{"--base", "quatre.csv", "--de", "0", "tirages"}, "--de 0 est hors de la base"},
        {{"--base", "quatre.csv", "--de", "-1", "base"}, "--de -1 est hors de la base"},
        {{"--base", "quatre.csv", "--a", "5", "tirages"}, "--a 5 est hors de la base"},
        {{"--base", "quatre.csv", "--a", "99999999999999999999", "tirages"}, "hors de la base"},
        {{"--base", "quatre.csv", "--de", "3", "--a", "2", "stats", "chances"}, "croisé"},
    };
    for (const auto& c : cas) {
        const Sortie sortie = lancer(c.args);
        EXPECT_EQ(sortie.statut, StatutRefus) << sortie.err;
        EXPECT_EQ(sortie.out, "");
        EXPECT_NE(sortie.err.find(c.dit), std::string::npos) << sortie.err;
        EXPECT_EQ(std::count(sortie.err.begin(), sortie.err.end(), '\n'), 1) << sortie.err;
    }
}

TEST_F(Cli, BadUsage) {
    struct {
        Args args;
        const char* raison;
        const char* usage;
    } const cas[] = {
        {{}, "il manque la commande", "norvane-cli [OPTIONS] COMMANDE"},
        {{"stats"}, "il manque la commande", "norvane-cli [OPTIONS] stats COMMANDE"},
        {{"danse"}, "argument inattendu « danse »", "norvane-cli [OPTIONS] COMMANDE"},
        {{"--vite", "base"}, "argument inattendu « --vite »", "norvane-cli [OPTIONS] base"},
        {{"base", "tirages"}, "argument inattendu « tirages »", "norvane-cli [OPTIONS] base"},
        {{"base", "-x"}, "argument inattendu « -x »", "norvane-cli [OPTIONS] base"},
        {{"stats", "boules"},
         "argument inattendu « boules »",
         "norvane-cli [OPTIONS] stats COMMANDE"},
        {{"tirages", "--de", "3"},
         "l'option globale --de se place avant la commande",
         "norvane-cli [OPTIONS] tirages"},
        {{"--de", "trois", "base"},
         "option --de : « trois » n'est pas un nombre entier",
         "norvane-cli [OPTIONS] base"},
        {{"--a", "3.5", "base"},
         "option --a : « 3.5 » n'est pas un nombre entier",
         "norvane-cli [OPTIONS] base"},
        {{"--de", "", "base"},
         "option --de : «  » n'est pas un nombre entier",
         "norvane-cli [OPTIONS] base"},
        {{"--base"},
         "option --base : nombre de valeurs incorrect",
         "norvane-cli [OPTIONS] COMMANDE"},
        {{"--de", "1", "--de", "2", "base"},
         "option --de : nombre de valeurs incorrect",
         "norvane-cli [OPTIONS] base"},
        {{"--globale=non", "base"},
         "option --globale : nombre de valeurs incorrect",
         "norvane-cli [OPTIONS] COMMANDE"},
    };
    for (const auto& c : cas) {
        const Sortie sortie = lancer(c.args);
        EXPECT_EQ(sortie.statut, StatutUsage) << c.raison;
        EXPECT_EQ(sortie.out, "");
        EXPECT_EQ(sortie.err,
                  std::string("norvane-cli : ") + c.raison + "\nUsage : " + c.usage + '\n');
    }
}

TEST_F(Cli, HelpAtEveryLevelAndVersion) {
    const Sortie racine = lancer({"--help"});
    EXPECT_EQ(racine.statut, StatutFait);
    EXPECT_EQ(
        racine.out,
        "Les calculs de Norvane en ligne de commande, sur la base des tirages du Loto.\n"
        "\n"
        "Usage : norvane-cli [OPTIONS] COMMANDE\n"
        "\n"
        "Options :\n"
        "  --help          Affiche cette aide\n"
        "  --version       Affiche la version\n"
        "  --base FICHIER  Base des tirages, *.db ou *.csv ; par défaut norvane.db du dossier\n"
        "                  courant s'il existe, sinon la base intégrée\n"
        "  --globale       Base intégrée : avec les tirages de l'ancien jeu, depuis 1976\n"
        "  --de N          Premier tirage de l'intervalle ; par défaut 1\n"
        "  --a N           Dernier tirage de l'intervalle ; par défaut le dernier\n"
        "\n"
        "Commandes :\n"
        "  base     Ce que contient la base des tirages\n"
        "  tirages  Les tirages de l'intervalle, en CSV\n"
        "  stats    Statistiques des numéros ou des chances sur l'intervalle\n");
    EXPECT_EQ(lancer({"stats", "chances", "--help"}).out,
              "Les douze résultats de chacune des 10 chances\n"
              "\n"
              "Usage : norvane-cli [OPTIONS] stats chances\n"
              "\n"
              "Options :\n"
              "  --help  Affiche cette aide\n"
              "\n"
              "Les options globales se placent avant la commande : norvane-cli --help.\n");
    EXPECT_EQ(Lignes(lancer({"stats", "--help"}).out, 2, 2),
              "Usage : norvane-cli [OPTIONS] stats COMMANDE\n");
    EXPECT_EQ(lancer({"--version"}).out, "norvane-cli " NORVANE_VERSION "\n");

    // The manual tells of everything that the help does.
    const std::string manuel = DossierTemporaire::lire(NORVANE_DATA "/../packaging/norvane-cli.1");
    for (const char* mot : {"\\-\\-help", "\\-\\-version", "\\-\\-base", "\\-\\-globale",
                            "\\-\\-de", "\\-\\-a", "tirages", "stats numeros", "stats chances"})
        EXPECT_NE(manuel.find(mot), std::string::npos) << mot;
}

TEST_F(Cli, OutputThatFails) {
    std::ostringstream out, err;
    out.setstate(std::ios::badbit);
    const Args args = {"base"};
    EXPECT_EQ(Executer(args, out, err, dossier.chemin()), StatutRefus);
    EXPECT_EQ(err.str(), "Les résultats n'ont pas pu être écrits sur la sortie standard.\n");
}

}  // namespace
}  // namespace norvane
