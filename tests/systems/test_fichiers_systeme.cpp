// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <fstream>

#include "base/Archive.h"
#include "base/Fichiers.h"
#include "Chiffre.h"
#include "systems/FichiersSysteme.h"

namespace norvane {

namespace {

namespace fs = std::filesystem;

/// Selection 1 to 9 with the base numbers 3 and 8.
Systeme UnSysteme(int base) {
    const Ensemble tous{1, 2, 3, 4, 5, 6, 7, 8, 9};
    const Ensemble fixes = base == 2 ? Ensemble{3, 8} : Ensemble{};
    for (const EntreeCatalogue& e : CatalogueIntegre(*ChercherGarantie("3/4")))
        if (e.systeme.Selection == 9 && e.systeme.Base == base)
            return *GenererSysteme(e.systeme, {tous, fixes});
    return {};
}

class FichierSysteme : public testing::Test {
 protected:
    void SetUp() override {
        dossier = fs::temp_directory_path() / "norvane-systeme";
        fs::remove_all(dossier);
        fs::create_directories(dossier);
    }
    void TearDown() override { fs::remove_all(dossier); }

    fs::path dossier;
};

}  // namespace

TEST(Chiffre, BlocsDeHuitOctets) {
    const auto seize = Chiffrer("0123456701234567");
    ASSERT_TRUE(seize) << seize.erreur();
    EXPECT_EQ(seize->size(), 24U);
    EXPECT_EQ(seize->substr(0, 8), seize->substr(8, 8));  // each block on its own
    EXPECT_EQ(Chiffrer("012345670123456")->size(), 16U);
    for (const char* clair : {"", "1", "0123456", "01234567"})
        EXPECT_EQ(*Dechiffrer(*Chiffrer(clair)), clair);
    EXPECT_FALSE(Dechiffrer(seize->substr(0, 16)));
    EXPECT_FALSE(Dechiffrer("trop court"));
}

TEST(TexteSysteme, Lignes) {
    Systeme s;
    s.parametres = {5, 6, 1, 2, 3, 2};
    s.numeros = Ensemble{1, 2, 3, 4, 49};
    s.base = Ensemble{7};
    s.grilles = {1, 2, 3, 4, 7, 1, 2, 3, 7, 49};
    EXPECT_EQ(TexteSysteme(s), "2 5 6 1 2 3\n1 2 3 4 49 \n7 \n1 2 3 4 7 \n1 2 3 7 49 \n");
    EXPECT_EQ(*LireTexteSysteme(TexteSysteme(s), "f"), s);
    EXPECT_EQ(*LireTexteSysteme("1 5 5 0 2 2\n1 2 3 4 5 \n\n1 2 3 4 5 ", "f")->grilles.begin(), 1);
}

TEST(TexteSysteme, Refuse) {
    struct Faute {
        const char* texte;
        int ligne;
    };
    for (const Faute& f : {
             Faute{"", 1},
             Faute{"un 5 5 0 2 2\n1 2 3 4 5\n\n1 2 3 4 5", 1},
             Faute{"1 11 49 0 2 2\n1 2 3 4 5\n\n1 2 3 4 5", 1},
             Faute{"1 5 4 0 2 2\n1 2 3 4\n\n1 2 3 4 5", 1},
             Faute{"1 5 5 3 2 2\n1 2\n3 4 5\n1 2 3 4 5", 1},
             Faute{"1 5 5 0 3 2\n1 2 3 4 5\n\n1 2 3 4 5", 1},
             Faute{"1 5 5 0 2 2\n1 2 3 4 50\n\n1 2 3 4 5", 2},
             Faute{"1 5 5 0 2 2\n1 2 3 4 4\n\n1 2 3 4 5", 2},
             Faute{"1 5 6 1 2 2\n1 2 3 4 5\n5\n1 2 3 4 5", 3},
             Faute{"1 5 5 0 2 2\n1 2 3 4 5\n\n1 2 3 4 6", 4},
             Faute{"1 5 5 0 2 2\n1 2 3 4 5\n\n1 2 3 4 4", 4},
             Faute{"2 5 5 0 2 2\n1 2 3 4 5\n\n1 2 3 4 5\n1 2 3 4", 5},
             Faute{"1 5 5 0 2 2\n1 2 3 4 5\n\n1 2 3 4 5\n1", 5},
         }) {
        const auto lu = LireTexteSysteme(f.texte, "a.syr");
        ASSERT_FALSE(lu) << f.texte;
        const std::string tete = "« a.syr », ligne " + std::to_string(f.ligne) + " : ";
        EXPECT_TRUE(lu.erreur().starts_with(tete)) << lu.erreur() << '\n' << f.texte;
    }
}

TEST_F(FichierSysteme, AllerRetour) {
    for (const int base : {0, 2}) {
        const Systeme systeme = UnSysteme(base);
        ASSERT_FALSE(systeme.vide());
        const fs::path chemin = dossier / "mon système.syr";
        std::ofstream(chemin) << "un ancien fichier";
        ASSERT_TRUE(SauverSysteme(chemin, systeme));
        const auto membre = LireFichierArchive(chemin, 1 << 20);
        ASSERT_TRUE(membre);
        EXPECT_EQ(membre->nom, "mon système.syr.tmp");
        EXPECT_EQ(*Dechiffrer(membre->contenu), TexteSysteme(systeme));
        const auto lu = ChargerSysteme(chemin);
        ASSERT_TRUE(lu) << lu.erreur();
        EXPECT_EQ(*lu, systeme);
        EXPECT_EQ(std::distance(fs::directory_iterator(dossier), {}), 1);  // nothing left beside
    }
}

TEST_F(FichierSysteme, ArchivesRefusees) {
    const Systeme systeme = UnSysteme(0);
    const auto ecrire = [&](const std::string& nom, const std::string& contenu) {
        const MembreArchive membre{nom, contenu};
        EXPECT_TRUE(EcrireFichier(dossier / "a.syr", *FaireArchive(std::span(&membre, 1))));
        return ChargerSysteme(dossier / "a.syr");
    };
    const std::string bon = *Chiffrer(TexteSysteme(systeme));
    EXPECT_TRUE(ecrire("a.syr.tmp", bon));
    EXPECT_TRUE(ecrire("autre nom.syr.tmp", bon));  // the file was renamed
    EXPECT_TRUE(ecrire("a.syr", TexteSysteme(systeme)));
    std::string autre = bon;
    autre[3] = static_cast<char>(autre[3] ^ 1);
    EXPECT_FALSE(ecrire("a.syr.tmp", autre));
    EXPECT_FALSE(ecrire("a.syr.tmp", bon.substr(0, bon.size() - 8)));
    EXPECT_FALSE(ecrire("a.syr.tmp", TexteSysteme(systeme)));
    std::ofstream(dossier / "b.syr") << "pas une archive";
    EXPECT_FALSE(ChargerSysteme(dossier / "b.syr"));
    EXPECT_FALSE(ChargerSysteme(dossier / "absent.syr"));
}

TEST_F(FichierSysteme, TexteExterne) {
    const auto importe = LireTexteGrilles(
        "\xEF\xBB\xBFNumero A;Numero B\r\n\r\n04;3;2\n 1, 49 ,7\t\n\n05\t06\t07", "s.csv");
    ASSERT_TRUE(importe) << importe.erreur();
    EXPECT_EQ(importe->grilles, (std::vector<std::int32_t>{2, 3, 4, 1, 7, 49, 5, 6, 7}));
    EXPECT_EQ(importe->parametres, (SystemeDisponible{3, 8, 0, 0, 0, 3}));
    EXPECT_EQ(importe->IndicateurImporte, 3);
    EXPECT_EQ(importe->NumerosParGrilleImporte, 3);
    EXPECT_EQ(TexteGrilles(*importe), "02 03 04\n01 07 49\n05 06 07\n");
    EXPECT_EQ(*LireTexteGrilles(TexteGrilles(*importe), "s.txt"), *importe);
    EXPECT_FALSE(SauverSysteme(dossier / "x.syr", *importe));
    EXPECT_FALSE(fs::exists(dossier / "x.syr"));
    EXPECT_EQ(LireTexteGrilles("1 2 3 4 5 6 7 8 9 10", "f")->parametres.NumerosParGrille, 10);

    struct Faute {
        const char* texte;
        int ligne;
    };
    for (const Faute& f : {
             Faute{"1 2 3\n4 5 50\n", 2},
             Faute{"1 2 3\n0 5 6\n", 2},
             Faute{"1 2 2\n", 1},
             Faute{"1 2 3\n4 5\n", 2},
             Faute{"7\n", 1},
             Faute{"1 2 3 4 5 6 7 8 9 10 11\n", 1},
             Faute{"1 2 3\nla suite\n", 2},
             Faute{"1 2 trois\n", 1},
             Faute{"1 2 3.5\n", 1},
             Faute{"1 2 -3\n", 1},
             Faute{"99\n1 2\n", 1},
         }) {
        const auto lu = LireTexteGrilles(f.texte, "s.txt");
        ASSERT_FALSE(lu) << f.texte;
        const std::string tete = "« s.txt », ligne " + std::to_string(f.ligne) + " : ";
        EXPECT_TRUE(lu.erreur().starts_with(tete)) << lu.erreur() << '\n' << f.texte;
    }
    EXPECT_FALSE(LireTexteGrilles("Titre\n\n", "s.txt"));
    EXPECT_FALSE(ImporterSysteme(dossier / "absent.txt"));
}

}  // namespace norvane
