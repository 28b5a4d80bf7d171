// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <chrono>
#include <random>

#include "base/BaseIntegree.h"
#include "base/Filtre.h"
#include "Dossier.h"

namespace norvane {
namespace {

/// What the user ticks, as the four lists of a file.
struct Coches {
    int tirages = -1;  ///< -1: none
    std::vector<int> mois, dates, jours;
};

CriteresFiltre Criteres(const Coches& c) {
    CriteresFiltre criteres;
    if (c.tirages >= 0) criteres.cocher(ListeFiltre::Tirages, c.tirages, true);
    for (const int m : c.mois) criteres.cocher(ListeFiltre::Mois, m, true);
    for (const int d : c.dates) criteres.cocher(ListeFiltre::Dates, d, true);
    for (const int j : c.jours) criteres.cocher(ListeFiltre::Jours, j, true);
    return criteres;
}

/// The rules again, list by list, from the ticks themselves.
bool Garde(const Coches& c, const Tirage& t) {
    using namespace std::chrono;
    const int an = t.DateTirage / 10000, mois = t.DateTirage / 100 % 100, jour = t.DateTirage % 100;
    const weekday semaine{sys_days(year(an) / mois / jour)};
    const bool recent = t.DateTirage > 20191103;
    if (c.tirages == 1 && t.Chance == 0) return false;
    if (c.tirages >= 2 && !recent) return false;
    if (c.tirages == 3 && t.Chance == 0) return false;
    if (c.tirages == 4 && t.Chance != 0) return false;
    const auto dans = [](const std::vector<int>& liste, std::size_t toutes, int valeur) {
        return liste.empty() || liste.size() == toutes ||
               std::find(liste.begin(), liste.end(), valeur) != liste.end();
    };
    return dans(c.mois, 12, mois - 1) && dans(c.dates, 31, jour - 1) &&
           dans(c.jours, 7, static_cast<int>(semaine.c_encoding() + 6) % 7);
}

// Hundreds of filters, on both bases, against the rules told once more.
TEST(Filtre, CommeLesRegles) {
    std::mt19937 alea(7);
    const auto tirer = [&](int entrees) {
        std::vector<int> liste;
        const unsigned part = alea() % 4;  // none, few, most, all
        for (int k = 0; k < entrees; ++k) {
            if (part == 3 || (part != 0 && alea() % 4 < (part == 1 ? 1U : 3U))) liste.push_back(k);
        }
        return liste;
    };
    int issues[3] = {};
    for (int essai = 0; essai < 300; ++essai) {
        const Coches c{static_cast<int>(alea() % 6) - 1, tirer(12), tirer(31), tirer(7)};
        Base base = BaseIntegree(essai % 5 == 0);
        const Base entiere = base;
        std::vector<Tirage> attendus;
        int anciens = 0;
        for (int i = 0; i < base.NbTirages; ++i) {
            const Tirage& t = base.Tirages[static_cast<std::size_t>(i)];
            if (!Garde(c, t)) continue;
            attendus.push_back(t);
            anciens += i < base.NbAnciensTirages;
        }
        const auto attendue = attendus.size() == entiere.Tirages.size() ? IssueFiltre::ToutGarde
                              : attendus.size() < 2                     ? IssueFiltre::MoinsDeDeux
                                                                        : IssueFiltre::Applique;
        CopieBase copie;
        ASSERT_EQ(FiltrerBase(base, Criteres(c), copie), attendue) << essai;
        ++issues[static_cast<std::size_t>(attendue)];
        if (attendue == IssueFiltre::Applique) {
            ASSERT_TRUE(std::ranges::equal(base.enUsage(), attendus)) << essai;
            EXPECT_EQ(base.NbTiragesTotal, entiere.NbTirages);
            EXPECT_EQ(base.NbAnciensTirages, anciens);
            RendreBase(base, copie);
        }
        EXPECT_EQ(base.NbTirages, entiere.NbTirages);
        EXPECT_EQ(base.NbAnciensTirages, entiere.NbAnciensTirages);
        EXPECT_EQ(base.Tirages, entiere.Tirages);
        EXPECT_EQ(base.Rapports, entiere.Rapports);  // they never move
    }
    for (const int n : issues) EXPECT_GT(n, 0);
}

TEST(Filtre, DeuxTiragesAuMoins) {
    for (const int gardes : {0, 1, 2}) {
        Base base = BaseIntegree(false);
        base.NbTirages = 40;
        for (std::size_t i = 0; i < 40; ++i) base.Tirages[i].DateTirage = 20081101;
        for (int i = 0; i < gardes; ++i)
            base.Tirages[static_cast<std::size_t>(i)].DateTirage = 20081006;
        CopieBase copie;
        EXPECT_EQ(FiltrerBase(base, Criteres({-1, {9}, {}, {}}), copie),
                  gardes == 2 ? IssueFiltre::Applique : IssueFiltre::MoinsDeDeux);
        EXPECT_EQ(base.NbTirages, gardes == 2 ? 2 : 40);
    }
}

TEST(Filtre, UnSeulChoixDeTirages) {
    CriteresFiltre criteres = Criteres({2, {0, 1}, {}, {}});
    criteres.cocher(ListeFiltre::Tirages, 4, true);
    EXPECT_FALSE(criteres.coche(ListeFiltre::Tirages, 2));
    criteres.cocher(ListeFiltre::Tirages, 2, false);
    EXPECT_TRUE(criteres.coche(ListeFiltre::Tirages, 4));
    criteres.vider(ListeFiltre::Tirages);
    EXPECT_EQ(criteres, Criteres({-1, {0, 1}, {}, {}}));
}

TEST(Filtre, Fichiers) {
    const Dossier dossier;
    const auto fichier = dossier / "a.flt";
    const CriteresFiltre criteres = Criteres({4, {0, 11}, {30}, {5}});
    ASSERT_TRUE(SauverFiltre(criteres, fichier));
    std::string texte = "0 0 0 0 1 1 0 0 0 0 0 0 0 0 0 0 1";
    for (int d = 1; d <= 30; ++d) texte += " 0";
    texte += " 1 0 0 0 0 0 1 0";
    EXPECT_EQ(lire(fichier), texte);
    for (const std::string& lisible : {texte, "\xEF\xBB\xBF" + texte + "\r\n"}) {
        poser(fichier, lisible);
        const auto lu = OuvrirFiltre(fichier);
        ASSERT_TRUE(lu) << lu.erreur();
        EXPECT_EQ(*lu, criteres);
    }
    const struct {
        std::string contenu;
        const char* dit;
    } refuses[] = {{"", "en a 0"},
                   {texte.substr(0, texte.size() - 2), "en a 54"},
                   {texte + " 0", "en a 56"},
                   {"2" + texte.substr(1), "la valeur 1 (« 2 »)"},
                   {texte.substr(0, texte.size() - 1) + "oui", "la valeur 55 (« oui »)"},
                   {"1" + texte.substr(1), "2 choix de tirages"},
                   {std::string(5000, '0'), "4096"}};
    for (const auto& [contenu, dit] : refuses) {
        poser(fichier, contenu);
        const auto lu = OuvrirFiltre(fichier);
        ASSERT_FALSE(lu) << dit;
        EXPECT_NE(lu.erreur().find(dit), std::string::npos) << lu.erreur();
    }
    EXPECT_FALSE(OuvrirFiltre(dossier / "absent.flt"));
}

}  // namespace
}  // namespace norvane
