// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "BasesEssai.h"
#include "OracleStats.h"
#include "stats/ExportTableau.h"
#include "stats/TableauStats.h"

namespace norvane {
namespace {

class Tableau : public testing::Test {
 protected:
    Tableau() { ConstruireOccurrences(base, occ); }

    /// One row as text: the cells, and a star when the last record holds the item.
    std::string ligne(GenreStats genre, int element, int premier, int dernier) const {
        const auto lignes = RemplirStats(genre, base, occ, premier, dernier);
        const LigneStats& l = lignes.at(static_cast<std::size_t>(element - 1));
        std::string texte;
        for (const Cellule& cellule : l.cellules) texte += '|' + cellule.texte;
        return texte + (l.present ? " *" : "");
    }

    Base base = QuatreTirages();
    Occurrences occ;
};

TEST_F(Tableau, Textes) {
    const auto N = GenreStats::Numeros;
    const auto C = GenreStats::Chances;
    EXPECT_EQ(ligne(N, 7, 0, 3),
              "||7|4|100,00% |mercredi 5 octobre 2022|0|0,00|00  (01 1)|4|04  (01 4) *");
    EXPECT_EQ(ligne(N, 20, 0, 3),
              "||20|3|75,00% |mercredi 5 octobre 2022|0|0,25|01  (01 3)|2|02  (01 4) *");
    EXPECT_EQ(ligne(N, 31, 0, 3),
              "||31|1|25,00% |lundi 3 octobre 2022|3|1,50|03  (01 1)|0|01  (01 1)");
    EXPECT_EQ(ligne(N, 31, 1, 3),
              "||31|0|00,00% |Pas encore sorti |3|3,00|03  (01 1)|0|00  (01 0)");
    // Chance 1 shows as present in the last record, which has none, and has not come out in it.
    EXPECT_EQ(ligne(C, 1, 0, 3),
              "||01|1|25,00% |lundi 3 octobre 2022|3|1,50|03  (01 1)|0|01  (01 1) *");
    EXPECT_EQ(ligne(C, 3, 2, 2),
              "||03|1|100,00% |mercredi 5 octobre 2022|0|0,00|00  (01 3)|1|01  (01 3) *");
    EXPECT_EQ(RemplirStats(N, base, occ, 0, 3).size(), 49U);
    EXPECT_EQ(RemplirStats(C, base, occ, 0, 3).size(), 10U);
}

TEST(Cellules, Maximum) {
    struct {
        int valeur, nombre, position, dernier;
        const char* texte;
    } const cas[] = {{12, 2, 45, 1000, "12  (02 0045)"},
                     {12, 2, 45, 999, "12  (02 045)"},
                     {3, 1, 0, 9, "03  (01 0)"},
                     {3, 1, 7, 10, "03  (01 07)"},
                     {3, 1, 7, 99, "03  (01 07)"},
                     {3, 1, 7, 100, "03  (01 007)"},
                     {120, 100, 9999, 12345, "120  (100 9999)"}};
    for (const auto& c : cas)
        EXPECT_EQ(CelluleMaximum(c.valeur, c.nombre, c.position, 0, c.dernier).texte, c.texte);
    // By value, then count, then position, up to the largest of each.
    constexpr int Max = 65535;
    std::int64_t avant = -1;
    for (const auto& [v, n, p] : {std::tuple{0, 1, 9},
                                  {1, 0, Max},
                                  {1, 1, 2},
                                  {1, 2, 0},
                                  {2, 0, 0},
                                  {2, Max, 5},
                                  {3, 1, 1},
                                  {Max, Max, Max}}) {
        const std::int64_t cle = CelluleMaximum(v, n, p, 0, Max).cle;
        EXPECT_LT(avant, cle) << v << ' ' << n << ' ' << p;
        avant = cle;
    }
}

/// What each column is sorted by and leads to, by the definitions, for every element and interval.
TEST(Cellules, ClesEtCibles) {
    std::mt19937 hasard(5);
    const int total = 30;
    const Base base = BaseAleatoire(hasard, total, 9);
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    for (int f = 0; f < total; f += 3)
        for (int l = f; l < total; ++l) {
            const auto lignes = RemplirStats(GenreStats::Numeros, base, occ, f, l);
            for (int n = 1; n <= 12; ++n) {  // 10 to 12 never come out
                SCOPED_TRACE(testing::Message() << n << " over " << f << ".." << l);
                const Presences presences = PresencesNumero(base, n);
                const ResultatStats r = OracleStats(presences, f, l);
                int derniere = l;
                while (derniere >= f && !presences[static_cast<std::size_t>(derniere)]) --derniere;
                const bool sorti = derniere >= f;
                const auto cle = [](int valeur, int nombre, int position) {
                    return (std::int64_t{valeur} * 65536 + nombre) * 65536 + position;
                };
                const auto tirage = [sorti](int numero) {
                    return sorti ? std::optional<Cible>(NumeroTirage{numero}) : std::nullopt;
                };
                const std::pair<std::int64_t, std::optional<Cible>> attendues[NbColonnesStats] = {
                    {0, {}},
                    {n,
                     sorti ? std::optional<Cible>(Element{GenreStats::Numeros, n}) : std::nullopt},
                    {r.Sorties, {}},
                    {std::llround(r.Sorties * 1e4 / (l - f + 1)), {}},
                    {sorti ? base.Tirages[static_cast<std::size_t>(derniere)].DateTirage : 0,
                     tirage(derniere + 1)},
                    {r.Ecart, tirage(derniere + 1)},
                    {std::llround(r.SommeEcarts * 100.0 / (r.Sorties + 1)), {}},
                    {cle(r.EcartMax, r.NbEcartMax, r.PosEcartMax), tirage(r.PosEcartMax)},
                    {r.Suite, {}},
                    {cle(r.SuiteMax, r.NbSuiteMax, r.PosSuiteMax), tirage(r.PosSuiteMax)}};
                const auto& cellules = lignes[static_cast<std::size_t>(n - 1)].cellules;
                for (std::size_t c = 0; c < NbColonnesStats; ++c) {
                    EXPECT_EQ(cellules[c].cle, attendues[c].first) << c;
                    EXPECT_EQ(cellules[c].cible, attendues[c].second) << c;
                }
            }
        }
}

/// Rows that read the same tie, whatever stands behind the figures.
TEST(Cellules, EgalesCommeEllesSeLisent) {
    std::mt19937 hasard(6);
    const Base base = BaseAleatoire(hasard, 3000, 8);  // mean gaps about 0,001 apart
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    const auto lignes = RemplirStats(GenreStats::Numeros, base, occ, 0, 2999);
    const auto em = static_cast<std::size_t>(ColonneStats::EM);
    int egales = 0;
    for (std::size_t a = 0; a < 8; ++a)
        for (std::size_t b = 0; b < a; ++b) {
            const auto& x = lignes[a].cellules;
            const auto& y = lignes[b].cellules;
            for (std::size_t c = 1; c < NbColonnesStats; ++c)
                EXPECT_EQ(x[c].cle == y[c].cle, x[c].texte == y[c].texte) << c;
            egales += x[em].cle == y[em].cle && x[2].cle != y[2].cle;
        }
    EXPECT_GT(egales, 0);
}

TEST_F(Tableau, Libelles) {
    EXPECT_EQ(LibelleIntervalle(base, 1, 4),
              "Statistiques sur 4 tirages\ndu lundi 3 octobre 2022\nau mercredi 5 octobre 2022");
    EXPECT_EQ(LibelleIntervalle(base, 3, 3),
              "Statistiques sur 1 tirage\nle mercredi 5 octobre 2022");
    EXPECT_EQ(LibelleIntervalleCourt(base, 2, 3),
              "Statistiques sur 2 tirages\ndu 03/10/2022 au 05/10/2022");
}

TEST_F(Tableau, IndicesDesBoutons) {
    std::array<bool, NumeroMax + ChanceMax> allume{};
    for (const std::size_t bouton : {7, 20, 52}) allume[bouton - 1] = true;
    const auto indices = IndicesBoutons(occ, 2, allume);
    EXPECT_EQ(indices[6],
              "Sorties: 3, Suite: 3, Ecartprec: 0|Numéro: 7, Sorties: 3, Suite: 3, Ecartprec: 0");
    EXPECT_EQ(indices[19],
              "Sorties: 2, Ecartprec: 1, Suiteprec: 1|"
              "Numéro: 20, Sorties: 2, Ecartprec: 1, Suiteprec: 1");
    EXPECT_EQ(indices[30],
              "Sorties: 1, Ecart: 2, Suiteprec: 1|"
              "Numéro: 31, Sorties: 1, Ecart: 2, Suiteprec: 1");
    EXPECT_EQ(indices[51],
              "Sorties: 1, Ecartprec: 2, Suiteprec: 0|"
              "Chance: 3, Sorties: 1, Ecartprec: 2, Suiteprec: 0");
    for (const auto& indice : IndicesBoutons(occ, -1, allume)) EXPECT_EQ(indice, "");
}

const TableauExporte Exemple = {{"Statistiques sur 2 tirages", "le <3> & le 5"},
                                {"Num", "Élément", "EM"},
                                {true, false, true},
                                {{"7", "août; \"dit\"", "9,85"},
                                 {"20", "deux\nlignes"},
                                 {"1", "12  (02 0045)", "0,25", "x<y"}}};

TEST(ExportTableau, Texte) {
    EXPECT_EQ(EnTexte(Exemple),
              "Statistiques sur 2 tirages\n"
              "le <3> & le 5\n"
              "\n"
              "Num  Élément          EM\n"
              "---  -------------  ----  ---\n"
              "  7  août; \"dit\"    9,85\n"
              " 20  deux lignes\n"
              "  1  12  (02 0045)  0,25  x<y\n");
}

TEST(ExportTableau, Csv) {
    EXPECT_EQ(EnCsv(Exemple),
              "\xEF\xBB\xBFStatistiques sur 2 tirages;;;\r\n"
              "le <3> & le 5;;;\r\n"
              ";;;\r\n"
              "Num;Élément;EM;\r\n"
              "7;\"août; \"\"dit\"\"\";9,85;\r\n"
              "20;\"deux\nlignes\";;\r\n"
              "1;12  (02 0045);0,25;x<y\r\n");
}

TEST(ExportTableau, HtmlProtegeLesCellules) {
    const std::string page = EnHtml(Exemple);
    for (const char* morceau :
         {"<title>Statistiques sur 2 tirages le &lt;3&gt; &amp; le 5</title>",
          "<p>Statistiques sur 2 tirages<br>le &lt;3&gt; &amp; le 5</p>",
          "<thead>\n<tr><th align=\"right\">Num</th><th>Élément</th><th align=\"right\">EM</th>"
          "<th></th></tr>\n</thead>",
          "<td>août; &quot;dit&quot;</td>", "<td>deux<br>lignes</td>",
          "<td>12 &#160;(02 0045)</td>", "<td>x&lt;y</td></tr>\n</tbody>"})
        EXPECT_NE(page.find(morceau), page.npos) << morceau << "\nnot in\n" << page;
}

}  // namespace
}  // namespace norvane
