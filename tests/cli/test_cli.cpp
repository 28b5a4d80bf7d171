// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "BancCli.h"
#include "base/BaseIntegree.h"
#include "base/Configuration.h"
#include "base/Stockage.h"
#include "base/TableCsv.h"
#include "cli/Executer.h"
#include "Dossier.h"
#include "OracleStats.h"
#include "SeptTirages.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {
namespace {

TEST_F(Cli, Base) {
    EXPECT_EQ(lancer("base").out,
              "cle\tvaleur\nNbTirages\t3214\nNbAnciensTirages\t0\nAnciensTirages\t0\n"
              "Premier\t20081006\nDernier\t20240724\n");
    EXPECT_EQ(lancer("--globale base").out,
              "cle\tvaleur\nNbTirages\t8072\nNbAnciensTirages\t4858\nAnciensTirages\t1\n"
              "Premier\t19760519\nDernier\t20240724\n");
}

TEST_F(Cli, LaBaseGardeeVautEtResteEnLEtat) {
    ASSERT_TRUE(SauverBase(QuatreTirages(), dossier / "norvane.db"));
    const auto avant = Contenu(dossier);
    EXPECT_EQ(lancer("tirages").out, avant.at("quatre.csv"));
    EXPECT_EQ(lancer("--base norvane.db tirages").out, avant.at("quatre.csv"));
    EXPECT_EQ(Contenu(dossier), avant);

    poser(dossier / "norvane.db", "ceci n'est pas une base");
    const auto abimee = Contenu(dossier);
    refuse(std::string("base"), "norvane.db");
    EXPECT_EQ(Contenu(dossier), abimee);
}

TEST_F(Cli, LesTiragesSontLaTableOctetPourOctet) {
    const std::string table = lire(NORVANE_DATA "/tirages.csv");
    EXPECT_TRUE(lancer("--globale tirages").out == table);
    EXPECT_TRUE(lancer("--base " NORVANE_DATA "/tirages.csv --de=4859 tirages").out ==
                lancer("tirages").out);
    EXPECT_EQ(lancer("--globale --de 17 --a 17 tirages").out,
              Lignes(table, 0, 0) + Lignes(table, 17, 17));
}

TEST_F(Cli, StatistiquesDeLaBaseGlobaleParDefinition) {
    const Base base = BaseIntegree(true);
    const auto attendu = [&](int nombre, auto presencesDe, int de, int a) {
        std::string texte =
            "n\tSorties\tEcart\tEcartMax\tNbEcartMax\tPosEcartMax\tSuite\tSuiteMax\tNbSuiteMax\t"
            "PosSuiteMax\tEcartPrec\tSuitePrec\tSommeEcarts\n";
        for (int n = 1; n <= nombre; ++n) {
            const ResultatStats r = OracleStats(presencesDe(base, n), de - 1, a - 1);
            texte += std::to_string(n);
            for (const int valeur : Valeurs(r)) texte += '\t' + std::to_string(valeur);
            texte += '\n';
        }
        return texte;
    };
    for (const auto& [de, a] : {std::pair{1, 8072}, {4000, 5000}, {4859, 4865}, {8072, 8072}}) {
        const std::string stats =
            "--globale --de " + std::to_string(de) + " --a " + std::to_string(a) + " stats ";
        EXPECT_EQ(lancer(stats + "numeros").out, attendu(NumeroMax, PresencesNumero, de, a));
        EXPECT_EQ(lancer(stats + "chances").out, attendu(ChanceMax, PresencesChance, de, a));
    }
}

TEST_F(Cli, ReglesDeGainEtGrillesAuHasard) {
    const std::pair<const char*, const char*> cas[] = {
        {"regles mise 6 2", "26.4\n"},
        {"regles mise 6 2 --2nd", "31.2\n"},
        {"regles rangs 6 10 5 1 20170305", "1 9 0 50 0 0 0 0 5\n"},
        {"regles rangs 5 1 1 0 20240101", "aucun\n"},
        {"regles rangs2 9 5", "1 20 60 40\n"},
        {"regles joker 1234567 3 2034566", "0\t5\t-1\t6\t600\n"},
    };
    for (const auto& [ligne, attendu] : cas) EXPECT_EQ(lancer(ligne).out, attendu) << ligne;

    const Args lot = {"aleatoire", "06 + 02C", "50", "--graine", "7"};
    const std::string grilles = lancer(lot).out;
    EXPECT_EQ(LireGrilles(grilles)->size(), 50U);
    EXPECT_EQ(lancer(lot).out, grilles);
    EXPECT_EQ(lancer(Args{"aleatoire", "05 + 01C", "0"}).out, "0\n");
    EXPECT_NE(lancer(Args{"aleatoire", "07 + 09C", "1"}).err.find("pas une grille vendue"),
              std::string::npos);
    EXPECT_EQ(lancer(Args{"aleatoire", "05 + 01C", "10000"}).statut, StatutRefus);
}

TEST_F(Cli, RapportsSurLesGrilles) {
    std::ostringstream csv;
    EcrireTableCsv(csv, SeptTirages(), 0, 6);
    poser(dossier / "sept.csv", csv.str());
    poser(dossier / "deux.grl", "2\n378 9 1 7 12 23 40 2 3 4 6 1 9\n2.2 5 7 12 23 34 45 1 5\n");
    poser(dossier / "une.grl", "1\n378 9 1 7 12 23 40 2 3 4 6 1 9\n");
    const std::string recu = "1\n3 5 16 5 1 2 3 1 1\n1\n7 0 0 0 0 0 0 1\n";
    for (const char* nom : {"20240727.rdj", "20191104.rdj", "20240728.rdj", "recu.rdj"})
        poser(dossier / nom, recu);
    poser(dossier / "vide.grl", "0\n");
    const auto avant = Contenu(dossier);

    const std::string base = "--base sept.csv ";
    EXPECT_EQ(lancer(base + "verifier 20240727.rdj").out, Attendu("second-seul"));
    EXPECT_EQ(lancer(base + "verifier recu.rdj --tirage 7").out, Attendu("second-seul"));
    EXPECT_NE(lancer(base + "verifier 20191104.rdj").out.find("1er Tirage n°4 du"),
              std::string::npos);
    EXPECT_EQ(lancer(base + "bilan deux.grl").out, Attendu("bilan"));
    EXPECT_EQ(lancer(base + "--a 3 bilan une.grl").out, Attendu("bilan-avant-2019"));
    const std::pair<const char*, const char*> refus[] = {
        {"verifier deux.grl", "donnez le numéro du tirage avec --tirage"},
        {"verifier recu.rdj", "n'est pas une date"},
        {"verifier 20240728.rdj", "aucun tirage à la date"},
        {"verifier vide.grl --tirage 1", "ne contient aucune grille"},
        {"verifier deux.grl --tirage 8", "--tirage va de 1 à 7, pas 8"},
        {"bilan sept.csv", "son nom doit finir par .grl ou .rdj"},
    };
    for (const auto& [ligne, dit] : refus) refuse(base + ligne, dit);
    EXPECT_EQ(Contenu(dossier), avant);

    poser(dossier / "NORVANE.INI", "[MONNAIE]\nsymbole=$\n");
    const Sortie dollars = lancer(base + "--de 5 --a 5 bilan une.grl");
    EXPECT_EQ(dollars.out, Attendu("bilan-second-dollar"));
    EXPECT_EQ(dollars.err, "");
    poser(dossier / "NORVANE.INI", "[MONNAIE]\nsymbole=$\ntaux=rien\n");
    const Sortie averti = lancer(base + "--de 5 --a 5 bilan une.grl");
    EXPECT_EQ(averti.statut, StatutFait);
    EXPECT_EQ(averti.out, Attendu("bilan-second-dollar"));
    EXPECT_NE(averti.err, "\n");
    EXPECT_EQ(averti.err, Configuration(dossier / "NORVANE.INI").avertissement() + '\n');
}

TEST_F(Cli, Refus) {
    poser(dossier / "nonsens.csv", "a;b;c\n1;2;3\n");
    poser(dossier / "base.txt", "");
    const std::pair<const char*, const char*> cas[] = {
        {"--base absente.csv base", "absente.csv » n'existe pas"},
        {"--base nonsens.csv base", "nonsens.csv"},
        {"--base base.txt base", "doit finir par .db ou .csv"},
        {"--base quatre.csv --globale base", "--globale ne vaut que"},
        {"--base quatre.csv --de -1 base", "--de -1 est hors de la base"},
        {"--base quatre.csv --a 99999999999999999999 tirages", "est hors de la base"},
        {"--base quatre.csv --de 3 --a 2 stats chances", "croisé"},
        {"regles mise 10 1", "N va de 0 à 9, pas 10"},
        {"regles rangs 5 1 6 0 20240101", "g va de 0 à 5"},
        {"regles joker 123456 1 1234567", "sept chiffres"},
        {"regles joker 1234567 5 1234567", "CODE va de 1 à 4"},
    };
    for (const auto& [ligne, dit] : cas) refuse(std::string(ligne), dit);
}

TEST_F(Cli, MauvaisUsage) {
    struct {
        const char *ligne, *raison, *usage;
    } const cas[] = {
        {"", "il manque la commande", "COMMANDE"},
        {"danse", "argument inattendu « danse »", "COMMANDE"},
        {"--vite base", "argument inattendu « --vite »", "base"},
        {"base tirages", "argument inattendu « tirages »", "base"},
        {"tirages --de 3", "l'option globale --de se place avant la commande", "tirages"},
        {"--de trois base", "option --de : « trois » n'est pas un nombre entier", "base"},
        {"--base", "option --base : nombre de valeurs incorrect", "COMMANDE"},
        {"--de 1 --de 2 base", "option --de : nombre de valeurs incorrect", "base"},
        {"regles mise 5", "il manque l'argument C", "regles mise [OPTIONS] N C"},
        {"regles rangs2 cinq 5", "argument N : « cinq » n'est pas un nombre entier",
         "regles rangs2 N g"},
        {"comb bornes 3 1", "il manque l'argument SUP", "comb bornes [OPTIONS] N INF SUP"},
        {"--globale=non base", "option --globale : nombre de valeurs incorrect", "COMMANDE"},
    };
    for (const auto& c : cas) {
        const Sortie sortie = lancer(c.ligne);
        EXPECT_EQ(sortie.statut, StatutUsage) << c.ligne;
        EXPECT_EQ(sortie.out, "");
        EXPECT_EQ(sortie.err, std::string("norvane-cli : ") + c.raison +
                                  "\nUsage : norvane-cli [OPTIONS] " + c.usage + '\n');
    }
}

TEST_F(Cli, AideATousLesNiveauxEtVersion) {
    EXPECT_EQ(
        Lignes(lancer("--help").out, 0, 8),
        "Les calculs de Norvane en ligne de commande, sur la base des tirages du Loto.\n"
        "\n"
        "Usage : norvane-cli [OPTIONS] COMMANDE\n"
        "\n"
        "Options :\n"
        "  --help          Affiche cette aide\n"
        "  --version       Affiche la version\n"
        "  --base FICHIER  Base des tirages, *.db ou *.csv ; par défaut norvane.db du dossier\n"
        "                  courant s'il existe, sinon la base intégrée\n");
    EXPECT_EQ(Lignes(lancer("stats chances --help").out, 0, 2),
              "Les douze résultats de chacune des 10 chances\n\n"
              "Usage : norvane-cli [OPTIONS] stats chances\n");
    EXPECT_EQ(lancer("--version").out, "norvane-cli " NORVANE_VERSION "\n");

    // The manual tells of all commands and options that the help tells of.
    const std::string manuel = lire(NORVANE_DATA "/../packaging/norvane-cli.1");
    for (const char* commande :
         {"--help", "tirages", "stats numeros", "stats chances", "comb extremes", "comb bornes",
          "comb stats", "regles mise", "regles rangs", "regles rangs2", "regles joker", "aleatoire",
          "verifier", "bilan"}) {
        EXPECT_TRUE(*commande == '-' || manuel.find(commande) != std::string::npos) << commande;
        std::istringstream mots(lancer(commande + std::string(" --help")).out);
        for (std::string mot; mots >> mot;) {
            mot.erase(mot.find_last_not_of(".,)") + 1);
            EXPECT_TRUE(!mot.starts_with("--") ||
                        manuel.find("\\-\\" + mot.substr(1)) != std::string::npos)
                << mot;
        }
    }
}

TEST_F(Cli, SortieQuiEchoue) {
    const std::pair<const char*, const char*> cas[] = {
        {"base", "Les résultats n'ont pas pu être écrits sur la sortie standard.\n"},
        {"--help", "L'aide n'a pas pu être écrite sur la sortie standard.\n"},
        {"--version", "La version n'a pas pu être écrite sur la sortie standard.\n"}};
    for (const auto& [commande, dit] : cas) {
        std::ofstream out("/dev/full");  // fails when it is flushed, not before
        std::ostringstream err;
        const Args args = {commande};
        EXPECT_EQ(Executer(args, out, err, dossier.chemin()), StatutRefus);
        EXPECT_EQ(err.str(), dit);
    }
    // The program itself, beyond the size allowed for a file: told, not killed.
    const std::string ligne = "cd '" + dossier.chemin().string() +
                              "' && ulimit -f 8 && '" NORVANE_CLI "' tirages >sortie 2>erreur";
    const int statut = std::system(ligne.c_str());
    EXPECT_TRUE(WIFEXITED(statut) && WEXITSTATUS(statut) == StatutRefus) << statut;
    EXPECT_EQ(lire(dossier / "erreur"), cas[0].second);
}

TEST_F(Cli, MessagesSurUneLigne) {
    const std::string nom = "a\nb\rc\td\x1B[31m\x7F\xC2\x9B é";
    const std::string dit = "a\\nb\\rc\\td\\x1B[31m\\x7F\\xC2\\x9B é";
    EXPECT_EQ(lancer(Args{nom}).err, "norvane-cli : argument inattendu « " + dit +
                                         " »\nUsage : norvane-cli [OPTIONS] COMMANDE\n");
    refuse(Args{"--base", nom + ".csv", "base"}, dit.c_str());
}

TEST_F(Cli, BasesHorsDePortee) {
    std::filesystem::create_symlink("absente.db", dossier / "norvane.db");
    refuse(std::string("base"), "c'est un lien vers un fichier qui n'existe pas");
    std::filesystem::remove(dossier / "norvane.db");
    std::filesystem::create_symlink("norvane.db", dossier / "norvane.db");
    refuse(std::string("base"), "les liens tournent en rond");
}

TEST_F(Cli, SortiesEntieresDesCommandesDeCombinaisons) {
    const struct {
        Args args;
        const char* out;
    } cas[] = {
        {{"comb", "extremes", "3"}, "3\t0\t3\t1\n07 33 41  (03)\n"},
        {{"comb", "extremes", "2"},
         "2\t0\t3\t4\n07 20  (03)\n07 33  (03)\n07 41  (03)\n33 41  (03)\n"},
        {{"comb", "extremes", "6"}, "6\t0\t2\t1\n01 07 20 33 41 49  (02)\n"},
        {{"comb", "bornes", "2", "3", "9"},
         "07 20\t3 0 1 2 2\n07 33\t3 0 1 3 3\n07 41\t3 0 1 3 3\n33 41\t3 0 1 3 3\n"},
        {{"comb", "bornes", "3", "2", "9", "--max", "1", "--stockage", "2"},
         "07 20 33\t0 65535 0 0 0 0 65535 0 0 0 0 65535 0 0 0 2 0 2 2 2\n"},
        {{"comb", "bornes", "3", "3", "3", "--stockage=1"}, "07 33 41\t0 65535 0 0 0 3 0 1 3 3\n"},
        {{"comb", "bornes", "2", "0", "9", "--compter", "--series"}, "48\n"},
        {{"comb", "bornes", "2", "0", "9", "--absolue", "20 7"}, "07 20\t3 0 0 0 0\n"},
        {{"comb", "bornes", "2", "0", "9", "--absolue", "20 7", "--compter"}, "1\n"},
        {{"comb", "bornes", "2", "0", "0", "--absolue", "7", "--secondaire", "20 2"},
         "02 07\t0 4 4 0 0\n"},
        {{"comb", "bornes", "2", "1", "9", "--absolue", "20 23 25"}, "20 23\t1 3 3 0 1\n"},
        {{"--de", "2", "--a", "3", "comb", "bornes", "3", "2", "2"}, "07 33 41\t2 0 0 2 2\n"},
        {{"comb", "bornes", "2", "5", "9"}, ""},
        {{"comb", "bornes", "3", "3", "3", "--stockage", "1", "--rangs"},
         "07 33 41\t0 4 4 0 0 3 0 1 3 3\n"},
        {{"--de", "2", "--a", "3", "comb", "bornes", "2", "2", "2", "--stockage", "2", "--rangs",
          "--max", "2"},
         "07 33\t0 2 2 0 0 0 2 2 0 0 2 0 0 2 2\n07 41\t0 2 2 0 0 0 2 2 0 0 2 0 0 2 2\n"},
        {{"comb", "bornes", "2", "2", "9", "--tri", "EcartMax", "--decroissant", "--max", "2"},
         "20 33\t2 0 2 2 2\n20 41\t2 0 2 2 2\n"},
        {{"comb", "bornes", "3", "2", "9", "--stockage=2", "--rangs", "--tri", "NbFois",
          "--profondeur", "1", "--decroissant", "--max", "1"},
         "07 33 41\t0 4 4 0 0 1 3 3 0 1 0 4 4 0 0 3 0 1 3 3\n"},
        {{"comb", "bornes", "3", "2", "9", "--stockage=2", "--rangs", "--gain", "--max", "1"},
         "20 33 41\t0 4 4 0 0 1 3 3 0 1 1 2 2 0 1 2 0 2 2 2\n"},
        {{"comb", "bornes", "2", "3", "9", "--tri", "Ecart", "--gain", "--sortie", "l.lst"}, ""},
        {{"liste", "lire", "l.lst"},
         "4\t2\t0\t1\t4\n07 20\t3 0 1 2 2\n07 33\t3 0 1 3 3\n07 41\t3 0 1 3 3\n33 41\t3 0 1 3 3\n"},
        {{"comb", "stats", "41 7"},
         "k\tNbFois\tDate\tEcart\tEcartMax\tNbEcartMax\tPosEcartMax\tSuite\tSuiteMax\t"
         "NbSuiteMax\tPosSuiteMax\n"
         "2\t3\t20221005\t0\t1\t1\t2\t3\t3\t1\t4\n"
         "1\t1\t20221003\t3\t3\t1\t1\t0\t1\t1\t1\n"
         "0\t0\t-\t4\t4\t1\t0\t0\t0\t1\t0\n"},
    };
    for (const auto& c : cas) {
        Args args = {"--base", "quatre.csv"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        const Sortie sortie = lancer(args);
        EXPECT_EQ(sortie.statut, StatutFait) << sortie.err;
        EXPECT_EQ(sortie.out, c.out) << testing::PrintToString(c.args);
        EXPECT_EQ(sortie.err, "");
    }
    // What pairs win is a rank only where they win something.
    poser(dossier / "NORVANE.INI", "[GAINS]\nG2=0\n");
    EXPECT_EQ(lancer("--base quatre.csv comb bornes 3 3 3 --stockage=1").out,
              "07 33 41\t3 0 1 3 3\n");
}

TEST_F(Cli, CombinaisonsRefusees) {
    const std::pair<Args, const char*> cas[] = {
        {{"comb", "extremes", "11"}, "de 2 à 10 numéros, pas 11"},
        {{"comb", "bornes", "2", "5", "4"}, "Bornes croisées : INF 5"},
        {{"comb", "bornes", "2", "0", "65535"}, "SUP 65535 est hors"},
        {{"comb", "bornes", "2", "0", "1", "--stockage", "3"}, "--stockage 3 n'existe pas"},
        {{"comb", "bornes", "2", "0", "1", "--max", "0"}, "--max 0"},
        {{"comb", "bornes", "2", "0", "1", "--tri", "ecart"},
         "--tri ecart n'existe pas : choisissez NbFois, Ecart, EcartMax, Suite, SuiteMax."},
        {{"comb", "bornes", "2", "0", "1", "--profondeur", "3"},
         "--profondeur 3 n'est pas un rang"},
        {{"comb", "bornes", "2", "0", "1", "--profondeur", "1", "--gain"}, "s'excluent"},
        {{"comb", "bornes", "10", "0", "99"},
         "La liste compterait environ 8\u00A0220\u00A0000\u00A0000 combi"},
        {{"comb", "bornes", "3", "0", "9", "--secondaire", "4"}, "case cochée verte"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4 50"}, "« 50 » n'est pas un numéro"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4 4"}, "4 est donné deux fois"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4", "--secondaire", "4"},
         "4 a les deux priorités"},
        {{"comb", "bornes", "3", "0", "9", "--absolue", "4", "--series"}, "en mode séries"},
        {{"comb", "stats", "7"}, "compte 1 numéros : il en faut de 2 à 10"},
    };
    for (const auto& [args, dit] : cas) refuse(args, dit);
}

}  // namespace
}  // namespace norvane
