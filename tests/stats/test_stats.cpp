// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "base/Fichiers.h"
#include "BasesEssai.h"
#include "LectureArchives.h"
#include "OracleStats.h"
#include "stats/ExportTableau.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"
#include "stats/TableauStats.h"

namespace norvane {

static void PrintTo(const ResultatStats& r, std::ostream* os) {
    *os << testing::PrintToString(Valeurs(r));
}

namespace {

/// All kernels against the oracle on one interval.
void Comparer(const ListeOccurrences& liste, const Presences& presences, int f, int l) {
    const ResultatStats attendu = OracleStats(presences, f, l);
    ASSERT_EQ(StatsIntervalle(liste, f, l), attendu);
    if (f == 0) {
        ResultatStats sansSomme = attendu;
        sansSomme.SommeEcarts = 0;
        ASSERT_EQ(StatsJusqua(liste, l), sansSomme);
    }
    ListeOccurrences dedans;
    for (const Occurrence x : liste)
        if (x >= f && x <= l) dedans.push_back(x);
    ASSERT_EQ(StatsResume(dedans, f + 1, l + 1),
              (StatsBreves{attendu.Ecart, attendu.EcartMax, attendu.Suite, attendu.SuiteMax}));
}

TEST(Noyau, ToutesLesPresencesSurToutIntervalle) {
    constexpr int NbMax = 11;
    for (int n = 1; n <= NbMax; ++n)
        for (int motif = 0; motif < 1 << n; ++motif) {
            Presences presences;
            ListeOccurrences liste;
            for (int i = 0; i < n; ++i) {
                presences.push_back((motif >> i & 1) != 0);
                if (presences.back()) liste.push_back(static_cast<Occurrence>(i));
            }
            for (int f = 0; f < n; ++f)
                for (int l = f; l < n; ++l) {
                    SCOPED_TRACE(testing::Message() << "motif " << motif << ", " << f << ".." << l);
                    Comparer(liste, presences, f, l);
                    if (HasFatalFailure()) return;
                }
        }
}

// Worked by hand, so that the oracle itself stands on something.
TEST(Noyau, ResultatsConnus) {
    const ListeOccurrences liste = {2, 3, 7, 9, 10};  // ..11...1.11.
    EXPECT_EQ(StatsIntervalle(liste, 0, 11), (ResultatStats{5, 1, 3, 1, 8, 0, 2, 2, 11, 1, 2, 7}));
    EXPECT_EQ(StatsIntervalle(liste, 0, 9), (ResultatStats{4, 0, 3, 1, 8, 1, 2, 1, 4, 1, 1, 6}));
    EXPECT_EQ(StatsIntervalle(liste, 4, 6), (ResultatStats{0, 3, 3, 1, 4, 0, 0, 1, 0, 0, 0, 3}));
    EXPECT_EQ(StatsIntervalle(liste, 9, 10), (ResultatStats{2, 0, 0, 1, 10, 2, 2, 1, 11, 0, 0, 0}));
    EXPECT_EQ(StatsJusqua({}, 4), (ResultatStats{0, 5, 5, 1, 0, 0, 0, 1, 0, 0, 0, 0}));
}

/// The list that a scan of the presences gives, within a range.
ListeOccurrences Attendue(const Presences& presences, Plage plage) {
    ListeOccurrences liste;
    for (int i = plage.premier; i <= plage.dernier; ++i)
        if (presences[static_cast<std::size_t>(i)]) liste.push_back(static_cast<Occurrence>(i));
    return liste;
}

template <std::size_t N, typename PresencesDe>
void VerifierListes(const Base& base, Plage plage, const Sorties<N>& sorties,
                    const std::array<ListeOccurrences, N>& listes, PresencesDe presencesDe) {
    for (std::size_t k = 0; k < N; ++k) {
        SCOPED_TRACE(k + 1);
        const auto attendue = Attendue(presencesDe(base, static_cast<int>(k) + 1), plage);
        EXPECT_EQ(listes[k], attendue);
        EXPECT_EQ(static_cast<std::size_t>(sorties[k]), attendue.size());
        EXPECT_EQ(listes[k].capacity(), attendue.size());
    }
}

void VerifierTout(const Base& base, const Occurrences& occ, Plage plageChances) {
    VerifierListes(base, PlageBase(base), occ.SortiesNumeros, occ.ListeNumeros, PresencesNumero);
    VerifierListes(base, plageChances, occ.SortiesChances, occ.ListeChances, PresencesChance);
    VerifierListes(base, PlageIntervalle(occ.IntervalleInf, occ.IntervalleSup),
                   occ.SortiesIntervalle, occ.ListeIntervalle, PresencesNumero);
}

TEST(Occurrences, ConstruitesGardeesEtRefaites) {
    std::mt19937 hasard(7);
    for (int n = 1; n <= 12; ++n) {
        SCOPED_TRACE(n);
        Base base = BaseAleatoire(hasard, n, 8);
        Occurrences occ;
        ConstruireOccurrences(base, occ);
        VerifierTout(base, occ, PlageBase(base));
        ChangerIntervalle(base, occ, (n + 1) / 2, n);
        VerifierTout(base, occ, PlageBase(base));
        InsererTirage(base, n / 2, Tirage{{2, 4, 6, 8, 49}, 10, 0, 2023001, 20230101, 1, 0}, {});
        RecalculBase(base, occ);
        VerifierTout(base, occ, PlageBase(base));
        EXPECT_EQ(occ.IntervalleInf, 1);
        EXPECT_EQ(occ.IntervalleSup, n + 1);
        EXPECT_EQ(occ.PositionNumero.size(), static_cast<std::size_t>(n + 1));
    }
}

// As many records as a base may have, all with the same numbers.
TEST(Occurrences, NumerosDeTousLesTiragesDUneBasePleine) {
    const Base base = FaireBase(std::vector<Tirage>(
        NbTiragesMax, Tirage{{3, 7, 20, 33, 41}, 2, 0, 2023001, 20230101, 1, 0}));
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    EXPECT_EQ(occ.SortiesNumeros[6], NbTiragesMax);
    EXPECT_EQ(occ.SortiesChances[1], NbTiragesMax);
    EXPECT_EQ(occ.SortiesIntervalle[40], NbTiragesMax);
    const int dernier = NbTiragesMax - 1;
    const std::array<int, 12> partout = {NbTiragesMax, 0, 0, 1, 1, NbTiragesMax, NbTiragesMax, 1,
                                         NbTiragesMax, 0, 0, 0};
    EXPECT_EQ(Valeurs(StatsIntervalle(occ.ListeNumeros[6], 0, dernier)), partout);
    EXPECT_EQ(Valeurs(StatsJusqua(occ.ListeChances[1], dernier)), partout);
    const LigneStats ligne = RemplirStats(GenreStats::Numeros, base, occ, 0, dernier)[6];
    EXPECT_EQ(ligne.cellules[static_cast<std::size_t>(ColonneStats::NbS)].texte, "65534");
}

// The old records carry a Chance here, as no real one does, to tell the ranges apart.
TEST(Occurrences, LesChancesAnciennesSuiventLeDrapeau) {
    std::mt19937 hasard(11);
    Base base = BaseAleatoire(hasard, 40, 49);
    base.NbAnciensTirages = 25;
    const Plage tout = PlageBase(base);
    const Plage nouveaux = PlageNouveaux(base, tout);
    EXPECT_EQ(nouveaux.premier, 25);
    EXPECT_EQ(PlageNouveaux(base, PlageIntervalle(31, 40)).premier, 30);
    for (const bool anciens : {false, true}) {
        base.AnciensTirages = anciens;
        Occurrences occ;
        ConstruireOccurrences(base, occ);
        VerifierTout(base, occ, tout);
        RecalculBase(base, occ);
        VerifierTout(base, occ, anciens ? tout : nouveaux);
    }
}

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

const TableauExporte Exemple = {
    {"Statistiques sur 2 tirages", "le <3> & le 5"},
    {{"Num", true, NatureColonne::Entier},
     {"Élément", false},
     {"EM", true, NatureColonne::Centiemes},
     {"Ratio", true, NatureColonne::Pourcents},
     {"Date", true, NatureColonne::Date}},
    {{{"7", 7}, {"août; \"dit\""}, {"9,85", 985}, {"07,35% ", 735}, {"03/10/2022", 20221003}},
     {{"", 0}, {"deux\nlignes"}, {"0,00", 0}, {"00,00% ", 0}, {"jamais", 0}},
     {{"12", 12}, {"12  (02 0045)"}, {"0,25", 25}, {"99,99% ", 9999}, {"19/05/1976", 19760519}}}};

TEST(ExportTableau, TexteCsvEtHtml) {
    EXPECT_EQ(EnTexte(Exemple),
              "Statistiques sur 2 tirages\n"
              "le <3> & le 5\n"
              "\n"
              "Num  Élément          EM    Ratio        Date\n"
              "---  -------------  ----  -------  ----------\n"
              "  7  août; \"dit\"    9,85  07,35%   03/10/2022\n"
              "     deux lignes    0,00  00,00%       jamais\n"
              " 12  12  (02 0045)  0,25  99,99%   19/05/1976\n");
    EXPECT_EQ(EnCsv(Exemple),
              "\xEF\xBB\xBFStatistiques sur 2 tirages;;;;\r\n"
              "le <3> & le 5;;;;\r\n"
              ";;;;\r\n"
              "Num;Élément;EM;Ratio;Date\r\n"
              "7;\"août; \"\"dit\"\"\";9,85;07,35% ;03/10/2022\r\n"
              ";\"deux\nlignes\";0,00;00,00% ;jamais\r\n"
              "12;12  (02 0045);0,25;99,99% ;19/05/1976\r\n");
    const std::string page = EnHtml(Exemple);
    for (const char* morceau :
         {"<title>Statistiques sur 2 tirages le &lt;3&gt; &amp; le 5</title>",
          "<body>\n<center><b>Statistiques sur 2 tirages<BR><BR> </b></center>\n"
          "<center><b>le &lt;3&gt; &amp; le 5<BR><BR> </b></center>\n<table>",
          "<thead>\n<tr><th align=\"right\">Num</th><th>Élément</th><th align=\"right\">EM</th>",
          "<td>août; &quot;dit&quot;</td>", "<td>deux<br>lignes</td>",
          "<td>12 &#160;(02 0045)</td>", "19/05/1976</td></tr>\n</tbody>"})
        EXPECT_NE(page.find(morceau), page.npos) << morceau << "\nnot in\n" << page;
    EXPECT_NE(EnHtml(Exemple, TeteHtml::Paragraphe)
                  .find("<p>Statistiques sur 2 tirages<br>le &lt;3&gt; &amp; le 5</p>\n<table>"),
              page.npos);
}

TEST(ExportTableau, Classeur) {
    const auto octets = EnXlsx(Exemple);
    ASSERT_TRUE(octets);
    EXPECT_EQ(CellulesXlsx(*octets), (std::vector<std::string>{"A1=Statistiques sur 2 tirages",
                                                               "A2=le &lt;3&gt; &amp; le 5",
                                                               "A4=Num",
                                                               "B4=Élément",
                                                               "C4=EM",
                                                               "D4=Ratio",
                                                               "E4=Date",
                                                               "A5=7 0",
                                                               "B5=août; \"dit\"",
                                                               "C5=9.85 0.00",
                                                               "D5=0.0735 0.00%",
                                                               "E5=44837 dd/mm/yyyy",
                                                               "B6=deux\nlignes",
                                                               "C6=0 0.00",
                                                               "D6=0 0.00%",
                                                               "E6=jamais",
                                                               "A7=12 0",
                                                               "B7=12  (02 0045)",
                                                               "C7=0.25 0.00",
                                                               "D7=0.9999 0.00%",
                                                               "E7=27899 dd/mm/yyyy"}));
    const std::string feuille = Membres(*octets)["xl/worksheets/sheet1.xml"];
    for (const char* morceau : {"topLeftCell=\"A5\"", "<autoFilter ref=\"A4:E7\"/>"})
        EXPECT_NE(feuille.find(morceau), feuille.npos) << morceau;
}

/// No room for the library's temporary files, nor for ours: told, and the file of before stays.
TEST(ExportTableau, ClasseurSansPlace) {
    SurvivreAuxLimitesDeTaille();
    rlimit avant{};
    getrlimit(RLIMIT_FSIZE, &avant);
    const rlimit nul{0, avant.rlim_max};
    setrlimit(RLIMIT_FSIZE, &nul);
    const auto octets = Exporter(Exemple, FormatTableau::Xlsx);
    setrlimit(RLIMIT_FSIZE, &avant);
    ASSERT_FALSE(octets);
    EXPECT_NE(octets.erreur().find("faites de la place"), std::string::npos);
}

TEST(ExportTableau, DocumentTexte) {
    const auto octets = EnOpenDocument(Exemple);
    ASSERT_TRUE(octets);
    // What tells the kind of the file stands first, at a fixed place.
    EXPECT_EQ(octets->substr(30, 47), "mimetypeapplication/vnd.oasis.opendocument.text");
    EXPECT_EQ(ParagraphesOdt(*octets), (std::vector<std::string>{"Statistiques sur 2 tirages",
                                                                 "le &lt;3&gt; &amp; le 5",
                                                                 "Num",
                                                                 "Élément",
                                                                 "EM",
                                                                 "Ratio",
                                                                 "Date",
                                                                 "7",
                                                                 "août; &quot;dit&quot;",
                                                                 "9,85",
                                                                 "07,35% ",
                                                                 "03/10/2022",
                                                                 "",
                                                                 "deux|lignes",
                                                                 "0,00",
                                                                 "00,00% ",
                                                                 "jamais",
                                                                 "12",
                                                                 "12 |(02 0045)",
                                                                 "0,25",
                                                                 "99,99% ",
                                                                 "19/05/1976"}));
    const std::string contenu = Membres(*octets)["content.xml"];
    EXPECT_EQ(Trouves(contenu, "(<table:table-column )").size(), 5U);
    EXPECT_EQ(Trouves(contenu, "(<table:table-row>)").size(), 4U);
}

/// Every part of both kinds of archives is XML to another program.
TEST(ExportTableau, XmlBienForme) {
    if (std::system("xmllint --version >/dev/null 2>&1") != 0) GTEST_SKIP() << "xmllint is missing";
    for (const FormatTableau format : {FormatTableau::OpenDocument, FormatTableau::Xlsx}) {
        const auto membres = Membres(*Exporter(Exemple, format));
        EXPECT_GE(membres.size(), 4U);
        for (const auto& [nom, contenu] : membres) {
            if (nom == "mimetype") continue;
            FILE* lecteur = popen("xmllint --noout - 2>&1", "w");
            std::fwrite(contenu.data(), 1, contenu.size(), lecteur);
            EXPECT_EQ(pclose(lecteur), 0) << nom;
        }
    }
}

}  // namespace
}  // namespace norvane
