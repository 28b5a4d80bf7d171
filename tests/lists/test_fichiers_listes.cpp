// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <sstream>

#include "base/Archive.h"
#include "Dossier.h"
#include "lists/FichiersListes.h"
#include "lists/FichiersSelections.h"

namespace norvane {
namespace {

/// What unzip would give: the bytes of an archive of these members.
std::string Archive(std::initializer_list<MembreArchive> membres) {
    return *FaireArchive(std::vector(membres));
}

std::string Membre(const std::filesystem::path& fichier) {
    return LireFichierArchive(fichier, 1 << 20)->contenu;
}

Liste Lire(const std::filesystem::path& fichier) {
    auto lue = OuvrirListe(fichier, {});
    EXPECT_TRUE(lue) << lue.erreur();
    return lue ? *lue : Liste{};
}

/// Random records of a type, every word a 16-bit value, the numbers ascending.
Liste ListeAuHasard(Disposition d, std::size_t nombre, std::mt19937& alea) {
    Liste liste;
    liste.arene.disposition = d;
    liste.DebutListe = 100;
    liste.FinListe = 600;
    constexpr Mot tailles[] = {0, 9, 10, 99, 100, 999, 1000, 9999, 10000, 65535};
    for (std::size_t i = 0; i < nombre; ++i) {
        for (int mot = 0; mot < d.numeros(); ++mot)
            liste.arene.mots.push_back(tailles[alea() % std::size(tailles)]);
        Ensemble numeros;
        while (numeros.taille() < d.taille) numeros.ajouter(1 + static_cast<int>(alea() % 49));
        liste.arene.mots.insert(liste.arene.mots.end(), numeros.begin(), numeros.end());
    }
    CompterRangs(liste);
    return liste;
}

TEST(FichiersListes, TexteDuMembreEtExport) {
    const Dossier dossier;
    Liste liste = ListeDeCombinaisons(2, std::vector<Combinaison>{{{7, 20}, 3}, {{7, 33}, 112}});
    liste.DebutListe = 100;
    liste.FinListe = 600;
    liste.ordre = {1, 0};
    liste.marques = {true, false};
    ASSERT_TRUE(SauverListe(liste, dossier / "a:b.x.lst"));
    const auto membre = LireFichierArchive(dossier / "a:b.x.lst", 1 << 20);
    ASSERT_TRUE(membre);
    EXPECT_EQ(membre->nom, "a_b.x.tmp");
    EXPECT_EQ(membre->contenu, "2 2 0 100 600\n112 0 0 0 0 7 33\n3 0 0 0 0 7 20\n");
    EXPECT_EQ(TailleTexteListe(liste), membre->contenu.size());
    ASSERT_TRUE(ExporterListe(liste, dossier / "a.txt"));
    EXPECT_EQ(lire(dossier / "a.txt"), "07 33  (112)\n07 20  (03) N\n");
    EXPECT_FALSE(ExporterListe(liste, dossier / "absent/a.txt"));
}

TEST(FichiersListes, TousLesTypesReviennentTelsQuels) {
    const Dossier dossier;
    std::mt19937 alea(20240724);
    const FormeGains formes[] = {FormeGains::de({0, 0, 500, 100000}), {0}, {}};
    for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille)
        for (const ModeStockage mode :
             {ModeStockage::PremierRang, ModeStockage::RangsDeGain, ModeStockage::TousLesRangs}) {
            const FormeGains forme = formes[taille % 3];
            const auto liste = ListeAuHasard({taille, mode, forme}, 40, alea);
            ASSERT_TRUE(SauverListe(liste, dossier / "l.lst"));
            const auto lue = OuvrirListe(dossier / "l.lst", forme);
            ASSERT_TRUE(lue) << lue.erreur();
            ASSERT_EQ(lue->arene.disposition, liste.arene.disposition);
            ASSERT_EQ(lue->arene.mots, liste.arene.mots);
            ASSERT_EQ(std::pair(lue->DebutListe, lue->FinListe), std::pair(100, 600));
            ASSERT_EQ(lue->NbCombRangs, liste.NbCombRangs);
            ASSERT_TRUE(lue->ordre.empty() && lue->marques.empty());
        }
}

TEST(FichiersListes, FormesAdmises) {
    const Dossier dossier;
    for (const char* texte : {"1 2 0 100 600 3 0 1 2 2 7 20",
                              "\xEF\xBB\xBF 1\r\n02\t0\n100\n600\r\n3 0 1 2 2 7 20 \r\n"}) {
        poser(dossier / "a.lst", Archive({{"autre nom.txt", texte}}));
        const Liste lue = Lire(dossier / "a.lst");
        EXPECT_EQ(lue.arene.mots, (std::vector<Mot>{3, 0, 1, 2, 2, 7, 20}));
        EXPECT_EQ(lue.DebutListe, 100);
    }
    poser(dossier / "vide.lst", Archive({{"vide.tmp", "0 5 2 1 3214"}}));
    const Liste vide = Lire(dossier / "vide.lst");
    EXPECT_TRUE(vide.vide() && vide.taille() == 5 && vide.mode() == ModeStockage::TousLesRangs);
}

TEST(FichiersListes, Refus) {
    const std::string un = "1 2 0 100 600 3 0 1 2 2 7 20";
    const auto texte = [](const char* t) { return Archive({{"a.tmp", t}}); };
    const struct {
        std::string octets;
        const char* dit;
    } cas[] = {
        {un, "n'est pas une archive ZIP lisible"},
        {Archive({{"a.tmp", un}, {"b.tmp", un}}), "contient 2 fichiers"},
        {Archive({{"../a.tmp", un}}), "rangé dans un dossier"},
        {texte(""), "le nombre de combinaisons doit être un entier de 0 à 2147483647"},
        {texte("1 2 0 100"), "le dernier tirage doit être un entier de 1 à 65534, et non «  »"},
        {texte("1 1 0 1 2 "), "la taille des combinaisons doit être un entier de 2 à 10"},
        {texte("1 11 0 1 2 "), "et non « 11 »"},
        {texte("1 2 7 100 600 3 0 1 2 2 7 20"), "le mode de stockage doit être un entier de 0 à 2"},
        {texte("1 2 0 0 600 3 0 1 2 2 7 20"), "le premier tirage"},
        {texte("1 2 0 600 599 3 0 1 2 2 7 20"), "croisé, de 600 à 599"},
        {texte("1 2 0 1 65535 3 0 1 2 2 7 20"), "le dernier tirage"},
        {texte("-1 2 0 1 2"), "« -1 »"},
        {texte("99999999999999999999 2 0 1 2"), "le nombre de combinaisons"},
        {texte("2 2 0 1 2 3 0 1 2 2 7 20 3 0 1 deux 2 7 20"),
         "la valeur 4 de la combinaison 2 (« deux »)"},
        {texte("1 2 0 1 2 3 0 65536 2 2 7 20"), "la valeur 3 de la combinaison 1 (« 65536 »)"},
        {texte("1 2 0 1 2 3 0 1.5 2 2 7 20"), "« 1.5 »"},
        {texte("2000000000 10 2 1 2 3 0 1 2 2 7 20"),
         "soit 130000000000 valeurs, et le fichier en "
         "contient 7"},
        {texte("1 2 0 1 2 3 0 1 2 2 7 20 1"), "soit 7 valeurs, et le fichier en contient 8"},
        {texte("0 2 1 1 2 3"), "soit 0 valeurs"},
        {texte("2 2 0 1 2 3 0 1 2 2 7 20 3 0 1 2 2 20 20"),
         "les numéros de la combinaison 2 ne vont pas de 1 à 49"},
        {texte("1 2 0 1 2 3 0 1 2 2 0 20"), "les numéros de la combinaison 1"},
        {texte("1 2 0 1 2 3 0 1 2 2 7 50"), "les numéros de la combinaison 1"},
        // Three numbers over the two prize ranks of today take 13 words.
        {texte("2 3 1 1 2 3 0 1 2 2 7 20 30 3 0 1 2 2 7 20 31"),
         "prend 8 valeurs, et 13 avec les gains actuels"},
    };
    const Dossier dossier;
    for (const auto& [octets, dit] : cas) {
        poser(dossier / "liste é.lst", octets);
        const auto lue = OuvrirListe(dossier / "liste é.lst", {});
        ASSERT_FALSE(lue) << dit;
        EXPECT_TRUE(lue.erreur().starts_with("« liste é.lst »")) << lue.erreur();
        EXPECT_NE(lue.erreur().find(dit), std::string::npos) << lue.erreur() << '\n' << dit;
    }
    EXPECT_FALSE(OuvrirListe(dossier / "absente.lst", {}));
}

TEST(FichiersListes, BombeRefuseeAvantDEtreDepliee) {
    const Dossier dossier;
    std::string bombe = Archive({{"a.tmp", std::string(std::size_t{1} << 20, ' ')}});
    // The size told in the local header and in the central one: 3 GiB.
    for (std::size_t place = 0;
         (place = bombe.find(std::string("\0\0\x10\0", 4), place)) != std::string::npos;)
        bombe.replace(place, 4, std::string("\0\0\0\xC0", 4));
    poser(dossier / "a.lst", bombe);
    const auto lue = OuvrirListe(dossier / "a.lst", {});
    ASSERT_FALSE(lue);
    EXPECT_NE(lue.erreur().find("est trop grand : 3072 Mo"), std::string::npos) << lue.erreur();
}

TEST(FichiersListes, ArretSansRienChanger) {
    const Dossier dossier;
    std::mt19937 alea(1);
    const auto liste = ListeAuHasard({5, ModeStockage::TousLesRangs}, 20000, alea);
    ASSERT_TRUE(SauverListe(liste, dossier / "a.lst"));
    poser(dossier / "b.lst", "ancien");
    poser(dossier / "b.txt", "ancien");
    std::stop_source arret;
    Progres progres;
    const Suivi suivi{arret.get_token(), &progres};
    ASSERT_TRUE(OuvrirListe(dossier / "a.lst", {}, suivi));
    EXPECT_EQ(progres.total(), 200);
    EXPECT_GT(progres.fait(), 100);
    arret.request_stop();
    EXPECT_EQ(OuvrirListe(dossier / "a.lst", {}, suivi).erreur(), "Lecture arrêtée.");
    EXPECT_EQ(SauverListe(liste, dossier / "b.lst", suivi).erreur(), "Écriture arrêtée.");
    EXPECT_EQ(ExporterListe(liste, dossier / "b.txt", suivi).erreur(), "Écriture arrêtée.");
    EXPECT_EQ(lire(dossier / "b.lst") + lire(dossier / "b.txt"), "ancienancien");
}

// Sound files with bytes changed, cut out or doubled: refused with a sentence, or a list that comes
// back the same once it is written.
TEST(FichiersListes, TextesAlteres) {
    const Dossier dossier;
    std::mt19937 alea(7);
    std::vector<std::string> textes;
    for (const auto mode :
         {ModeStockage::PremierRang, ModeStockage::RangsDeGain, ModeStockage::TousLesRangs}) {
        ASSERT_TRUE(SauverListe(ListeAuHasard({3, mode}, 3, alea), dossier / "s.lst"));
        textes.push_back(Membre(dossier / "s.lst"));
    }
    int lues = 0;
    for (int essai = 0; essai < 3000; ++essai) {
        std::string t = textes[alea() % textes.size()];
        for (std::size_t fois = 1 + alea() % 3; fois > 0; --fois) {
            const std::size_t place = alea() % t.size();
            if (alea() % 3 == 0)
                t.erase(place, 1 + alea() % 8);
            else if (alea() % 2 == 0)
                t.insert(place, t.substr(alea() % t.size(), alea() % 8));
            else
                t[place] = "0123456789 \n-a"[alea() % 14];
        }
        std::string octets = Archive({{"s.tmp", t}});
        if (essai % 4 == 0) octets[alea() % octets.size()] = static_cast<char>(alea());
        std::filesystem::remove(dossier / "t.lst");  // to write over it may wait for the disk
        poser(dossier / "t.lst", octets);
        const auto lue = OuvrirListe(dossier / "t.lst", {});
        if (!lue) {
            ASSERT_FALSE(lue.erreur().empty());
            continue;
        }
        if (++lues % 50 != 0) continue;  // to the disk each time
        ASSERT_TRUE(SauverListe(*lue, dossier / "u.lst"));
        ASSERT_EQ(Lire(dossier / "u.lst").arene.mots, lue->arene.mots);
    }
    EXPECT_GT(lues, 100);
    EXPECT_LT(lues, 2900);
}

TEST(FichiersSelections, Grille) {
    const Dossier dossier;
    GrilleSelection grille{};
    grille[0] = grille[48] = Priorite::Absolue;
    grille[2] = Priorite::Secondaire;
    ASSERT_TRUE(SauverSelection(grille, dossier / "a.slt"));
    std::string texte = "2 1 0 2";
    for (int n = 4; n < 49; ++n) texte += " 0";
    texte += " 1\n";
    EXPECT_EQ(lire(dossier / "a.slt"), texte);
    EXPECT_EQ(*OuvrirSelection(dossier / "a.slt"), grille);
    const std::string corps = texte.substr(2, texte.size() - 3);
    const std::pair<std::string, const char*> cas[] = {
        {"", "s'arrête après 0"},
        {"2 " + corps.substr(2), "s'arrête après 49"},
        {"2 " + corps + " 0", "continue par « 0 »"},
        {"2 3" + corps.substr(1), "la valeur 2 (« 3 »)"},
        {"50 " + corps, "la valeur 1 (« 50 ») n'est pas un entier de 0 à 49"},
        {"2 un" + corps.substr(1), "« un »"},
        {"3 " + corps, "3 numéros en priorité absolue sont annoncés, et 2 cochés"},
    };
    for (const auto& [contenu, dit] : cas) {
        poser(dossier / "b.slt", contenu);
        const auto lue = OuvrirSelection(dossier / "b.slt");
        ASSERT_FALSE(lue) << contenu;
        EXPECT_NE(lue.erreur().find(dit), std::string::npos) << lue.erreur();
        EXPECT_NE(lue.erreur().find("b.slt"), std::string::npos) << lue.erreur();
    }
}

TEST(FichiersSelections, Listes) {
    const Dossier dossier;
    Ensemble trente_cinq;
    for (int n = 15; n <= 49; ++n) trente_cinq.ajouter(n);
    const std::vector<Ensemble> selections = {{1, 7, 49}, {8, 9}, trente_cinq};
    ASSERT_TRUE(SauverSelections(selections, dossier / "a.sel"));
    const std::string texte = lire(dossier / "a.sel");
    EXPECT_TRUE(texte.starts_with("01 07 49  (3 N°)\n08 09  (2 N°)\n15 16 17 ")) << texte;
    EXPECT_TRUE(texte.ends_with(" 48 49  (35 N°)\n")) << texte;
    EXPECT_EQ(*OuvrirSelections(dossier / "a.sel"), selections);
    poser(dossier / "b.sel",
          "\xEF\xBB\xBF"
          "07 01 49  (3 N°)\r\n8 9 (2 N°)  \r\n\r\n");
    EXPECT_EQ(OuvrirSelections(dossier / "b.sel")->front(), selections.front());

    const std::pair<std::string, const char*> cas[] = {
        {"", "ne contient aucune sélection"},
        {"01 07\n", "la ligne 1 (« 01 07 »)"},
        {texte + "01 07  2 N°)\n", "la ligne 4"},
        {"01 07  (3 N°)\n", "la ligne 1"},
        {"01 50  (2 N°)\n", "la ligne 1"},
        {"00 07  (2 N°)\n", "la ligne 1"},
        {"07 07  (2 N°)\n", "la ligne 1"},
        {"07  (1 N°)\n", "la ligne 1"},
        {"01 07  (2 N°) suite\n", "la ligne 1"},
        {LigneSelection(trente_cinq.avec({1})) + '\n', "la ligne 1"},
        {"08 09  (2 N°)\n\n08 09  (2 N°)\n", "la ligne 2"},
    };
    for (const auto& [contenu, dit] : cas) {
        poser(dossier / "c.sel", contenu);
        const auto lue = OuvrirSelections(dossier / "c.sel");
        ASSERT_FALSE(lue) << contenu;
        EXPECT_NE(lue.erreur().find(dit), std::string::npos) << lue.erreur();
    }
}

}  // namespace
}  // namespace norvane
