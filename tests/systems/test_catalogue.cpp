// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <fstream>

#include "systems/Systeme.h"

namespace norvane {

namespace {

constexpr const char* Douze = "S\xE9lection: 12 Garantie: 3/4 Base: 2 Grilles: 0017";

}  // namespace

TEST(Catalogue, LignesParPosition) {
    // Only the places of the digits count, whatever stands between them.
    const auto lu = LireCatalogue(
        "S\xE9lection: 06 Garantie: 2/2 Base: 0 Grilles: 0003\r\n\n"
        "xxxxxxxxxxx12xxxxxxxxxxx3x4xxxxxxx2xxxxxxxxxx0017 et la suite\n",
        "sys22.dat");
    ASSERT_TRUE(lu);
    ASSERT_EQ(lu->size(), 2U);
    EXPECT_EQ((*lu)[0].ligne, "Sélection: 06 Garantie: 2/2 Base: 0 Grilles: 0003");
    EXPECT_EQ((*lu)[0].systeme, SystemeDisponible{});
    EXPECT_EQ(LigneCatalogue({}), (*lu)[0].ligne);
    EXPECT_EQ(CleSysteme({}), "060502020003");
    EXPECT_EQ((*lu)[1].systeme, (SystemeDisponible{5, 12, 2, 3, 4, 17}));
    EXPECT_EQ(CleSysteme((*lu)[1].systeme), "100301020017");
}

TEST(Catalogue, LignesRefusees) {
    const std::string bonne = Douze;
    ASSERT_TRUE(LireCatalogue(bonne, "f"));
    struct Faute {
        std::size_t place;
        const char* texte;
    };
    for (const Faute& faute : {Faute{11, "x2"}, Faute{11, "04"}, Faute{11, "50"}, Faute{24, "5"},
                               Faute{26, "6"}, Faute{34, "3"}, Faute{45, "0000"}, Faute{48, ""}}) {
        std::string ligne = bonne;
        const std::string_view texte = faute.texte;
        if (texte.empty())
            ligne.resize(faute.place);
        else
            ligne.replace(faute.place, texte.size(), texte);
        const auto lu = LireCatalogue(bonne + "\n" + ligne, "sys34.dat");
        ASSERT_FALSE(lu) << ligne;
        EXPECT_TRUE(lu.erreur().starts_with("« sys34.dat », ligne 2 : ")) << lu.erreur();
    }
    EXPECT_FALSE(LireCatalogue("\n\n", "sys34.dat"));
}

TEST(Catalogue, FichierDuRepertoireOuStock) {
    const auto dossier = std::filesystem::temp_directory_path() / "norvane-catalogue";
    std::filesystem::create_directories(dossier);
    const TypeGarantie* type = ChercherGarantie("3/4");
    ASSERT_NE(type, nullptr);
    std::filesystem::remove(dossier / type->fichier);
    const auto integre = ChargerCatalogue(dossier, *type);
    ASSERT_TRUE(integre);
    EXPECT_EQ(integre->size(), 132U);
    std::ofstream(dossier / type->fichier) << Douze;
    const auto lu = ChargerCatalogue(dossier, *type);
    ASSERT_TRUE(lu);
    EXPECT_EQ(lu->size(), 1U);
    std::filesystem::remove_all(dossier);

    EXPECT_EQ(CatalogueIntegre(TypesGarantie[0]).size(), 44U);
    EXPECT_EQ(ChercherGarantie("4/3"), nullptr);
}

TEST(Selection, CycleDesTroisEtats) {
    SelectionSysteme s;
    for (const int n : {7, 12, 49}) EXPECT_TRUE(s.avancer(n));
    EXPECT_TRUE(s.avancer(7) && s.avancer(49));
    EXPECT_EQ(std::pair(s.SelectionCourante(), s.BaseCourante()), std::pair(3, 2));
    // A third base number: the box stays grey and the counts as they were.
    EXPECT_FALSE(s.avancer(12));
    EXPECT_EQ(s.etat(12), 2);
    EXPECT_EQ(std::pair(s.SelectionCourante(), s.BaseCourante()), std::pair(3, 2));
    EXPECT_TRUE(s.avancer(7));
    EXPECT_EQ(s.etat(7), 0);
    EXPECT_EQ(std::pair(s.SelectionCourante(), s.BaseCourante()), std::pair(2, 1));
    EXPECT_TRUE(s.avancer(12));
    EXPECT_EQ(s.etat(12), 1);
    EXPECT_EQ(s.etat(1), 0);

    GenerateurHasard hasard(5);
    const SelectionSysteme tiree = SelectionAuHasard({5, 49, 2, 3, 4, 1}, hasard);
    EXPECT_EQ(std::pair(tiree.SelectionCourante(), tiree.BaseCourante()), std::pair(49, 2));
}

TEST(Generation, PointsSurLesNumerosEtRefus) {
    // The points stand for the numbers in ascending order, which keeps the order of the grids.
    const SystemeDisponible neuf = CatalogueIntegre(TypesGarantie[4])[9].systeme;
    ASSERT_EQ(std::pair(neuf.Selection, neuf.Base), std::pair(9, 0));
    const auto aplat = GenererSysteme(neuf, {Ensemble{1, 2, 3, 4, 5, 6, 7, 8, 9}, {}});
    const std::vector<int> ailleurs = {2, 3, 5, 11, 20, 30, 41, 48, 49};
    const auto monte = GenererSysteme(neuf, {Ensemble::de(ailleurs), {}});
    ASSERT_TRUE(aplat && monte);
    ASSERT_EQ(aplat->nombre(), static_cast<std::size_t>(neuf.Grilles));
    for (std::size_t i = 0; i < aplat->grilles.size(); ++i)
        EXPECT_EQ(monte->grilles[i], ailleurs[static_cast<std::size_t>(aplat->grilles[i] - 1)]);
    EXPECT_EQ(LigneGrille(std::vector<std::int32_t>{3, 14}), "03 14 ");

    EXPECT_FALSE(GenererSysteme(neuf, {Ensemble{1, 2, 3, 4, 5, 6, 7, 8}, {}}));
    EXPECT_FALSE(GenererSysteme(neuf, {Ensemble::de(ailleurs), Ensemble{2}}));
    SystemeDisponible autre = neuf;
    ++autre.Grilles;
    const auto refuse = GenererSysteme(autre, {Ensemble::de(ailleurs), {}});
    ASSERT_FALSE(refuse);
    EXPECT_NE(refuse.erreur().find(std::to_string(autre.Grilles)), std::string::npos);
}

TEST(Generation, VersLesListes) {
    Systeme systeme;
    systeme.parametres.NumerosParGrille = 3;
    systeme.grilles = {4, 8, 15, 16, 23, 42};
    for (const auto& [mode, blocs] :
         {std::pair(ModeStockage::PremierRang, 1), std::pair(ModeStockage::RangsDeGain, 2),
          std::pair(ModeStockage::TousLesRangs, 4)}) {
        const Liste liste = ListeDuSysteme(systeme, mode, {}, 3, 40);
        ASSERT_EQ(liste.nombre(), 2U);
        EXPECT_EQ(std::pair(liste.DebutListe, liste.FinListe), std::pair(3, 40));
        EXPECT_EQ(liste.NbCombRangs, 0U);
        const auto lu = liste.enregistrement(1);
        ASSERT_EQ(lu.size(), static_cast<std::size_t>(5 * blocs + 3));
        EXPECT_EQ(Ensemble::de(liste.numeros(1)), (Ensemble{16, 23, 42}));
        for (int i = 0; i < 5 * blocs; ++i) {
            const bool inconnu = mode != ModeStockage::PremierRang && i % 5 == 1;
            EXPECT_EQ(lu[static_cast<std::size_t>(i)], inconnu ? RangNonCalcule : 0) << i;
        }
    }
}

}  // namespace norvane
