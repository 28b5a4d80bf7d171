// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The start on whatever a directory holds, and what a save leaves in it.

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

#include "atelier/Atelier.h"
#include "base/BaseIntegree.h"
#include "base/Stockage.h"

using namespace norvane;
namespace fs = std::filesystem;

namespace {

class TestAtelier : public testing::Test {
 protected:
    void SetUp() override {
        dossier = fs::temp_directory_path() /
                  ("norvane-atelier-" + std::to_string(getpid()) + "-" +
                   testing::UnitTest::GetInstance()->current_test_info()->name());
        fs::create_directories(dossier);
    }
    void TearDown() override { fs::remove_all(dossier); }
    void ecrire(const char* nom, const std::string& texte) {
        std::ofstream(dossier / nom) << texte;
    }

    fs::path dossier;
};

}  // namespace

TEST_F(TestAtelier, DossierVide) {
    Atelier a(dossier);
    EXPECT_EQ(a.base.NbTirages, 3214);
    EXPECT_EQ(a.base.NbAnciensTirages, 0);
    EXPECT_FALSE(a.base.AnciensTirages);
    EXPECT_EQ(a.occurrences.IntervalleInf, 1);
    EXPECT_EQ(a.occurrences.IntervalleSup, 3214);
    EXPECT_TRUE(a.avertissements.empty());
    EXPECT_FALSE(a.activite.occupe());
    EXPECT_TRUE(fs::is_empty(dossier)) << "a start writes nothing";
}

TEST_F(TestAtelier, BaseGlobale) {
    ecrire(NomConfiguration, "[BASE]\nAnciensTirages=1\n");
    Atelier a(dossier);
    EXPECT_EQ(a.base.NbTirages, 8072);
    EXPECT_EQ(a.base.NbAnciensTirages, 4858);
    EXPECT_TRUE(a.base.AnciensTirages);
    int sorties = 0;
    for (const auto n : a.occurrences.SortiesNumeros) sorties += n;
    EXPECT_EQ(sorties, 5 * 8072);
}

TEST_F(TestAtelier, SauveSeulementCeQuiAChange) {
    const fs::path fichier = dossier / NomStockage;
    Atelier a(dossier);
    ASSERT_TRUE(a.sauverBase());
    ASSERT_TRUE(fs::exists(fichier));
    // Saved again without a change, the file is not even touched: its removal goes unnoticed.
    fs::remove(fichier);
    ASSERT_TRUE(a.sauverBase());
    EXPECT_FALSE(fs::exists(fichier));
    a.base.Rapports[7][0].Gain += 1;
    a.FiltreActif = true;
    ASSERT_TRUE(a.sauverBase());
    EXPECT_FALSE(fs::exists(fichier)) << "a filtered base is not the base";
    a.FiltreActif = false;
    ASSERT_TRUE(a.sauverBase());
    Atelier relu(dossier);
    EXPECT_EQ(relu.base.Rapports[7][0].Gain, a.base.Rapports[7][0].Gain);
    EXPECT_TRUE(relu.avertissements.empty());
}

TEST_F(TestAtelier, UneBaseQuOnNePeutLireResteLa) {
    fs::create_directory(dossier / NomStockage);
    Atelier a(dossier);
    EXPECT_EQ(a.base.NbTirages, 3214);
    ASSERT_EQ(a.avertissements.size(), 1U);
    EXPECT_TRUE(a.sauverBase()) << "nothing changed, nothing to save";
    a.base.Tirages[0].Chance = 3;
    EXPECT_FALSE(a.sauverBase());
    EXPECT_TRUE(fs::is_directory(dossier / NomStockage));
}

TEST_F(TestAtelier, RecalculApresSuppression) {
    Atelier a(dossier);
    const int premier = a.base.Tirages[0].Numeros[0];
    const auto avant = a.occurrences.SortiesNumeros[static_cast<std::size_t>(premier - 1)];
    SupprimerTirage(a.base, 0);
    a.recalculer();
    EXPECT_EQ(a.occurrences.SortiesNumeros[static_cast<std::size_t>(premier - 1)], avant - 1);
    EXPECT_EQ(a.occurrences.IntervalleSup, 3213);
    EXPECT_EQ(a.occurrences.PositionNumero.size(), 3213U);
}
