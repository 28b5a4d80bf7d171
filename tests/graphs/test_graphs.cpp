// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the charts show, as data: against the slow definitions of the statistics, and against the
// places, pages and points written out one by one.

#include <gtest/gtest.h>

#include <cmath>

#include "BasesEssai.h"
#include "graphs/Fenetre.h"
#include "graphs/Pointage.h"
#include "graphs/Projection.h"
#include "graphs/Statistiques.h"
#include "graphs/TexteElement.h"
#include "OracleStats.h"

using namespace norvane;

namespace {

/// Dense runs and gaps, and Chances that some draws lack.
struct Essai {
    std::mt19937 hasard{7};
    Base base = BaseAleatoire(hasard, 60, 12);
    Occurrences occ;
    Essai() { ConstruireOccurrences(base, occ); }

    Presences presences(const Element& e) const {
        return e.genre == GenreStats::Numeros ? PresencesNumero(base, e.valeur)
                                              : PresencesChance(base, e.valeur);
    }
};

constexpr std::array<std::pair<int, int>, 5> Intervalles{
    {{1, 60}, {31, 60}, {7, 20}, {60, 60}, {1, 1}}};

}  // namespace

TEST(Statistiques, RangeesDeHuitEtPoints) {
    const Essai e;
    for (const auto& [inf, sup] : Intervalles) {
        const TableGraphe table = CalculerTable(e.occ, inf, sup);
        const Tirage& dernier = e.base.Tirages[static_cast<std::size_t>(sup - 1)];
        const auto points = PointsStatistiques(table, dernier);
        for (int place = 1; place <= 59; ++place) {
            const bool numero = place <= 49;
            const Element element{numero ? GenreStats::Numeros : GenreStats::Chances,
                                  numero ? place : place - 49};
            const ResultatStats o = OracleStats(e.presences(element), inf - 1, sup - 1);
            const std::array<int, 8> attendue{element.valeur, o.Sorties,  o.Ecart,     o.EcartMax,
                                              o.Suite,        o.SuiteMax, o.SuitePrec, o.EcartPrec};
            const auto rang = static_cast<std::size_t>(place - 1);
            EXPECT_TRUE(std::ranges::equal(table[rang], attendue)) << place;
            const bool sorti = e.presences(element)[static_cast<std::size_t>(sup - 1)];
            const PointGraphe point{place, o.Sorties, element,
                                    sorti ? Teinte::Sorti : Teinte::NonSorti};
            EXPECT_EQ(points[rang], point) << place;
        }
    }
}

/// Each criterion after every other: ascending, numbers and Chances apart, rows whole but for
/// their eighth field, which stays.
TEST(Statistiques, Tris) {
    const Essai e;
    TableGraphe table = CalculerTable(e.occ, 5, 60);
    const TableGraphe depart = table;
    const auto sept = [](const RangeeStats& r) { return std::vector(r.begin(), r.begin() + 7); };
    for (int avant = 0; avant < NbTrisGraphe; ++avant) {
        for (int tri = 0; tri < NbTrisGraphe; ++tri) {
            TrierTable(table, static_cast<TriGraphe>(avant));
            TrierTable(table, static_cast<TriGraphe>(tri));
            for (const auto& [de, a] : {std::pair<std::size_t, std::size_t>{0, 49}, {49, 59}}) {
                std::vector<std::vector<std::int16_t>> avantTri, apres;
                for (std::size_t i = de; i < a; ++i) {
                    avantTri.push_back(sept(depart[i]));
                    apres.push_back(sept(table[i]));
                    EXPECT_EQ(table[i][7], depart[i][7]);
                    if (i > de) {
                        const auto champ = static_cast<std::size_t>(tri);
                        EXPECT_LE(table[i - 1][champ], table[i][champ]) << tri << " " << i;
                    }
                }
                std::ranges::sort(apres);
                EXPECT_EQ(apres, avantTri);
            }
        }
    }
    TrierTable(table, TriGraphe::SansTri);
    EXPECT_EQ(table, depart);
}

/// The first row of a range is the pivot, which settles where equal rows go.
TEST(Statistiques, PivotEnTete) {
    TableGraphe table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i][0] = static_cast<std::int16_t>(i);
        table[i][1] = i < 5 ? std::array<std::int16_t, 5>{3, 1, 3, 2, 1}[i] : std::int16_t{9};
    }
    for (std::size_t i = 5; i < 49; ++i) table[i][1] = static_cast<std::int16_t>(10 + i);
    TrierTable(table, TriGraphe::NbFois);
    std::vector<int> ordre;
    for (std::size_t i = 0; i < 5; ++i) ordre.push_back(table[i][0]);
    EXPECT_EQ(ordre, (std::vector{1, 4, 3, 0, 2}));
}

TEST(Statistiques, Titres) {
    const Base base = QuatreTirages();
    EXPECT_EQ(TitreStatistiques(base, 2, 3),
              "Graphe de Statistiques (sur 2 tirages, du lundi 3 octobre 2022 au mercredi 5 "
              "octobre 2022)");
    EXPECT_EQ(TitreStatistiques(base, 4, 4),
              "Graphe de Statistiques (sur 1 tirage, le mercredi 5 octobre 2022)");
}

TEST(Statistiques, AttendusEtAnimation) {
    const Essai e;
    const Attendus a = CalculerAttendus(CalculerTable(e.occ, 11, 60), 50);
    int avecChance = 0;
    for (int i = 10; i < 60; ++i)
        avecChance += e.base.Tirages[static_cast<std::size_t>(i)].Chance != 0;
    EXPECT_NEAR(a.numero.moyenne, 50 * 5 / 49.0, 1e-9);
    EXPECT_NEAR(a.numero.bande, 2 * std::sqrt(50 * (5.0 / 49) * (44.0 / 49)), 1e-9);
    EXPECT_NEAR(a.chance.moyenne, avecChance / 10.0, 1e-9);
    EXPECT_NEAR(a.chance.bande, 2 * std::sqrt(avecChance * 0.09), 1e-9);

    std::vector<int> vus;
    PasAnimation pas{3, false};
    while (!(pas = AvancerAnimation(pas.sup, 6)).fini) vus.push_back(pas.sup);
    EXPECT_EQ(vus, (std::vector{4, 5, 6}));
    EXPECT_EQ(pas.sup, 6);
}

TEST(Pages, ToutesLesTailles) {
    for (int p = 1; p <= 59; ++p) {
        std::vector<std::pair<int, int>> pages;  // first and last place
        for (int place = 1; place <= 59; ++place) {
            if ((place - 1) % p == 0) pages.emplace_back(place, place);
            pages.back().second = place;
        }
        Pagination pagination{p, 1};
        EXPECT_EQ(pagination.total(), static_cast<int>(pages.size())) << p;
        for (const auto& [premiere, derniere] : pages) {
            EXPECT_EQ(pagination.premierePlace(), premiere) << p;
            EXPECT_EQ(pagination.dernierePlace(), derniere) << p;
            EXPECT_EQ(pagination.surPremiere(), premiere == 1) << p;
            EXPECT_EQ(pagination.surDerniere(), derniere == 59) << p;
            ++pagination.page;
        }
    }
}

TEST(Pointage, UnPointParNumeroEtParChance) {
    const Essai e;
    EtatsNumeros etats;
    etats.fill(EtatNumero::Neutre);
    etats[1] = EtatNumero::Absolue;
    etats[6] = EtatNumero::Secondaire;
    std::vector<PointGraphe> attendus;
    for (int tirage = 1; tirage <= 60; ++tirage) {
        const Tirage& t = e.base.Tirages[static_cast<std::size_t>(tirage - 1)];
        for (const int n : t.Numeros)
            attendus.push_back({n,
                                tirage,
                                {GenreStats::Numeros, n},
                                n == 2   ? Teinte::Absolue
                                : n == 7 ? Teinte::Secondaire
                                         : Teinte::Neutre});
        if (t.Chance > 0)
            attendus.push_back(
                {49 + t.Chance, tirage, {GenreStats::Chances, t.Chance}, Teinte::Neutre});
    }
    const std::vector<PointGraphe> points = PointsPointage(e.base, etats);
    EXPECT_EQ(points, attendus);

    std::erase_if(attendus, [](const PointGraphe& p) { return p.valeur < 20 || p.valeur > 23; });
    for (const auto& [bas, haut] : {std::pair{19.5, 23.5}, {20.0, 23.0}}) {
        const auto entre = PointsEntre(points, bas, haut);
        EXPECT_TRUE(std::ranges::equal(entre, attendus));
    }
    EXPECT_TRUE(PointsEntre(points, 60.5, 70).empty());

    const std::pair<int, AxePointage> ouvertures[] = {
        {0, {0, 0}}, {29, {0, 29}}, {30, {1, 30}}, {3214, {3185, 3214}}};
    for (const auto& [n, axe] : ouvertures) EXPECT_EQ(OuverturePointage(n), axe) << n;
}

TEST(Bulle, TextesEntiers) {
    const Base base = QuatreTirages();
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    const auto texte = [&](GenreStats genre, int valeur, int inf, bool court = false) {
        const Element e{genre, valeur};
        const ResultatStats r = StatsElement(occ, e, inf, 4);
        return court ? TexteElementCourt(e, r, 4) : TexteElement(e, r, 4);
    };
    EXPECT_EQ(texte(GenreStats::Numeros, 7, 1),
              "Numéro 7\nSorties ->   4\nEcart ->     0\nEcartMax ->  0\nSuite ->     4\n"
              "SuiteMax ->  4  (1  4)\nSuite précédente ->  0\nEcart précédent ->    0");
    EXPECT_EQ(texte(GenreStats::Chances, 3, 2),
              "Chance 3\nSorties ->   1\nEcart ->     1\nEcartMax ->  1  (4  4)\nSuite ->     0\n"
              "SuiteMax ->  1  (3  3)\nSuite précédente ->  1\nEcart précédent ->    1");
    EXPECT_EQ(texte(GenreStats::Numeros, 31, 1, true),
              "Numéro 31   |   Sorties ->   1\nEcart ->     3   |   EcartMax ->  3  (2  4)\n"
              "Suite ->     0   |   SuiteMax ->  1  (1  1)\n"
              "Suite précédente ->  1   |   Ecart précédent ->    0");
}

/// First and last draw of the two maxima, against the stretches themselves.
TEST(Bulle, DebutEtFinDesMaximums) {
    const Essai e;
    for (const auto& [inf, sup] : Intervalles) {
        for (int place = 1; place <= 59; ++place) {
            const Element element = ElementDe(place);
            const std::string texte =
                TexteElement(element, StatsElement(e.occ, element, inf, sup), sup);
            for (const bool present : {false, true}) {
                const Segments s(e.presences(element), inf - 1, sup - 1, present);
                std::string ligne = present ? "SuiteMax ->  " : "EcartMax ->  ";
                ligne += std::to_string(s.plusLong);
                if (s.plusLong > 0)
                    ligne += "  (" + std::to_string(s.dernierPlusLong.debut + 1) + "  " +
                             std::to_string(s.dernierPlusLong.fin + 1) + ")";
                EXPECT_NE(texte.find(ligne + "\n"), std::string::npos)
                    << texte << "\nwithout " << ligne;
            }
        }
    }
}

TEST(Fenetre, ZoomEtDefilement) {
    constexpr Etendue Limites{0.5, 59.5};
    for (const double facteur : {0.5, 0.8, 1.3}) {
        const Etendue vue{20, 40};
        const Etendue z = Zoomer(vue, facteur, 25, Limites, 1);
        EXPECT_NEAR(z.longueur(), 20 * facteur, 1e-9);
        EXPECT_NEAR((25 - z.de) / z.longueur(), 0.25, 1e-9);
    }
    const auto voir = [](const Etendue& e) { return std::pair{e.de, e.a}; };
    EXPECT_EQ(voir(Zoomer({20, 40}, 0.001, 25, Limites, 2)), (std::pair{24.5, 26.5}));
    EXPECT_EQ(voir(Zoomer({20, 40}, 100, 25, Limites, 2)), (std::pair{0.5, 59.5}));
    EXPECT_EQ(voir(Zoomer({25, 26}, 0.5, 25, Limites, 2)), (std::pair{24.5, 26.5}));
    EXPECT_EQ(voir(Deplacer({20, 40}, 30, Limites)), (std::pair{39.5, 59.5}));
    EXPECT_EQ(voir(Deplacer({20, 40}, -5, Limites)), (std::pair{15.0, 35.0}));
    EXPECT_EQ(voir(Deplacer({20, 40}, -30, Limites)), (std::pair{0.5, 20.5}));
    EXPECT_EQ(voir(Border({10, 200}, Limites, 1)), (std::pair{0.5, 59.5}));

    // Counts: from 0 unless the points would all lie at the top; every point inside.
    for (const auto& [min, max, zero] : {std::tuple{0, 0, true},
                                         {0, 8, true},
                                         {290, 371, false},
                                         {44, 100, true},
                                         {46, 100, false},
                                         {5, 5, true}}) {
        const Etendue e = EtendueComptes(min, max);
        EXPECT_TRUE(e.de < min && max < e.a && e.longueur() > 1) << max;
        EXPECT_EQ(e.contient(0), zero) << max;
    }
    for (const auto& [longueur, nombre, pas] : {std::tuple{8.0, 10, 1},
                                                {10.0, 10, 1},
                                                {10.1, 10, 2},
                                                {21.0, 10, 5},
                                                {51.0, 10, 10},
                                                {3214.0, 8, 500},
                                                {0.5, 1, 1}}) {
        EXPECT_EQ(PasGraduation(longueur, nombre), pas) << longueur;
    }
}

TEST(Projection, BoiteDansLeCarre) {
    for (const int profondeur : {Vue3D::ProfondeurMin, 35, Vue3D::ProfondeurMax}) {
        for (const int rotation : {-Vue3D::RotationMax, -10, 0, 20, Vue3D::RotationMax}) {
            for (const int elevation : {0, 15, Vue3D::ElevationMax}) {
                const Projection p({profondeur, rotation, elevation});
                double gauche = 9, droite = -9, bas = 9, haut = -9;
                for (int coin = 0; coin < 8; ++coin) {
                    const Point2D v = p.projeter(
                        {double(coin & 1), double(coin >> 1 & 1), double(coin >> 2 & 1)});
                    gauche = std::min(gauche, v.x), droite = std::max(droite, v.x);
                    bas = std::min(bas, v.y), haut = std::max(haut, v.y);
                }
                EXPECT_NEAR(gauche, 0, 1e-9);
                EXPECT_NEAR(droite, 1, 1e-9);
                EXPECT_NEAR(bas, 0, 1e-9);
                EXPECT_NEAR(haut, 1, 1e-9);
                // Straight edges, heights upwards, and the walls on the side told.
                const Point2D a = p.projeter({0, 0.2, 0.5}), b = p.projeter({1, 0.2, 0.5});
                const Point2D m = p.projeter({0.4, 0.2, 0.5});
                EXPECT_NEAR((m.x - a.x) * (b.y - a.y), (m.y - a.y) * (b.x - a.x), 1e-9);
                EXPECT_LT(a.x, b.x);
                EXPECT_LT(a.y, p.projeter({0, 0.6, 0.5}).y);
                if (elevation > 0) {
                    EXPECT_LT(p.projeter({0.5, 0, 0}).y, p.projeter({0.5, 0, 1}).y);
                }
                if (rotation >= 20) {
                    EXPECT_LT(p.projeter({0, 0.5, 0}).x, p.projeter({0, 0.5, 1}).x);
                }
                if (rotation < -20) {
                    EXPECT_GT(p.projeter({1, 0.5, 0}).x, p.projeter({1, 0.5, 1}).x);
                }
            }
        }
    }
}
