// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <sstream>

#include "BancCli.h"
#include "base/Archive.h"
#include "base/BaseIntegree.h"
#include "base/Stockage.h"
#include "base/TableCsv.h"
#include "cli/Executer.h"
#include "comb/EtatCombinaisons.h"
#include "Dossier.h"
#include "lists/FichiersListes.h"
#include "reports/Analyses.h"
#include "reports/DocumentExport.h"
#include "reports/Historique.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {
namespace {

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

TEST_F(Cli, Systemes) {
    EXPECT_EQ(Lignes(lancer("systemes catalogue 2/2").out, 0, 0),
              "Sélection: 06 Garantie: 2/2 Base: 0 Grilles: 0003\n");
    const std::string neuf = "1 2 3 4 5 6 7 8 9";
    const Args generer = {"systemes", "generer", "3/3", "--numeros", neuf, "--fixes", "4"};
    const std::string grilles = lancer(generer).out;
    poser(dossier / "s.txt", grilles);
    const auto verifier = [&](const char* fichier) {
        return lancer(
            Args{"systemes", "verifier", fichier, "3/3", "--numeros", neuf, "--fixes", "4"});
    };
    EXPECT_EQ(verifier("s.txt").out, "garantie tenue\ncas\t28\nmanques\t0\n");
    Args ecrire = generer;
    ecrire.insert(ecrire.end(), {"--sortie", "s.syr"});
    EXPECT_EQ(lancer(ecrire).statut, 0);
    const std::string lu = lancer("systemes lire s.syr").out;
    const auto nombre = std::count(grilles.begin(), grilles.end(), '\n');
    EXPECT_EQ(Lignes(lu, 0, 2), std::to_string(nombre) + " 5 9 1 3 3\n1 2 3 5 6 7 8 9 \n4 \n");
    // One grid holds three of five drawn numbers, two of which are in it, not of any others.
    poser(dossier / "une.txt", "01 02 03 04 05\n");
    EXPECT_EQ(Lignes(verifier("une.txt").out, 0, 3),
              "garantie non tenue\ncas\t28\nmanques\t22\n01 04 06\n");
    refuse(Args{"systemes", "generer", "3/3", "--numeros", "1 2 3 4 5"}, "Il n'y a pas de système");
    refuse(Args{"systemes", "generer", "5/5", "--numeros", neuf}, "n'est pas une garantie");
    refuse(Args{"systemes", "generer", "3/3", "--numeros", neuf, "--fixes", "10"}, "--fixes");
    refuse("systemes lire quatre.csv", "quatre.csv");
}

TEST_F(Cli, Importer) {
    std::string archive = "date_de_tirage;boule_1;boule_2;boule_3;boule_4;boule_5;numero_chance";
    for (int r = 1; r <= 6; ++r)
        archive += fmt::format(";nombre_de_gagnant_au_rang{};rapport_du_rang{}", r, r);
    const std::string rapports = ";0;0;0;0;0;0;0;0;0;0;0;0\n";
    poser(dossier / "a.csv", archive + "\n27/07/2024;5;4;3;2;1;6" + rapports + "27/07/24;x\n");
    poser(dossier / NomCombCalc, "de cette base");
    const Sortie premier = lancer("importer a.csv");
    EXPECT_EQ(premier.out, "ajoutes\t1\nmodifies\t0\ninchanges\t0\n");
    EXPECT_NE(premier.err.find("ligne 3 laissée de côté"), std::string::npos) << premier.err;
    EXPECT_EQ(lancer("importer a.csv").out, "ajoutes\t0\nmodifies\t0\ninchanges\t1\n");
    const auto base = LireStockage(dossier / NomStockage);
    ASSERT_TRUE(base);
    EXPECT_EQ(base->NbTirages, BaseIntegree(false).NbTirages + 1);
    EXPECT_EQ(base->Tirages.back().DateTirage, 20240727);
    EXPECT_EQ(lire(dossier / NomCombCalc), "de cette base");
    // A known draw told differently: what was computed on it is void.
    poser(dossier / "b.csv", archive + "\n27/07/2024;5;4;3;2;1;7" + rapports);
    EXPECT_EQ(lancer("importer b.csv").out, "ajoutes\t0\nmodifies\t1\ninchanges\t0\n");
    EXPECT_EQ(Lignes(lire(dossier / NomCombCalc), 0, 0), "0 0 1\n");
    refuse("importer quatre.csv", "n'est pas l'archive officielle");
    refuse("--base quatre.csv importer a.csv", "quatre.csv");
}

}  // namespace
}  // namespace norvane
