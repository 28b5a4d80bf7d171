// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The start on whatever a directory holds, and what a save leaves in it.

#include <gtest/gtest.h>

#include <chrono>
#include <numeric>

#include "atelier/TravauxListes.h"
#include "base/Archive.h"
#include "base/BaseIntegree.h"
#include "base/Stockage.h"
#include "Dossier.h"
#include "tickets/FichiersGrilles.h"

using namespace norvane;
namespace fs = std::filesystem;

namespace {

class TestAtelier : public testing::Test {
 protected:
    const Dossier racine;
    const fs::path& dossier = racine.chemin();
};

}  // namespace

TEST_F(TestAtelier, DossierVidePuisBaseGlobale) {
    for (const bool globale : {false, true}) {
        if (globale) poser(dossier / NomConfiguration, "[BASE]\nAnciensTirages=1\n");
        Atelier a(dossier);
        const int n = globale ? 8072 : 3214;
        EXPECT_EQ(a.base.NbTirages, n);
        EXPECT_EQ(a.base.AnciensTirages, globale);
        EXPECT_EQ(a.occurrences.IntervalleInf, 1);
        EXPECT_EQ(a.occurrences.IntervalleSup, n);
        const auto& sorties = a.occurrences.SortiesNumeros;
        EXPECT_EQ(std::accumulate(sorties.begin(), sorties.end(), 0), 5 * n);
        EXPECT_TRUE(a.avertissements.empty());
        EXPECT_FALSE(a.activite.occupe());
        EXPECT_TRUE(globale || fs::is_empty(dossier)) << "a start writes nothing";
    }
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
    for (const bool lien : {false, true}) {
        Atelier a(dossier);
        EXPECT_EQ(a.base.NbTirages, 3214);
        ASSERT_EQ(a.avertissements.size(), 1U);
        EXPECT_TRUE(a.sauverBase()) << "nothing changed, nothing to save";
        a.base.Tirages[0].Chance = 3;
        EXPECT_FALSE(a.sauverBase());
        EXPECT_TRUE(lien || fs::is_directory(dossier / NomStockage));
        EXPECT_FALSE(fs::exists(dossier / "absente.db"));
        if (lien) break;
        fs::remove(dossier / NomStockage);
        fs::create_symlink("absente.db", dossier / NomStockage);
    }
}

TEST_F(TestAtelier, CeQuUnDepartRetire) {
    fs::create_directory(dossier / DossierGrilles);
    poser(dossier / "norvane.db", "rien");  // told and set aside, so that a save makes a new one
    for (const fs::path& sous : {fs::path(), fs::path(DossierGrilles)}) {
        const fs::path reste = dossier / sous / ".norvane-12-3.tmp";
        poser(reste, "x");
        fs::last_write_time(reste, fs::file_time_type::clock::now() - std::chrono::hours(25));
    }
    Atelier a(dossier);
    EXPECT_TRUE(fs::is_empty(dossier / DossierGrilles));
    EXPECT_FALSE(fs::exists(dossier / ".norvane-12-3.tmp"));
    EXPECT_EQ(a.avertissements.size(), 1U);
    EXPECT_TRUE(a.sauverBase());
    EXPECT_TRUE(Atelier(dossier).avertissements.empty());
}

TEST_F(TestAtelier, RecalculApresSuppression) {
    poser(dossier / NomCombCalc, "3214 12 51\n");
    Atelier a(dossier);
    ChangerIntervalle(a.base, a.occurrences, 100, 200);
    EXPECT_EQ(a.tailleIntervalle(), 101);
    EXPECT_FALSE(a.intervalleEntier());
    const int premier = a.base.Tirages[0].Numeros[0];
    const auto k = static_cast<std::size_t>(premier - 1);
    const auto avant = a.occurrences.SortiesNumeros[k];
    const std::vector<Combinaison> une = {{{1, 2}, 3}};
    a.ListeExtremes = a.ListeMemoire = a.ListeTampon[1] = ListeDeCombinaisons(2, une);
    a.modeListe = ModeListe::Manipulation;
    a.grilleSelection[k] = Priorite::Absolue;
    a.combinaisons.BorneSup[2] = 7;
    SupprimerTirage(a.base, 0);
    ASSERT_TRUE(a.recalculer());
    EXPECT_EQ(a.occurrences.SortiesNumeros[k], avant - 1);
    EXPECT_TRUE(a.intervalleEntier());
    EXPECT_EQ(a.tailleIntervalle(), 3213);
    EXPECT_EQ(a.occurrences.PositionNumero.size(), 3213U);
    // The lists of the engine speak of draws that are no more; the user's own stay.
    EXPECT_TRUE(a.ListeExtremes.vide() && a.ListeMemoire.vide());
    EXPECT_EQ(a.liste(QuelleListe::Tampon2).nombre(), 1U);
    EXPECT_EQ(a.modeListe, ModeListe::Extremes);
    EXPECT_EQ(a.selection.NbTiragesSelection, avant - 1);
    EXPECT_EQ(a.combinaisons.BorneSup[2], 51);

    poser(dossier / NomCombCalc, "deux\n");
    a.grilleSelection[k] = Priorite::Secondaire;  // refused alone
    const auto fait = a.recalculer();
    ASSERT_FALSE(fait);
    EXPECT_TRUE(fait.erreur().starts_with("Ligne 1 du")) << fait.erreur();
    EXPECT_EQ(a.combinaisons.BorneSup[2], 0);
    EXPECT_TRUE(a.selection.vide());
}

TEST_F(TestAtelier, ListesOuvertesEtEnregistreesParDesTravaux) {
    Atelier a(dossier);
    Liste& tampon = a.ListeTampon[1];
    tampon = ListeDeCombinaisons(2, std::vector<Combinaison>{{{7, 20}, 3}, {{7, 33}, 4}});
    tampon.DebutListe = tampon.FinListe = 5;
    const auto mots = tampon.arene.mots;
    const auto mener = [](Travail& travail, bool arreter = false) {
        if (arreter) travail.arreter();
        travail.demarrer();
        travail.attendre();
        return travail.erreur();
    };
    const fs::path fichier = dossier / "a.lst";
    EXPECT_EQ(mener(*FaireSauvegardeListe(a, QuelleListe::Tampon2, fichier), true), "");
    EXPECT_FALSE(fs::exists(fichier));
    const PtrTravail sauvegarde = FaireSauvegardeListe(a, QuelleListe::Tampon2, fichier);
    EXPECT_EQ(sauvegarde->description,
              (DescriptionTravail{GenreTravail::Fichier, 2, QuelleListe::Tampon2}));
    EXPECT_EQ(mener(*sauvegarde), "");
    EXPECT_EQ(mener(*FaireExportListe(a, QuelleListe::Tampon2, dossier / "a.txt")), "");
    EXPECT_EQ(lire(dossier / "a.txt"), "07 20  (03)\n07 33  (04)\n");
    EXPECT_NE(mener(*FaireExportListe(a, QuelleListe::Tampon2, dossier / "absent/a.txt")), "");

    tampon = ListeDeCombinaisons(3, std::vector<Combinaison>{{{1, 2, 3}, 9}});
    OuvertureListe absente(a, QuelleListe::Tampon2, dossier / "absente.lst");
    EXPECT_NE(mener(absente), "");
    EXPECT_FALSE(absente.poser(a));
    OuvertureListe arretee(a, QuelleListe::Tampon2, fichier);
    EXPECT_EQ(mener(arretee, true), "");
    EXPECT_FALSE(arretee.poser(a));
    EXPECT_EQ(tampon.taille(), 3);
    OuvertureListe ouverture(a, QuelleListe::Tampon2, fichier);
    EXPECT_EQ(mener(ouverture), "");
    EXPECT_EQ(tampon.taille(), 3);
    EXPECT_TRUE(ouverture.poser(a));
    EXPECT_EQ(tampon.arene.mots, mots);
    EXPECT_FALSE(ouverture.poser(a));
    EXPECT_EQ(tampon.arene.mots, mots);

    // The length of a record is that of the prizes in force.
    poser(fichier,
          *FaireArchive(std::vector<MembreArchive>{{"a.tmp", "1 3 1 1 3214 0 0 0 0 0 7 20 33"}}));
    a.configuration.reglages.GainsNominaux = {0, 5, 500, 100000};
    OuvertureListe autresGains(a, QuelleListe::Tampon2, fichier);
    EXPECT_EQ(mener(autresGains), "");
}
