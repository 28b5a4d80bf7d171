// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "base/BaseIntegree.h"
#include "BasesEssai.h"
#include "OracleStats.h"
#include "reports/Historique.h"

namespace norvane {
namespace {

Occurrences OccurrencesDe(const Base& base) {
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    return occ;
}

std::string Texte(const Base& base, const SujetHistorique& sujet, VueHistorique vue, int inf,
                  int sup) {
    return EnTexte(
        ExporterHistorique(FaireHistorique(base, OccurrencesDe(base), sujet, inf, sup), vue));
}

TEST(Historiques, FichiersEntiers) {
    const Base base = QuatreTirages();
    const Element vingt{GenreStats::Numeros, 20};
    EXPECT_EQ(Texte(base, vingt, VueHistorique::Sorties, 1, 4),
              "Historique du numéro 20, tirages 1 (03/10/2022) à 4 (05/10/2022)\n"
              "Ecart Actuel=0, Ecart Max=1, Ecart Moyen=0, Suite Actuelle=2, Suite Max=2\n"
              "\n"
              "Tirage        Date  N1  N2  N3  N4  N5  Numéro Chance  Ecart  Suite  Poids\n"
              "------  ----------  --  --  --  --  --  -------------  -----  -----  -----\n"
              "     1  03/10/2022   7  20  23  31  40              1      0      1    122\n"
              "     3  05/10/2022   7  20  33  41  49              3      1      1    153\n"
              "     4  05/10/2022   1   7  20  33  41                     0      2    102\n");
    EXPECT_EQ(Texte(base, vingt, VueHistorique::Tout, 2, 4),
              "Historique du numéro 20, tirages 2 (03/10/2022) à 4 (05/10/2022)\n"
              "Ecart Actuel=0, Ecart Max=1, Ecart Moyen=0, Suite Actuelle=2, Suite Max=2\n"
              "\n"
              "Tirage        Date  N1  N2  N3  N4  N5  Numéro Chance  Ecart  Suite  Poids\n"
              "------  ----------  --  --  --  --  --  -------------  -----  -----  -----\n"
              "     2  03/10/2022   7  25  33  41  48                     0      0    154\n"
              "     3  05/10/2022   7  20  33  41  49              3      1      1    153\n"
              "     4  05/10/2022   1   7  20  33  41                     0      2    102\n");
    EXPECT_EQ(Texte(base, Element{GenreStats::Chances, 3}, VueHistorique::Sorties, 3, 3),
              "Historique de la chance 3, tirage 3 (05/10/2022)\n"
              "Ecart Actuel=0, Ecart Max=0, Ecart Moyen=0, Suite Actuelle=1, Suite Max=1\n"
              "\n"
              "Tirage        Date  N1  N2  N3  N4  N5  Numéro Chance  Ecart  Suite  Poids\n"
              "------  ----------  --  --  --  --  --  -------------  -----  -----  -----\n"
              "     3  05/10/2022   7  20  33  41  49              3      0      1    153\n");
}

TEST(Historiques, NomsEtMessages) {
    const Base base = QuatreTirages();
    const struct {
        SujetHistorique sujet;
        const char* nom;
        const char* absent;
    } cas[] = {
        {Element{GenreStats::Numeros, 7}, "Historique du numéro 7", "Numéro non sorti"},
        {Element{GenreStats::Chances, 10}, "Historique de la chance 10", "Chance non sortie"},
        {CoupleChances{2, 9}, "Historique des chances 2 et 9", "Chances non sorties"},
        {RangCombinaison{{7, 20}, 2}, "Historique du rang 2 de la combinaison 07 20",
         "Rang non sorti"},
        {CategorieChances{{1, 2, 3, 4, 49}, {5, 10}, 8},
         "Historique du rang 1 + chance de la grille 01 02 03 04 49 + C 05 10", "Rang non sorti"}};
    for (const auto& [sujet, nom, absent] : cas) {
        EXPECT_EQ(NomHistorique(FaireHistorique(base, OccurrencesDe(base), sujet, 1, 4)), nom);
        EXPECT_EQ(MessageNonSorti(sujet), std::string(absent) + " sur la période...");
    }
}

/// Which draws hold the subject, by counting without sets of bits or tables.
Presences PresencesSujet(const Base& base, const SujetHistorique& sujet) {
    Presences presences;
    for (const Tirage& t : base.enUsage()) {
        const std::set<int> boules(t.Numeros, t.Numeros + NbBoules);
        const auto bons = [&](Ensemble numeros) {
            int n = 0;
            for (const int numero : numeros.valeurs()) n += boules.contains(numero) ? 1 : 0;
            return n;
        };
        bool sorti = false;
        if (const auto* e = std::get_if<Element>(&sujet)) {
            sorti = e->genre == GenreStats::Numeros ? boules.contains(e->valeur)
                                                    : t.Chance == e->valeur;
        } else if (const auto* couple = std::get_if<CoupleChances>(&sujet)) {
            sorti = t.Chance == couple->premiere || t.Chance == couple->seconde;
        } else if (const auto* rang = std::get_if<RangCombinaison>(&sujet)) {
            sorti = bons(rang->numeros) == rang->bons;
        } else if (const auto* c = std::get_if<CategorieChances>(&sujet)) {
            // Results from the best down: the Chance beats no number, save at one and none.
            static const std::pair<int, bool> resultats[] = {
                {5, true}, {5, false}, {4, true}, {4, false}, {3, true},  {3, false},
                {2, true}, {2, false}, {1, true}, {0, true},  {1, false}, {0, false}};
            bool chance = false;
            for (const int valeur : c->chances.valeurs()) chance = chance || valeur == t.Chance;
            sorti = resultats[c->categorie] == std::pair(bons(c->numeros), chance);
        }
        presences.push_back(sorti);
    }
    return presences;
}

/// Both views, the figures and the colours against what the draws themselves say.
void Eprouver(const Base& base, const Occurrences& occ, const SujetHistorique& sujet, int inf,
              int sup) {
    const Presences presences = PresencesSujet(base, sujet);
    const auto sorti = [&](int numero) { return presences[static_cast<std::size_t>(numero - 1)]; };
    const Historique h = FaireHistorique(base, occ, sujet, inf, sup);
    const ResultatStats r = OracleStats(presences, inf - 1, sup - 1);
    const ChiffresHistorique attendus{
        r.Ecart, r.EcartMax,
        static_cast<int>(std::floor((sup - inf + 1.0 - r.Sorties) / (r.Sorties + 1) + 0.5)),
        r.Suite, r.SuiteMax};
    EXPECT_EQ(Chiffres(h), attendus);

    for (const VueHistorique vue : {VueHistorique::Sorties, VueHistorique::Tout}) {
        const auto rangees = Rangees(h, vue);
        std::size_t place = 0;
        for (int numero = inf; numero <= sup; ++numero) {
            if (vue == VueHistorique::Sorties && !sorti(numero)) continue;
            ASSERT_LT(place, rangees.size());
            const RangeeHistorique& rangee = rangees[place++];
            // Backwards from the draw: the run it ends, and the absence right before it.
            int suite = 0;
            while (numero - suite >= inf && sorti(numero - suite)) ++suite;
            int ecart = 0;
            while (numero - 1 - ecart >= inf && !sorti(numero - 1 - ecart)) ++ecart;
            const Tirage& t = base.Tirages[static_cast<std::size_t>(numero - 1)];
            int poids = t.Chance;
            std::vector<std::int64_t> valeurs{numero, t.DateTirage};
            for (const int n : t.Numeros) valeurs.push_back(n), poids += n;
            for (const int n : {t.Chance, ecart, suite, poids}) valeurs.push_back(n);
            for (std::size_t c = 0; c < rangee.size(); ++c) {
                ASSERT_EQ(rangee[c].cle, valeurs[c]) << "draw " << numero << " column " << c;
                const bool enVue = rangee[c].teinte == TeinteHistorique::Element;
                ASSERT_EQ(rangee[c].teinte == TeinteHistorique::Sortie, sorti(numero) && !enVue);
            }
            ASSERT_EQ(rangee[0].cible, Cible(NumeroTirage{numero}));
        }
        EXPECT_EQ(place, rangees.size());
    }
}

TEST(Historiques, ContreLesTiragesEuxMemes) {
    std::mt19937 hasard(20261121);
    for (int tour = 0; tour < 60; ++tour) {
        const int n = 1 + static_cast<int>(hasard() % 40);
        const Base base = BaseAleatoire(hasard, n, 9);
        const Occurrences occ = OccurrencesDe(base);
        const int debut = 1 + static_cast<int>(hasard() % static_cast<unsigned>(n));
        const int sup = debut + static_cast<int>(hasard() % static_cast<unsigned>(n - debut + 1));
        const auto un = [&](int max) { return 1 + static_cast<int>(hasard() % 10) % max; };
        const Ensemble numeros{un(9), un(9), un(9), un(9), un(9)};
        for (int categorie = 0; categorie < 12; ++categorie)
            Eprouver(base, occ, CategorieChances{numeros, {un(3), un(3)}, categorie}, debut, sup);
        for (int bons = 0; bons <= NbBoules; ++bons)
            Eprouver(base, occ, RangCombinaison{numeros, bons}, debut, sup);
        Eprouver(base, occ, CoupleChances{un(3), un(3)}, debut, sup);
        for (int v = 1; v <= 3; ++v) {
            Eprouver(base, occ, Element{GenreStats::Numeros, v}, debut, sup);
            Eprouver(base, occ, Element{GenreStats::Chances, v}, debut, sup);
        }
    }
    const Base vraie = BaseIntegree(true);
    const Occurrences occ = OccurrencesDe(vraie);
    for (const auto& [inf, sup] : {std::pair{1, 8072}, {4000, 5000}, {4858, 4859}}) {
        Eprouver(vraie, occ, Element{GenreStats::Numeros, 13}, inf, sup);
        Eprouver(vraie, occ, Element{GenreStats::Chances, 1}, inf, sup);
    }
}

/// The number or the Chance itself, also on rows of draws that are no appearance.
TEST(Historiques, CellulesEnVue) {
    const Base base = QuatreTirages();
    const Occurrences occ = OccurrencesDe(base);
    const struct {
        SujetHistorique sujet;
        std::vector<std::vector<int>> enVue;  // columns, by draw
    } cas[] = {
        {Element{GenreStats::Numeros, 20}, {{3}, {}, {3}, {4}}},
        {Element{GenreStats::Chances, 3}, {{}, {}, {7}, {}}},
        {CoupleChances{1, 3}, {{7}, {}, {7}, {}}},
        {RangCombinaison{{7, 20}, 2}, {{2, 3}, {2}, {2, 3}, {3, 4}}},
        {CategorieChances{{7, 49}, {1}, 8}, {{2, 7}, {2}, {2, 6}, {3}}},
    };
    for (const auto& [sujet, attendues] : cas) {
        const Historique h = FaireHistorique(base, occ, sujet, 1, 4);
        std::vector<std::vector<int>> enVue;
        for (const RangeeHistorique& rangee : Rangees(h, VueHistorique::Tout)) {
            enVue.emplace_back();
            for (int c = 0; c < NbColonnesHistorique; ++c)
                if (rangee[static_cast<std::size_t>(c)].teinte == TeinteHistorique::Element)
                    enVue.back().push_back(c);
        }
        EXPECT_EQ(enVue, attendues) << NomHistorique(h);
    }
}

}  // namespace
}  // namespace norvane
