// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <random>

#include "base/BaseIntegree.h"
#include "PageSansFenetre.h"

namespace norvane {
namespace {

using Genre = ReponseClic::Genre;
constexpr auto Memoire = QuelleListe::Memoire;

/// The main list by bounds over an interval, with all ranks unless told otherwise.
void Chercher(Page& page, int taille, int inf, int sup, int minimum,
              ModeStockage mode = ModeStockage::TousLesRangs) {
    page.intervalle(inf, sup);
    page.atelier.modeListe = ModeListe::Bornes;
    page.atelier.modeStockage = mode;
    ASSERT_EQ(page.cliquer(taille, minimum, 99).message, "");
}

void Faire(Page& page, ReponseClic reponse, FinTraitement* fin = nullptr) {
    ASSERT_EQ(reponse.genre, Genre::Lance) << reponse.message;
    EXPECT_EQ(page.moteur.Trier(Memoire, {TypeTri::Simple}).message,
              "Attendez la fin du traitement en cours...");
    const FinTraitement f = page.mener(reponse);
    EXPECT_EQ(f.message, "");
    EXPECT_FALSE(f.arrete);
    if (fin != nullptr) *fin = f;
}

// What a list becomes on another interval is what a search and its ranks give there.
TEST(MoteurRangs, AdapterVautChercherEtRemplir) {
    Page page(BaseIntegree(false)), autre(BaseIntegree(false));
    const Liste& liste = page.atelier.ListeMemoire;
    const Liste& fraiche = autre.atelier.ListeMemoire;
    for (const auto mode :
         {ModeStockage::PremierRang, ModeStockage::RangsDeGain, ModeStockage::TousLesRangs}) {
        Chercher(page, 3, 11, 3210, 0, mode);
        Chercher(autre, 3, 500, 700, 0, mode);
        if (mode != ModeStockage::PremierRang) {
            Faire(page, page.moteur.RemplirRangs(Memoire));
            EXPECT_EQ(liste.NbCombRangs, liste.nombre());
            Faire(autre, autre.moteur.RemplirRangs(Memoire));
        }
        EXPECT_EQ(page.moteur.RemplirRangs(Memoire).genre, Genre::Refuse);  // nothing left
        page.intervalle(500, 700);
        auto reponse = page.moteur.Adapter(Memoire);
        EXPECT_TRUE(liste.vide());
        EXPECT_EQ(page.moteur.nombreEnCours(Memoire), 18424U);
        EXPECT_EQ(page.moteur.nombreEnCours(QuelleListe::Tampon1), 0U);
        Faire(page, std::move(reponse));
        EXPECT_TRUE(liste.arene.mots == fraiche.arene.mots);
        EXPECT_EQ(liste.arene.disposition, fraiche.arene.disposition);
        EXPECT_EQ(std::pair(liste.DebutListe, liste.FinListe), std::pair(500, 700));
        EXPECT_EQ(liste.NbCombRangs, fraiche.NbCombRangs);
        EXPECT_FALSE(liste.melangee);
        EXPECT_EQ(page.moteur.nombreEnCours(Memoire), 18424U);
    }
    for (const auto vide : {&Moteur::Adapter, &Moteur::RemplirRangs})
        EXPECT_EQ((page.moteur.*vide)(QuelleListe::Tampon2).genre, Genre::Refuse);
}

TEST(MoteurRangs, ArretRepriseEtTravailJamaisDemarre) {
    Page page(BaseIntegree(false));
    Chercher(page, 4, 1, 3214, 0);
    Liste& liste = page.atelier.ListeTampon[1];
    liste = page.atelier.ListeMemoire;
    const auto mots = liste.arene.mots;
    constexpr auto Tampon = QuelleListe::Tampon2;
    auto jamais = page.moteur.RemplirRangs(Tampon);
    EXPECT_FALSE(page.moteur.TraitementTermine(*jamais.travail).arrete);
    jamais = page.moteur.Adapter(Tampon);
    page.moteur.TraitementTermine(*jamais.travail);
    EXPECT_TRUE(liste.arene.mots == mots);
    EXPECT_EQ(liste.FinListe, 3214);

    auto rangs = page.moteur.RemplirRangs(Tampon);
    EXPECT_EQ(rangs.travail->description, (DescriptionTravail{GenreTravail::Rangs, 4, Tampon}));
    rangs.travail->arreter();
    EXPECT_TRUE(page.mener(rangs).arrete);
    EXPECT_LT(liste.NbCombRangs, liste.nombre());
    Faire(page, page.moteur.RemplirRangs(Tampon));
    EXPECT_EQ(liste.NbCombRangs, liste.nombre());

    const auto remplis = liste.arene.mots;
    const auto arreterEnRoute = [&](int sup) {
        page.intervalle(1, sup);
        liste.tri.TypeTriListe = TypeTri::Gain;
        auto reponse = page.moteur.Adapter(Tampon);
        reponse.travail->demarrer();
        while (reponse.travail->progres.fait() < 20) std::this_thread::yield();
        const bool arrete = page.mener(reponse, true).arrete;
        EXPECT_EQ(liste.FinListe, sup);
        EXPECT_EQ(liste.tri, EtatTri{});
        return arrete;
    };
    arreterEnRoute(3214);
    EXPECT_FALSE(liste.melangee);
    EXPECT_TRUE(liste.arene.mots == remplis);
    // A run may end before the stop reaches it.
    bool arrete = false;
    for (int essai = 0; essai < 100 && !arrete; ++essai) {
        arrete = arreterEnRoute(3000 + essai);
        EXPECT_EQ(liste.melangee, arrete);
    }
    ASSERT_TRUE(arrete);
    arrete = arreterEnRoute(liste.FinListe);
    EXPECT_EQ(liste.melangee, arrete);
    Copier(liste, std::vector<std::size_t>{0}, page.atelier.ListeTampon[2]);
    EXPECT_EQ(page.atelier.ListeTampon[2].melangee, arrete);
    page.intervalle(1, 3214);
    Faire(page, page.moteur.Adapter(Tampon));
    EXPECT_FALSE(liste.melangee);
    EXPECT_TRUE(liste.arene.mots == remplis);
}

TEST(MoteurRangs, TriCourtEtTriLong) {
    Page page(BaseIntegree(false));
    const EtatTri tri{TypeTri::Simple, Critere::EcartMax, false, 0};
    Liste& liste = page.atelier.ListeMemoire;
    for (const auto& [taille, genre] : {std::pair{3, Genre::Affiche}, {4, Genre::Lance}}) {
        Chercher(page, taille, 1, 3214, 0, ModeStockage::PremierRang);
        Liste attendue = liste;
        Trier(attendue, tri, {});
        EXPECT_EQ(page.moteur.Trier(Memoire, {}).genre, Genre::Refuse);
        auto reponse = page.moteur.Trier(Memoire, tri);
        ASSERT_EQ(reponse.genre, genre);
        if (genre == Genre::Lance) {
            reponse.travail->arreter();
            EXPECT_TRUE(page.mener(reponse).arrete);
            EXPECT_TRUE(liste.ordre.empty());
            reponse = page.moteur.Trier(Memoire, tri);
            EXPECT_EQ(reponse.travail->description,
                      (DescriptionTravail{GenreTravail::Tri, 4, Memoire}));
            EXPECT_FALSE(page.mener(reponse).arrete);
        }
        EXPECT_TRUE(liste.ordre == attendue.ordre);
        EXPECT_EQ(liste.tri, tri);
    }
    // The prizes are those of the settings.
    Chercher(page, 3, 1, 3214, 9);
    Faire(page, page.moteur.RemplirRangs(Memoire));
    page.atelier.configuration.reglages.GainsNominaux = {1, 0, 0, 0};
    const EtatTri gain{TypeTri::Gain, Critere::NbFois, true, 0};
    EXPECT_EQ(page.moteur.Trier(Memoire, gain).genre, Genre::Affiche);
    EXPECT_EQ(liste.tri, gain);
    for (std::size_t l = 1; l < liste.nombre(); ++l)
        EXPECT_LE(liste.enregistrement(l - 1)[10], liste.enregistrement(l)[10]);
}

TEST(MoteurRangs, TriEcartAvance) {
    Page page(BaseIntegree(false));
    Liste& liste = page.atelier.ListeMemoire;
    TriEcartAvance& tri = page.atelier.triEcartAvance;
    Chercher(page, 4, 1, 3214, 1);
    EXPECT_EQ(page.moteur.TrierEcart(Memoire).genre, Genre::Refuse);  // not active
    tri = {true, 5, 3, 400};
    EXPECT_EQ(page.moteur.TrierEcart(Memoire).genre, Genre::Refuse);  // not of this size
    tri.taille = 4;
    FinTraitement fin;
    Faire(page, page.moteur.RemplirRangs(Memoire));
    Liste attendue = liste;
    FiltrerEcart(attendue, 3, 400);
    EXPECT_TRUE(attendue.nombre() > 10 && attendue.nombre() < liste.nombre());
    auto reponse = page.moteur.TrierEcart(Memoire);
    reponse.travail->arreter();
    EXPECT_TRUE(page.mener(reponse).arrete);
    EXPECT_GT(liste.nombre(), attendue.nombre());
    Faire(page, page.moteur.TrierEcart(Memoire), &fin);
    EXPECT_EQ(fin.gardees, attendue.nombre());
    EXPECT_TRUE(liste.arene.mots == attendue.arene.mots);
    Chercher(page, 4, 1, 3214, 1, ModeStockage::PremierRang);
    EXPECT_TRUE(page.moteur.TrierEcart(Memoire).message.starts_with(
        "Le Tri Ecart Avancé porte sur le rang 3, que la liste en mémoire ne garde pas"));
    ASSERT_TRUE(page.atelier.recalculer());
    EXPECT_FALSE(tri.actif);
}

}  // namespace
}  // namespace norvane
