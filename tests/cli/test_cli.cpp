// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/Archive.h"
#include "base/BaseIntegree.h"
#include "base/Configuration.h"
#include "base/Stockage.h"
#include "base/TableCsv.h"
#include "BasesEssai.h"
#include "cli/Executer.h"
#include "Dossier.h"
#include "lists/FichiersListes.h"
#include "OracleStats.h"
#include "reports/Analyses.h"
#include "reports/DocumentExport.h"
#include "reports/Historique.h"
#include "SeptTirages.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {
namespace {

using Args = std::vector<std::string>;

struct Sortie {
    int statut;
    std::string out, err;
};

/// A folder with the four records in quatre.csv, and the program run in it.
class Cli : public testing::Test {
 protected:
    Cli() {
        std::ostringstream csv;
        EcrireTableCsv(csv, QuatreTirages(), 0, 3);
        poser(dossier / "quatre.csv", csv.str());
    }

    /// The words of one line, between blanks.
    Sortie lancer(const std::string& ligne) const {
        std::istringstream mots(ligne);
        return lancer(Args{std::istream_iterator<std::string>(mots), {}});
    }
    Sortie lancer(const Args& args) const {
        std::ostringstream out, err;
        const int statut = Executer(args, out, err, dossier.chemin());
        return {statut, out.str(), err.str()};
    }

    /// Refus with one line that says `dit`, and nothing printed.
    template <typename Commande>
    void refuse(const Commande& commande, const char* dit) const {
        const Sortie sortie = lancer(commande);
        EXPECT_EQ(sortie.statut, StatutRefus) << dit;
        EXPECT_EQ(sortie.out, "");
        EXPECT_NE(sortie.err.find(dit), std::string::npos) << sortie.err;
        EXPECT_EQ(std::count(sortie.err.begin(), sortie.err.end(), '\n'), 1) << sortie.err;
    }

    Dossier dossier;
};

std::string Lignes(const std::string& texte, int premiere, int derniere) {
    std::istringstream flux(texte);
    std::string lignes, ligne;
    for (int i = 0; std::getline(flux, ligne); ++i)
        if (i >= premiere && i <= derniere) lignes += ligne + '\n';
    return lignes;
}

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

TEST_F(Cli, FichiersDeListesEtDeSelections) {
    const MembreArchive membre{"a.tmp",
                               "2 3 1 100 600 1 2 3 4 5 6 7 8 9 10 7 20 33\n"
                               "0 0 0 0 0 6 7 8 9 10 7 20 34"};
    poser(dossier / "a.lst", *FaireArchive({&membre, 1}));
    EXPECT_EQ(lancer("liste lire a.lst").out,
              "2\t3\t1\t100\t600\n07 20 33\t1 2 3 4 5 6 7 8 9 10\n"
              "07 20 34\t0 0 0 0 0 6 7 8 9 10\n");
    poser(dossier / "NORVANE.INI", "[GAINS]\nG2=0\n");
    refuse(std::string("liste lire a.lst"), "prend 13 valeurs, et 8 avec les gains actuels");
    refuse(std::string("liste lire quatre.csv"), "n'est pas une archive ZIP");

    std::filesystem::remove(dossier / "NORVANE.INI");
    for (const Args& bornes : {Args{"3", "2", "9", "--stockage", "1"},
                               Args{"2", "0", "9", "--absolue", "20 7"}, Args{"2", "5", "9"}}) {
        Args args{"--base", "quatre.csv", "--de", "2", "comb", "bornes"};
        args.insert(args.end(), bornes.begin(), bornes.end());
        const std::string affichee = lancer(args).out;
        args.insert(args.end(), {"--sortie", "b.lst"});
        const Sortie ecrite = lancer(args);
        EXPECT_EQ(ecrite.statut, StatutFait) << ecrite.err;
        EXPECT_EQ(ecrite.out, "");
        const std::string relue = lancer("liste lire b.lst").out;
        EXPECT_EQ(relue.substr(relue.find('\n') + 1), affichee);
        EXPECT_EQ(relue.substr(0, relue.find('\n')),
                  std::to_string(std::count(affichee.begin(), affichee.end(), '\n')) + '\t' +
                      bornes[0] + (bornes[0] == "3" ? "\t1\t2\t4" : "\t0\t2\t4"));
    }
    refuse(std::string("comb bornes 3 2 9 --compter --sortie b.lst"), "ne vont pas ensemble");
    refuse(std::string("comb bornes 3 2 9 --sortie absent/b.lst"), "absent/b.lst");

    std::string texte = "2 1 0 2 2";
    for (int n = 5; n < 49; ++n) texte += " 0";
    poser(dossier / "a.slt", texte + " 1");
    EXPECT_EQ(lancer("selection lire a.slt").out, "absolue\t01 49\nsecondaire\t03 04\n");
    poser(dossier / "b.slt", texte);
    refuse(std::string("selection lire b.slt"), "s'arrête après 49");
}

TEST_F(Cli, Filtre) {
    std::string filtre = "0 1 0 0 0";  // those with a Chance
    for (int k = 0; k < 50; ++k) filtre += " 0";
    poser(dossier / "chances.flt", filtre);
    // The prizes stay at their places.
    Base base = QuatreTirages();
    for (std::size_t i = 0; i < 4; ++i) base.Rapports[i][0] = {1.0, 10.0 * static_cast<double>(i)};
    std::ostringstream entiere, attendue, seconde;
    EcrireTableCsv(entiere, base, 0, 3);
    poser(dossier / "base.csv", entiere.str());
    base.Tirages[1] = base.Tirages[2];
    EcrireTableCsv(attendue, base, 0, 1);
    EXPECT_EQ(lancer("--base base.csv filtre chances.flt").out, attendue.str());
    EcrireTableCsv(seconde, base, 1, 1);
    EXPECT_EQ(lancer("--base base.csv --de 2 --a 4 filtre chances.flt").out, seconde.str());
    poser(dossier / "tout.flt", "1 0" + filtre.substr(3));
    refuse(std::string("--base base.csv filtre tout.flt"), "Tous les tirages ont été conservés");
    poser(dossier / "rien.flt", filtre.substr(0, filtre.size() - 1) + "1");  // Sundays
    refuse(std::string("--base base.csv filtre rien.flt"), "moins de 2 tirages");
    refuse(std::string("--base base.csv filtre absent.flt"), "absent.flt");
}

TEST_F(Cli, MarquesDesBulletins) {
    poser(
        dossier / "a.grl", "7\n" + [] {
            std::string grilles;
            for (int g = 0; g < 6; ++g) grilles += "2.2 5 3 14 25 31 44 1 7\n";
            return grilles + "3 5 1 2 3 4 5 1 10\n";
        }());
    const std::string second =
        "bulletin\tgrille\tbloc\tvaleur\tx_mm\ty_mm\tcote_mm\n"
        "2\t1\tnumero\t1\t7.775\t16.475\t0.650\n2\t1\tnumero\t2\t11.575\t16.475\t0.650\n"
        "2\t1\tnumero\t3\t15.375\t16.475\t0.650\n2\t1\tnumero\t4\t19.175\t16.475\t0.650\n"
        "2\t1\tnumero\t5\t22.975\t16.475\t0.650\n2\t1\tchance\t10\t21.075\t60.575\t0.650\n"
        "2\t1\t2nd\t1\t22.975\t12.575\t0.650\n";
    EXPECT_EQ(lancer("bulletins a.grl --du 2 --marque 1").out, second);
    poser(dossier / "a.bul", "2\n-1 -1 -1 -1 -1 -1\n2 3 -1 1 -1 -1\n");
    EXPECT_EQ(lancer("bulletins a.grl --du 2 --au 2 --marque 1").out,
              second +
                  "2\t0\tsemaines\t2\t10.975\t144.975\t0.650\n"
                  "2\t0\tjoker1\t2\t20.975\t156.975\t0.650\n"
                  "2\t0\tjoker1\t3\t30.975\t156.975\t0.650\n"
                  "2\t0\tjour\t1\t10.975\t132.975\t0.650\n");
    poser(dossier / "NORVANE.INI",
          "[CONFIGURATION]\nDecalageImprimanteBordHaut=40\n"
          "DecalageImprimanteBordGauche=1.5\n");
    poser(dossier / "bulletin.ini", "[CASE]\ncote=0\n");
    const Sortie decalee = lancer("bulletins a.grl --du 2");
    EXPECT_EQ(decalee.statut, StatutFait);
    EXPECT_NE(decalee.out.find("2\t0\tjour\t1\t12.150\t172.650\t1.300\n"), std::string::npos);
    EXPECT_NE(decalee.err.find("La géométrie intégrée est employée"), std::string::npos);
    EXPECT_NE(decalee.err.find("2 marques tomberaient hors du papier"), std::string::npos);
    poser(dossier / "vide.grl", "0\n");
    const std::pair<const char*, const char*> refus[] = {
        {"bulletins vide.grl", "aucune grille"},
        {"bulletins a.grl --du 3", "--du va de 1 à 2, pas 3"},
        {"bulletins a.grl --au 0", "--au va de 1 à 2, pas 0"},
        {"bulletins a.grl --du 2 --au 1", "Bulletins croisés"},
        {"bulletins a.grl --marque 5", "--marque va de 1 à 4, pas 5"}};
    for (const auto& [ligne, dit] : refus) refuse(std::string(ligne), dit);
    poser(dossier / "a.bul", "2\n");
    refuse(std::string("bulletins a.grl"), "a.bul");
}

TEST_F(Cli, Analyses) {
    const Document rapport = RedigerAnalyses(QuatreTirages().enUsage(), 1, 3);
    EXPECT_EQ(lancer("--base quatre.csv --de 2 analyses").out, EnTexte(rapport));
    EXPECT_EQ(lancer("--base quatre.csv --de 2 analyses --format html").out,
              EnHtml(rapport, JeuStyles::RVStyle2, PlaceImages::DansLaPage));
    EXPECT_EQ(lancer("--base quatre.csv --de 2 analyses --sortie a.txt").out, "");
    EXPECT_EQ(lancer("--base quatre.csv --de 2 analyses --format html --sortie a.html").out, "");
    const auto fichiers = Contenu(dossier);
    EXPECT_EQ(fichiers.at("a.txt"), EnTexte(rapport));
    EXPECT_EQ(fichiers.at("a.html"), EnHtml(rapport, JeuStyles::RVStyle2, PlaceImages::Fichiers));
    EXPECT_TRUE(fichiers.contains("varoimg2.svg"));
    refuse(std::string("analyses --format pdf"), "« pdf »");
    refuse(std::string("--base quatre.csv analyses --sortie absent/a.txt"), "absent/a.txt");
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

TEST_F(Cli, NumerosEtChances) {
    const Args table{"--base",    "quatre.csv",    "nc",        "table",
                     "--numeros", "48 7 20 33 41", "--chances", "3 1"};
    EXPECT_EQ(lancer(table).out,
              "categorie\tNbFois\tDate\tEcart\tEcartMax\tNbEcartMax\tSuite\tSuiteMax\tNbSuiteMax\n"
              "0\t0\t-\t4\t4\t1\t0\t0\t1\n1\t0\t-\t4\t4\t1\t0\t0\t1\n"
              "2\t1\t20221005\t1\t2\t1\t0\t1\t1\n3\t2\t20221005\t0\t1\t2\t1\t1\t2\n"
              "4\t0\t-\t4\t4\t1\t0\t0\t1\n5\t0\t-\t4\t4\t1\t0\t0\t1\n"
              "6\t1\t20221003\t3\t3\t1\t0\t1\t1\n7\t0\t-\t4\t4\t1\t0\t0\t1\n"
              "8\t0\t-\t4\t4\t1\t0\t0\t1\n9\t0\t-\t4\t4\t1\t0\t0\t1\n"
              "10\t0\t-\t4\t4\t1\t0\t0\t1\n11\t0\t-\t4\t4\t1\t0\t0\t1\n");
    const auto liste = lancer(Args{"nc", "liste", "05 + 09C", "--numeros", "44 3 14 25 31"});
    EXPECT_EQ(Lignes(liste.out, 0, 1),
              "N: 03 14 25 31 44   C: 01 02 03 04 05 06 07 08 09 \n"
              "N: 03 14 25 31 44   C: 01 02 03 04 05 06 07 08 10 \n");
    EXPECT_EQ(std::count(liste.out.begin(), liste.out.end(), '\n'), 10);

    // 7 with 20 came out, 1 with 31 did not; the Chance 1 came out, 2 did not.
    const std::string deux = "N: 01 02 03 04 31   C: 02 \n", un = "N: 01 02 03 04 31   C: 01 \n";
    poser(dossier / "l.dat", "N: 02 03 04 07 20   C: 02 \n" + un + deux);
    EXPECT_EQ(lancer("--base quatre.csv nc filtre0 l.dat").out, un + deux);
    EXPECT_EQ(lancer("--base quatre.csv nc sorties l.dat").out, deux);
    EXPECT_EQ(lancer("--base quatre.csv --de 2 --a 3 nc sorties l.dat").out, un + deux);
    const auto ecrire = [&](int taille, const std::vector<Combinaison>& lignes) {
        Liste combinaisons = ListeDeCombinaisons(taille, lignes);
        combinaisons.DebutListe = combinaisons.FinListe = 1;
        ASSERT_TRUE(SauverListe(combinaisons, dossier / "c.lst"));
    };
    ecrire(5, {{{7, 20, 2, 3, 4}, 0}, {{1, 2, 3, 4, 31}, 0}});
    EXPECT_EQ(lancer("--base quatre.csv nc jamais c.lst").out,
              "N: 01 02 03 04 31   C: 01 02 03 04 05 06 07 08 09 10 \n");
    ecrire(4, {{{1, 2, 3, 4}, 0}});
    refuse(std::string("nc jamais c.lst"), "tient des combinaisons de 4 numéros");
    poser(dossier / "l.dat", un + "N: 01 02 03 04 50   C: 01 \n");
    refuse(std::string("nc filtre0 l.dat"), "ligne 2, le numéro 50 n'existe pas");
    refuse(Args{"nc", "table", "--numeros", "1 2 3 4 5 6 7", "--chances", "1 2 3 4 5 6 7 8 9"},
           "Une grille 07 + 09C n'est pas vendue");
    refuse(Args{"nc", "table", "--numeros", "1 2 3 4 5", "--chances", "11"},
           "« 11 » n'est pas une chance de 1 à 10");
    refuse(Args{"nc", "liste", "06 + 01C", "--numeros", "1 2 3 4 5"},
           "Une grille 06 + 01C prend 6 numéros");
}

TEST_F(Cli, HistoriqueDansChaqueFormat) {
    const std::string entete = "Tirage\tDate\tN1\tN2\tN3\tN4\tN5\tChance\tEcart\tSuite\tPoids\n";
    const std::string fin =
        "3\t20221005\t7\t20\t33\t41\t49\t3\t1\t1\t153\n"
        "4\t20221005\t1\t7\t20\t33\t41\t0\t0\t2\t102\n";
    const std::string quatre = "--base quatre.csv historique numero 20";
    EXPECT_EQ(lancer(quatre).out, entete + "1\t20221003\t7\t20\t23\t31\t40\t1\t0\t1\t122\n" + fin);
    EXPECT_EQ(lancer("--base quatre.csv --de 2 historique numero 20 --tout").out,
              entete + "2\t20221003\t7\t25\t33\t41\t48\t0\t0\t0\t154\n" + fin);
    EXPECT_EQ(lancer("--base quatre.csv historique chance 3").out,
              entete + "3\t20221005\t7\t20\t33\t41\t49\t3\t2\t1\t153\n");

    const Base base = QuatreTirages();
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    const TableauExporte tableau = ExporterHistorique(
        FaireHistorique(base, occ, Element{GenreStats::Numeros, 20}, 1, 4), VueHistorique::Sorties);
    for (const auto& [nom, format] : {std::pair{"txt", FormatTableau::Texte},
                                      {"html", FormatTableau::Html},
                                      {"csv", FormatTableau::Csv},
                                      {"odt", FormatTableau::OpenDocument}}) {
        const Sortie sortie = lancer(quatre + " --sortie essai --format " + nom);
        EXPECT_EQ(sortie.out + sortie.err, "");
        EXPECT_EQ(lire(dossier / "essai"), *Exporter(tableau, format)) << nom;
    }
    EXPECT_EQ(lancer(quatre + " --format csv").out, EnCsv(tableau));
    EXPECT_EQ(lancer(quatre + " --format xlsx --sortie essai").statut, StatutFait);
    EXPECT_EQ(lire(dossier / "essai").substr(0, 2), "PK");

    for (const char* suite : {" --format xlsx", " --format odt", " --format doc --sortie essai"})
        EXPECT_EQ(lancer(quatre + suite).statut, StatutUsage) << suite;
    refuse(std::string("--base quatre.csv --de 2 historique numero 31"),
           "Numéro non sorti sur la période...");
    refuse(std::string("--base quatre.csv historique chance 10"),
           "Chance non sortie sur la période...");
    refuse(std::string("historique chance 11"), "X");
    poser(dossier / "essai", "ancien");
    refuse(quatre + " --sortie absent/essai", "absent/essai");
    refuse(quatre + " --sortie /dev/full", "/dev/full");
    refuse(std::string("--base quatre.csv --de 4 historique numero 49 --sortie essai"),
           "Numéro non sorti");
    EXPECT_EQ(lire(dossier / "essai"), "ancien");
}

}  // namespace
}  // namespace norvane
