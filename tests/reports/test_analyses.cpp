// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <set>
#include <sstream>

#include "base/BaseIntegree.h"
#include "Dossier.h"
#include "OracleStats.h"
#include "reports/Analyses.h"
#include "reports/DocumentExport.h"

namespace norvane {
namespace {

/// 22 draws: three counts that rise from 0 and tie, then ties of both records and a pair of none.
std::vector<Tirage> PetiteBase() {
    static constexpr int Numeros[][NbBoules] = {
        {7, 20, 23, 31, 40},  {6, 25, 33, 41, 48}, {6, 25, 33, 42, 49},  {6, 25, 34, 42, 48},
        {1, 2, 3, 4, 5},      {1, 2, 10, 20, 30},  {1, 2, 10, 20, 31},   {8, 9, 10, 20, 32},
        {8, 9, 11, 21, 33},   {8, 12, 22, 34, 44}, {13, 14, 22, 34, 44}, {13, 14, 22, 35, 45},
        {14, 15, 22, 35, 46}, {2, 16, 22, 36, 47}, {2, 16, 22, 36, 47},  {3, 17, 24, 36, 48},
        {3, 17, 25, 37, 49},  {4, 18, 26, 37, 38}, {5, 19, 26, 38, 39},  {7, 19, 27, 39, 40},
        {10, 20, 28, 40, 41}, {11, 21, 29, 42, 43}};
    std::vector<Tirage> tirages;
    for (const auto& numeros : Numeros) {
        const int date = 20240102 + static_cast<int>(tirages.size());
        tirages.push_back({{}, 1, 0, 2024001, date, 1, 0});
        std::copy_n(numeros, NbBoules, tirages.back().Numeros);
    }
    tirages[0].DateTirage = 20221003;
    return tirages;
}

std::vector<std::string> Lignes(const std::string& texte) {
    std::istringstream flux(texte);
    std::vector<std::string> lignes;
    for (std::string ligne; std::getline(flux, ligne);) lignes.push_back(ligne);
    return lignes;
}

/// The lines of a chapter or a part, from the one behind its heading to the next heading.
std::vector<std::string> Partie(const Document& document, const std::string& ancre) {
    const auto numero = static_cast<std::size_t>(document.numeroAncre(ancre));
    const bool derniere = numero + 1 == document.ancres.size();
    const auto fin = derniere ? document.blocs.size()
                              : static_cast<std::size_t>(document.ancres[numero + 1].bloc);
    std::vector<std::string> lignes;
    for (auto b = static_cast<std::size_t>(document.ancres[numero].bloc) + 1; b < fin; ++b)
        lignes.push_back(document.blocs[b].texte());
    return lignes;
}

/// The integers of a line, in their order.
std::vector<int> Entiers(const std::string& ligne) {
    std::string chiffres = ligne;
    for (char& c : chiffres)
        if (c < '0' || c > '9') c = ' ';
    std::istringstream flux(chiffres);
    return {std::istream_iterator<int>(flux), {}};
}

TEST(Analyses, RapportsEntiers) {
    const std::vector<Tirage> tirages = PetiteBase();
    const struct {
        const char* fichier;
        int inf, sup;
    } rapports[] = {{"un.txt", 0, 0}, {"quatre.txt", 0, 3}, {"onze.txt", 11, 21}};
    for (const auto& [fichier, inf, sup] : rapports) {
        const auto voulues =
            Lignes(lire(std::filesystem::path(NORVANE_DONNEES) / "analyses" / fichier));
        const auto ecrites = Lignes(EnTexte(RedigerAnalyses(tirages, inf, sup)));
        ASSERT_EQ(ecrites.size(), voulues.size()) << fichier;
        for (std::size_t i = 0; i < voulues.size(); ++i)
            EXPECT_EQ(ecrites[i], voulues[i]) << fichier << ':' << i + 1;
    }
}

/// Of the ten last pairs, those of a base too young for them do not show.
TEST(Analyses, DixDerniersAuDebutDeLaBase) {
    const std::vector<Tirage> tirages = PetiteBase();
    const int attendues[][3] = {{0, 10, 1}, {0, 14, 5}, {3, 18, 9}, {3, 19, 10}, {11, 21, 10}};
    for (const auto& [inf, sup, nombre] : attendues) {
        const auto lignes = Partie(RedigerAnalyses(tirages, inf, sup), "10communs");
        EXPECT_EQ(std::ranges::count_if(
                      lignes, [](const auto& l) { return l.starts_with("les numéros en commun"); }),
                  nombre)
            << sup;
    }
    EXPECT_EQ(RedigerAnalyses(tirages, 0, 9).numeroAncre("10communs"), SansAncre);
}

/// Equal counts give the odd numbers first; the first case of one draw has one number.
TEST(Analyses, PhrasesAuSingulierEtAEgalite) {
    std::vector<Tirage> tirages = PetiteBase();
    tirages.resize(2);
    std::copy_n(std::array{1, 2, 3, 4, 6}.begin(), NbBoules, tirages[0].Numeros);
    std::copy_n(std::array{2, 5, 7, 9, 10}.begin(), NbBoules, tirages[1].Numeros);
    const Document deux = RedigerAnalyses(tirages, 0, 1);
    EXPECT_EQ(Partie(deux, "nbpairsimpairs")[1],
              "Les 2 tirages totalisent 5 nombres impairs contre 5 nombres pairs");
    EXPECT_EQ(Partie(deux, "calculcommuns")[1], "1 numéro en commun");
    EXPECT_EQ(Partie(RedigerAnalyses(tirages, 0, 0), "nbpairsimpairs")[1],
              "Le tirage totalise 3 nombres pairs contre 2 nombres impairs");
}

/// All 119 links by number, in the three shapes of a report, and the numbers of the anchors.
TEST(Analyses, LiensParNumero) {
    const std::vector<Tirage> tirages = PetiteBase();
    for (const int n : {1, 4, 22}) {
        const Document document = RedigerAnalyses(tirages, 0, n - 1);
        std::vector<std::string> chapitres{
            "calculcommuns", "bilancommuns",   "moyennecommuns", "10communs", "stats",
            "terminaisons",  "nbpairsimpairs", "septaines",      "cases",     "rayonnement"};
        if (n < 11) chapitres.erase(chapitres.begin() + 3);
        if (n < 2) chapitres.erase(chapitres.begin(), chapitres.begin() + 3);
        std::vector<std::string> ancres = chapitres;
        for (int k = 5; k > 0; --k) ancres.insert(ancres.end() - 1, "case" + std::to_string(6 - k));
        for (int k = 1; k <= 49; ++k) ancres.push_back("numero" + std::to_string(k));
        ASSERT_EQ(document.ancres.size(), ancres.size());
        for (std::size_t a = 0; a < ancres.size(); ++a) {
            EXPECT_EQ(document.ancres[a].nom, ancres[a]);
            EXPECT_EQ(document.blocs[static_cast<std::size_t>(document.ancres[a].bloc)].ancre,
                      static_cast<int>(a));
        }
        // What each link leads to and says.
        std::vector<std::pair<std::string, std::string>> attendus;
        for (const std::string& c : chapitres) {
            const int bloc =
                document.ancres[static_cast<std::size_t>(document.numeroAncre(c))].bloc;
            attendus.emplace_back(c, document.blocs[static_cast<std::size_t>(bloc)].texte());
            if (c == "septaines") attendus.back().second = "Analyse des dizaines";
        }
        for (int k = 1; k <= 5; ++k)
            attendus.emplace_back("case" + std::to_string(k), "Case N°" + std::to_string(k));
        for (int k = 0; k < 5; ++k) attendus.emplace_back("cases", "Retour au choix des cases");
        for (int rangee = 1; rangee <= 10; ++rangee)
            for (int k = rangee; k <= 49; k += 10)
                attendus.emplace_back("numero" + std::to_string(k), "Numéro " + std::to_string(k));
        for (int k = 0; k < 49; ++k)
            attendus.emplace_back("rayonnement", "Retour au choix des numéros");
        attendus.emplace_back("", "Retour au Sommaire");
        ASSERT_EQ(document.liens.size(), attendus.size());
        EXPECT_EQ(attendus.size(), n == 1 ? 115U : n == 4 ? 118U : 119U);
        for (std::size_t l = 0; l < attendus.size(); ++l) {
            EXPECT_EQ(document.liens[l].cible, attendus[l].first) << l;
            EXPECT_EQ(document.liens[l].survol, attendus[l].second) << l;
            const int ancre = document.numeroAncre(attendus[l].first);
            EXPECT_EQ(document.blocDuLien(static_cast<int>(l)),
                      ancre < 0 ? 0 : document.ancres[static_cast<std::size_t>(ancre)].bloc);
        }
        EXPECT_EQ(document.blocDuLien(static_cast<int>(attendus.size())), -1);
        EXPECT_EQ(document.blocDuLien(-1), -1);
        // Each stands in the text once, in that order, and says what it leads to.
        int suivant = 0;
        for (const Bloc& bloc : document.blocs)
            for (const Fragment& f : bloc.fragments)
                if (f.lien != SansLien) {
                    EXPECT_EQ(f.lien, suivant);
                    const std::string& dit = attendus[static_cast<std::size_t>(suivant++)].second;
                    EXPECT_TRUE(f.style != Style::Retour || f.texte == ' ' + dit) << dit;
                    EXPECT_TRUE(f.style != Style::LienTable || Entiers(f.texte) == Entiers(dit))
                        << dit;
                }
        EXPECT_EQ(suivant, static_cast<int>(attendus.size()));
    }
}

TEST(Analyses, ChiffresDeLaBaseEntiere) {
    const Base base = BaseIntegree(true);
    const int n = base.NbTirages;
    const Document document = RedigerAnalyses(base.enUsage(), 0, n - 1);
    int rang = 0, avant = n;
    for (const std::string& ligne : Partie(document, "stats")) {
        const std::vector<int> v = Entiers(ligne);
        if (v.empty()) continue;
        ASSERT_EQ(v.size(), 7U) << ligne;
        const ResultatStats s = OracleStats(PresencesNumero(base, v[1]), 0, n - 1);
        EXPECT_EQ(v, (std::vector<int>{++rang, v[1], s.Sorties, s.Ecart, s.EcartMax, s.Suite,
                                       s.SuiteMax}));
        EXPECT_LE(v[2], avant);
        avant = v[2];
    }
    EXPECT_EQ(rang, NumeroMax);
    // Each number at each place of the draw: times and last draw.
    for (std::size_t k = 0; k < NbBoules; ++k) {
        std::map<int, std::pair<int, int>> compte;
        for (int i = 0; i < n; ++i) {
            auto& c = compte[base.Tirages[static_cast<std::size_t>(i)].Numeros[k]];
            c = {c.first + 1, i + 1};
        }
        for (const std::string& ligne : Partie(document, "case" + std::to_string(k + 1))) {
            if (!ligne.starts_with("Le numéro ")) continue;
            const std::vector<int> v = Entiers(ligne);
            EXPECT_EQ(compte[v[0]], std::pair(v[1], v[2])) << ligne;
            compte.erase(v[0]);
        }
        EXPECT_TRUE(compte.empty());
    }
    for (const char* ancre : {"septaines", "terminaisons"}) {
        int total = 0;
        for (const std::string& ligne : Partie(document, ancre))
            if (!ligne.empty()) total += Entiers(ligne).back();
        EXPECT_EQ(total, NbBoules * n);
    }
}

/// An empty slot stops the count of its draw and no more.
TEST(Analyses, TirageVide) {
    std::vector<Tirage> tirages = PetiteBase();
    tirages.resize(3);
    tirages[1] = {{}, 0, 0, 0, 20240103, 1, 0};
    const Document document = RedigerAnalyses(tirages, 0, 2);
    EXPECT_EQ(Partie(document, "nbpairsimpairs")[1],
              "Les 3 tirages totalisent 6 nombres impairs contre 4 nombres pairs");
    EXPECT_EQ(Entiers(Partie(document, "stats")[2]), (std::vector<int>{1, 6, 1, 0, 1, 1, 1}));
}

TEST(Document, LignesDuTexte) {
    Document document;
    Redacteur r(document);
    const std::string cent(100, 'x');
    r.ligne(Style::Corps, cent);
    r.ligne(Style::Corps, cent + "yz");
    r.ligne(Style::Corps, std::string(99, 'x') + " é " + std::string(97, 'z') + "é suite ");
    r.centree(Style::Corps, "éà");
    r.suite(Style::Total, "c");
    r.filet();
    const auto lignes = Lignes(EnTexte(document));
    ASSERT_EQ(lignes.size(), 8U);
    EXPECT_EQ(lignes[0], cent);
    EXPECT_EQ(lignes[1], cent);
    EXPECT_EQ(lignes[2], "yz");
    EXPECT_EQ(lignes[3], std::string(99, 'x'));
    EXPECT_EQ(lignes[4], "é " + std::string(97, 'z') + "é");
    EXPECT_EQ(lignes[5], "suite ");
    EXPECT_EQ(lignes[6], std::string(48, ' ') + "éàc");
    EXPECT_EQ(lignes[7].size(), 300U);
}

TEST(Document, Styles) {
    const char* attendus =
        "0 Courier 12 ... #000000 #ffffff\n1 Affiche 20 G.. #ff0000 #ff0000\n"
        "2 Arial 12 GI. #000080 #ffff00\n3 Arial 10 .I. #800000 #ff0000\n"
        "4 Times 12 .IS #008000 #00ff00\n5 Terminal 12 ..S #0000ff #00ffff\n"
        "6 Courier 12 ... #ff00ff #ff00ff\n7 Courier 12 G.. systeme #ffffff\n"
        "8 Courier 12 ..S systeme #ffffff\n9 Terminal 12 ... systeme #ffffff\n"
        "10 Arial 10 ... systeme #ffffff\n11 Courier 10 ... systeme #ffffff\n";
    static constexpr const char* Fontes[] = {"Courier", "Affiche", "Arial", "Times", "Terminal"};
    std::string lus;
    char texte[80];
    for (int i = 0; i < NbStyles; ++i) {
        const FormatStyle& c = FormatDe(JeuStyles::RVStyle2, static_cast<Style>(i));
        const FormatStyle& s = FormatDe(JeuStyles::RVStyle1, static_cast<Style>(i));
        std::snprintf(texte, sizeof texte, "#%06x", c.couleur);
        const std::string clair = c.couleurSysteme ? "systeme" : texte;
        std::snprintf(texte, sizeof texte, "%d %s %d %c%c%c %s #%06x\n", i,
                      Fontes[static_cast<int>(c.fonte)], c.corps, c.gras ? 'G' : '.',
                      c.italique ? 'I' : '.', c.souligne ? 'S' : '.', clair.c_str(), s.couleur);
        lus += texte;
        EXPECT_FALSE(s.couleurSysteme);
        EXPECT_EQ(c.fonte == s.fonte && c.corps == s.corps, i != 3) << i;
    }
    EXPECT_EQ(lus, attendus);
    EXPECT_EQ(FormatDe(JeuStyles::RVStyle1, Style::Reserve).fonte, Fonte::Times);
    EXPECT_TRUE(FondDe(JeuStyles::RVStyle1) == 0x000000 && FondDe(JeuStyles::RVStyle2) == 0xFFFFFF);
}

/// What stands between `avant` and `apres`, each time, in order.
std::vector<std::string> Entre(const std::string& texte, const std::string& avant, char apres) {
    std::vector<std::string> trouves;
    for (auto p = texte.find(avant); p != std::string::npos; p = texte.find(avant, p + 1)) {
        const auto debut = p + avant.size();
        trouves.push_back(texte.substr(debut, texte.find(apres, debut) - debut));
    }
    return trouves;
}

TEST(Document, PageHtml) {
    const Document document = RedigerAnalyses(PetiteBase(), 0, 21);
    const Dossier dossier;
    ASSERT_TRUE(EcrireHtml(document, JeuStyles::RVStyle2, dossier / "Analyses.html"));
    const std::string page = Contenu(dossier).at("Analyses.html");
    EXPECT_NE(page.find("<meta charset=\"utf-8\"/>"), std::string::npos);
    EXPECT_NE(page.find("<title>Analyses diverses appliquées au loto</title>"), std::string::npos);
    const auto ids = Entre(page, " id=\"", '"');
    const std::set<std::string> uniques(ids.begin(), ids.end());
    EXPECT_EQ(uniques.size(), ids.size());
    EXPECT_EQ(ids.size(), 65U);
    const auto liens = Entre(page, " href=\"#", '"');
    ASSERT_EQ(liens.size(), 119U);
    for (std::size_t l = 0; l < liens.size(); ++l) {
        EXPECT_TRUE(uniques.contains(liens[l])) << liens[l];
        EXPECT_EQ(liens[l] == "SignetLOTO8", l == 8 || (l >= 15 && l < 20)) << l;
        EXPECT_EQ(liens[l] == "SignetLOTO14", l == 9 || (l >= 69 && l < 118)) << l;
    }
    EXPECT_EQ(liens[3], "SignetLOTO3");
    EXPECT_EQ(liens[21], "SignetLOTO25");  // number 11
    EXPECT_EQ(liens[118], ids.front());
    for (const std::string& image : Entre(page, "<img src=\"", '"'))
        EXPECT_TRUE(std::filesystem::exists(dossier.chemin() / image)) << image;
    const std::string seule = EnHtml(document, JeuStyles::RVStyle1, PlaceImages::DansLaPage);
    EXPECT_TRUE(Entre(seule, "<img src=\"v", '"').empty());
    EXPECT_NE(seule.find("background: #000000"), std::string::npos);
    poser(dossier / "seule.html", seule);
    if (std::system("xmllint --version >/dev/null 2>&1") != 0) GTEST_SKIP() << "xmllint is missing";
    const std::string controle =
        "cd '" + dossier.chemin().string() + "' && xmllint --noout *.html *.svg";
    EXPECT_EQ(std::system(controle.c_str()), 0);
}

TEST(Document, HtmlEchappeEtPageGardee) {
    Document document;
    document.titre = "<&\">";
    Redacteur r(document);
    r.ligne(Style::Table, "a<b&\"c\">");
    r.ligne(Style::Table, "d");
    r.ligne(Style::Corps, {});
    const std::string page = EnHtml(document, JeuStyles::RVStyle2, PlaceImages::Fichiers);
    EXPECT_NE(page.find("<pre id=\"SignetLOTOSommaire\"><span class=\"s9\">a&lt;b&amp;&quot;c&quot;"
                        "&gt;</span>\n<span class=\"s9\">d</span></pre>\n<p><br/></p>\n"),
              std::string::npos);
    // A picture that cannot be written leaves the page of before.
    const Dossier dossier;
    poser(dossier / "a.html", "avant");
    std::filesystem::create_directory(dossier / "varoimg2.svg");
    EXPECT_FALSE(EcrireHtml(document, JeuStyles::RVStyle2, dossier / "a.html"));
    EXPECT_EQ(lire(dossier / "a.html"), "avant");
}

}  // namespace
}  // namespace norvane
