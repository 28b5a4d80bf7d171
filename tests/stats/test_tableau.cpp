// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "BasesEssai.h"
#include "stats/ExportTableau.h"
#include "stats/TableauStats.h"

namespace norvane {
namespace {

class Tableau : public testing::Test {
 protected:
    Tableau() { ConstruireOccurrences(base, occ); }

    /// One row as text: the cells, the bar, and a star when the last record holds the item.
    std::string ligne(GenreStats genre, int element, int premier, int dernier) const {
        const auto lignes = RemplirStats(genre, base, occ, premier, dernier);
        const LigneStats& l = lignes.at(static_cast<std::size_t>(element - 1));
        std::string texte = std::to_string(l.element);
        for (const auto& cellule : l.cellules) texte += '|' + cellule;
        return texte + '|' + std::to_string(l.ratioGraphique) + (l.present ? " *" : "");
    }

    Base base = QuatreTirages();
    Occurrences occ;
};

TEST_F(Tableau, Rows) {
    const auto N = GenreStats::Numeros;
    const auto C = GenreStats::Chances;
    EXPECT_EQ(ligne(N, 7, 0, 3),
              "7||7|4|100,00% |mercredi 5 octobre 2022|0|0,00|00  (01 1)|4|04  (01 4)|10000 *");
    EXPECT_EQ(ligne(N, 20, 0, 3),
              "20||20|3|75,00% |mercredi 5 octobre 2022|0|0,25|01  (01 3)|2|02  (01 4)|7500 *");
    EXPECT_EQ(ligne(N, 31, 0, 3),
              "31||31|1|25,00% |lundi 3 octobre 2022|3|1,50|03  (01 1)|0|01  (01 1)|2500");
    EXPECT_EQ(ligne(N, 31, 1, 3),
              "31||31|0|00,00% |Pas encore sorti |3|3,00|03  (01 1)|0|00  (01 0)|0");
    // Chance 1 shows as present in the last record, which has none, and has not come out in it.
    EXPECT_EQ(ligne(C, 1, 0, 3),
              "1||01|1|25,00% |lundi 3 octobre 2022|3|1,50|03  (01 1)|0|01  (01 1)|2500 *");
    EXPECT_EQ(ligne(C, 3, 2, 2),
              "3||03|1|100,00% |mercredi 5 octobre 2022|0|0,00|00  (01 3)|1|01  (01 3)|10000 *");
    EXPECT_EQ(RemplirStats(N, base, occ, 0, 3).size(), 49U);
    EXPECT_EQ(RemplirStats(C, base, occ, 0, 3).size(), 10U);
}

TEST(CelluleMaximum, WrittenAndReadBack) {
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
    for (const auto& c : cas) {
        EXPECT_EQ(CelluleMaximum(c.valeur, c.nombre, c.position, c.dernier), c.texte);
        const MaximumLu lu = LireCelluleMaximum(c.texte);
        EXPECT_EQ(lu.nombre, c.nombre) << c.texte;
        EXPECT_EQ(lu.position, c.position) << c.texte;
    }
    for (const char* texte :
         {"", "12", "12  (02)", "12  (02 0045", ")02 0045(", "(a 4)", "(2 4x)"}) {
        const MaximumLu lu = LireCelluleMaximum(texte);
        EXPECT_EQ(lu.nombre + lu.position, 0) << texte;
    }
}

TEST_F(Tableau, Labels) {
    EXPECT_EQ(LibelleIntervalle(base, 1, 4),
              "Statistiques sur 4 tirages\ndu lundi 3 octobre 2022\nau mercredi 5 octobre 2022");
    EXPECT_EQ(LibelleIntervalle(base, 3, 3),
              "Statistiques sur 1 tirage\nle mercredi 5 octobre 2022");
    EXPECT_EQ(LibelleIntervalleCourt(base, 2, 3),
              "Statistiques sur 2 tirages\ndu 03/10/2022 au 05/10/2022");
}

TEST_F(Tableau, ButtonHints) {
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

TEST(ExportTableau, Text) {
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
              "\xEF\xBB\xBFNum;Élément;EM;\r\n"
              "7;\"août; \"\"dit\"\"\";9,85;\r\n"
              "20;\"deux\nlignes\";;\r\n"
              "1;12  (02 0045);0,25;x<y\r\n");
}

TEST(ExportTableau, HtmlEscapesWhatCellsHold) {
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
