// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "stats/ExportTableau.h"

namespace norvane {
namespace {

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
