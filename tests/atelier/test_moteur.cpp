// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <thread>

#include "atelier/Moteur.h"
#include "base/BaseIntegree.h"
#include "comb/LigneCombinaison.h"
#include "OracleComb.h"
#include "PageSansFenetre.h"

namespace norvane {
namespace {

using Genre = ReponseClic::Genre;
constexpr const char* Attendez = "Attendez la fin du traitement en cours...";

Base BaseMoyenne(int n = 300, int numeros = 30) {
    std::mt19937 hasard(31);
    return BaseAleatoire(hasard, n, numeros);
}

TEST(Moteur, CalculGardeEtRecharge) {
    Page page(BaseMoyenne());
    EXPECT_EQ(page.bornes(2), "NC");
    page.atelier.ListeExtremes = ListeDeCombinaisons(3, std::vector<Combinaison>{{{1, 2, 3}, 4}});
    auto reponse = page.moteur.Cliquer(2);
    ASSERT_EQ(reponse.genre, Genre::Lance);
    EXPECT_EQ(reponse.travail->progres.total(), 48);
    EXPECT_EQ(reponse.travail->description,
              (DescriptionTravail{GenreTravail::Extremes, 2, QuelleListe::Extremes}));
    EXPECT_TRUE(page.atelier.ListeExtremes.vide());
    EXPECT_EQ(page.moteur.Cliquer(3).message, Attendez);
    const auto fin = page.mener(reponse);
    EXPECT_EQ(fin.message, "");
    EXPECT_FALSE(fin.arrete);
    EXPECT_GE(fin.secondes, 0);
    EXPECT_EQ(reponse.travail->progres.fait(), 48);
    // Told a second time, or of another job, the end changes nothing.
    EXPECT_EQ(page.moteur.TraitementTermine(*reponse.travail).secondes, std::nullopt);

    const auto& n = page.etat();
    EXPECT_EQ(lire(page.dossier / "COMBCALC.INI").substr(0, 4), "300 ");
    EXPECT_EQ(n.NbTiragesComb[2], 300);
    EXPECT_TRUE(*LireListe(page.dossier / "comb2.dat", 2) == page.extremes());
    EXPECT_EQ(page.atelier.ListeExtremes.FinListe, 300);
    EXPECT_EQ(page.moteur.RafraichirBornes()[0],
              (BornesAffichees{true, n.BorneInf[2], n.BorneSup[2], 300}));
    EXPECT_EQ(page.bornes(3), "NC");

    // On show the most frequent come first.
    auto montrees = Page::Lignes(page.atelier.ListeExtremes);
    EXPECT_GT(montrees.front().NbFois, montrees.back().NbFois);
    EXPECT_TRUE(std::ranges::is_sorted(montrees, [](const Combinaison& a, const Combinaison& b) {
        return a.NbFois != b.NbFois ? a.NbFois > b.NbFois
                                    : AvantLexico(a.numeros.bits(), b.numeros.bits());
    }));

    // The stored list is loaded, not counted again.
    const auto juste = page.extremes();
    poser(page.dossier / "comb2.dat", "07 23  (112)\n");
    EXPECT_EQ(page.genre(2), Genre::Affiche);
    EXPECT_TRUE(page.extremes() == (std::vector<Combinaison>{{{7, 23}, 112}}));
    EXPECT_EQ(page.atelier.ListeExtremes.DebutListe, 1);
    // A file that is damaged, empty or missing costs a run.
    for (const char* abime : {"07 23  (112)\nbonjour\n", "", "-"}) {
        poser(page.dossier / "comb2.dat", abime);
        if (*abime == '-') std::filesystem::remove(page.dossier / "comb2.dat");
        EXPECT_EQ(page.cliquer(2).message, "");
        EXPECT_TRUE(page.extremes() == juste);
        EXPECT_TRUE(*LireListe(page.dossier / "comb2.dat", 2) == juste);
    }
    page.atelier.activite.Disponible = false;
    EXPECT_EQ(page.moteur.Cliquer(2).message, Attendez);
    page.atelier.activite.Disponible = true;
    const Occupation autre(page.atelier.activite, {GenreTravail::Bilan});
    EXPECT_EQ(page.moteur.Cliquer(2).message, Attendez);
}

TEST(Moteur, FichiersQuUnCalculEcrit) {
    Page page(BaseMoyenne());
    page.cliquer(3);
    const auto avant = Contenu(page.dossier);
    const auto sont = [&](std::initializer_list<const char*> nouveaux) {
        auto fichiers = Contenu(page.dossier);
        for (const char* nom : nouveaux) EXPECT_EQ(fichiers.erase(nom), 1U) << nom;
        EXPECT_EQ(fichiers, avant);
    };
    sont({});
    page.intervalle(20, 90);
    page.etat().NbTiragesComb[3] = -10;
    page.cliquer(3);
    sont({"cmbtmp3.dat"});
    EXPECT_EQ(page.etat().NbTiragesComb[3], 71);
    const Liste& liste = page.atelier.ListeExtremes;
    EXPECT_EQ(std::pair(liste.DebutListe, liste.FinListe), std::pair(20, 90));
    page.atelier.series = true;
    page.intervalle(1, 300);
    page.etat().NbTiragesComb[3] = -10;
    page.cliquer(3);
    sont({"cmbtmp3.dat", "succ3.dat"});
    EXPECT_EQ(page.genre(3), Genre::Affiche);
    EXPECT_TRUE(*LireListe(page.dossier / "succ3.dat", 3) == page.extremes());

    std::filesystem::remove_all(page.dossier.chemin());
    page.etat().NbTiragesComb[3] = -10;
    const auto fin = page.cliquer(3);
    EXPECT_NE(fin.message, "");
    EXPECT_EQ(page.etat().NbTiragesComb[3], -10);
}

TEST(Moteur, EtatDUneAutreBase) {
    Page page(BaseMoyenne());
    page.etat().NbTiragesComb[2] = 400;
    page.etat().BorneSup[2] = 90;
    page.atelier.ListeExtremes = ListeDeCombinaisons(2, std::vector<Combinaison>{{{7, 23}, 112}});
    const auto refus = page.moteur.Cliquer(2);
    EXPECT_EQ(
        refus.message,
        "Les bornes enregistrées pour 2 numéros portent sur 400 tirages et la base n'en compte "
        "que 300 : elles sont oubliées, cliquez à nouveau pour les recalculer.");
    EXPECT_EQ(page.extremes().size(), 1U);
    page.cliquer(2);
    EXPECT_EQ(page.etat().NbTiragesComb[2], 300);
    EXPECT_LT(page.etat().BorneSup[2], 90);
}

TEST(Moteur, GrandesTaillesNeChargentQueLeurDu) {
    Page page(BaseMoyenne(60, 20));
    page.cliquer(6);
    const auto juste = page.extremes();
    EXPECT_EQ(page.genre(6), Genre::Affiche);
    EXPECT_TRUE(page.extremes() == juste);

    // Never computed, made on other draws, without its file: counted, and known as such till then.
    const std::string etats[] = {"0 0 0\n", "0 0 1\n", "50 0 3\n", "60 0 3\n"};
    for (const auto& ligne : etats) {
        poser(page.dossier / "COMBCALC.INI", "1 0 1\n1 0 1\n1 0 1\n1 0 1\n" + ligne);
        if (ligne.starts_with("60"))
            std::filesystem::remove(page.dossier / "comb6.dat");
        else
            poser(page.dossier / "comb6.dat", "01 02 03 04 05 06  (03)\n");
        ASSERT_TRUE(page.atelier.relireEtat());
        EXPECT_EQ(page.etat().NbTiragesComb[6], 60);
        EXPECT_EQ(page.bornes(6), ligne.starts_with("60") ? "0..3" : "NC");
        EXPECT_EQ(page.moteur.AfficherBornes(6).NbTirages, std::stoi(ligne));
        ASSERT_TRUE(EcrireCombCalc(page.etat(), page.dossier.chemin()));
        EXPECT_NE(lire(page.dossier / "COMBCALC.INI").find(ligne), std::string::npos);
        page.cliquer(6);
        EXPECT_TRUE(page.extremes() == juste);
        EXPECT_NE(page.bornes(6), "NC");
        EXPECT_NE(lire(page.dossier / "COMBCALC.INI").find("\n60 0 "), std::string::npos);
    }
    // The file's state is that of the whole base.
    page.etat().NbTiragesPerime[6] = 50;
    page.intervalle(3, 52);
    EXPECT_EQ(page.bornes(6), "NC");
    page.etat().NbTiragesComb[6] = 40;
    page.cliquer(6);
    EXPECT_NE(page.bornes(6), "NC");
    page.atelier.series = true;
    EXPECT_EQ(page.bornes(6), "NC");
}

TEST(Moteur, ListeCoupeeASaCapacite) {
    Page page(BaseMoyenne(1, 5));
    const Liste& liste = page.atelier.ListeExtremes;
    for (int fois = 0; fois < 2; ++fois) {  // a full file tells no number: counted again
        EXPECT_TRUE(page.cliquer(10).debordement);
        EXPECT_EQ(liste.nombre(), CapaciteListe);
        EXPECT_EQ(liste.nombreTotal(), 1086008U);  // 5 free numbers of 44
        EXPECT_FALSE(liste.partielle);
    }
    EXPECT_FALSE(page.cliquer(5).debordement);
    EXPECT_TRUE(liste.entiere());
}

TEST(Moteur, ArretLaisseFichiersEtBornes) {
    Page page(BaseIntegree(false));
    for (const int taille : {2, 10}) page.cliquer(taille);
    const auto fichiers = Contenu(page.dossier);
    const auto juste = page.extremes();
    std::mt19937 hasard(32);
    for (int essai = 0; essai < 12; ++essai) {
        const int taille = essai % 2 == 0 ? 10 : 2;
        const auto n = static_cast<std::size_t>(taille);
        const auto bornes = page.etat();
        page.etat().NbTiragesComb[n] = 3000;
        auto reponse = page.moteur.Cliquer(taille);
        ASSERT_EQ(reponse.genre, Genre::Lance);
        EXPECT_EQ(page.etat().NbTiragesComb[n], 3214);
        reponse.travail->demarrer();
        std::this_thread::sleep_for(std::chrono::microseconds(hasard() % 20000));
        EXPECT_TRUE(page.mener(reponse, true).arrete);
        EXPECT_EQ(page.etat().NbTiragesComb[n], 3000);
        EXPECT_EQ(page.etat().BorneInf, bornes.BorneInf);
        EXPECT_EQ(page.etat().BorneSup, bornes.BorneSup);
        EXPECT_EQ(Contenu(page.dossier), fichiers);
        EXPECT_TRUE(page.atelier.ListeExtremes.partielle);
    }
    page.cliquer(10);
    EXPECT_TRUE(page.extremes() == juste);
}

// The machine may have no thread left: the click is taken back.
TEST(Moteur, TravailJamaisDemarre) {
    Page page(BaseMoyenne());
    page.cliquer(2);
    page.intervalle(1, 200);
    page.etat().NbTiragesComb[3] = 100;
    const auto etat = page.etat();
    const auto fichiers = Contenu(page.dossier);
    const auto extremes = page.extremes();
    page.atelier.ListeMemoire = page.atelier.ListeExtremes;
    for (const auto& [mode, taille] :
         {std::pair{ModeListe::Extremes, 3}, {ModeListe::Extremes, 2}, {ModeListe::Bornes, 3}}) {
        page.atelier.modeListe = mode;
        if (taille == 2) page.etat().NbTiragesComb[2] = 250;  // to be brought forward
        auto reponse = page.moteur.Cliquer(taille, 0, 9);
        ASSERT_EQ(reponse.genre, Genre::Lance);
        page.moteur.TraitementTermine(*reponse.travail);
        page.etat().NbTiragesComb[2] = etat.NbTiragesComb[2];
        EXPECT_EQ(page.etat().NbTiragesComb, etat.NbTiragesComb);
        EXPECT_TRUE(page.extremes() == extremes);
        EXPECT_TRUE(Page::Lignes(page.atelier.ListeMemoire) == extremes);
        EXPECT_EQ(Contenu(page.dossier), fichiers);
    }
}

// As at the closing of the window: the job goes first, its end is never told.
TEST(Moteur, TravailAbandonneEnRoute) {
    Page page(BaseIntegree(false));
    auto moteur = std::make_unique<Moteur>(page.atelier);
    page.atelier.modeListe = ModeListe::Bornes;
    auto reponse = moteur->Cliquer(5, 0, 99);
    ASSERT_EQ(reponse.genre, Genre::Lance);
    reponse.travail->demarrer();
    moteur.reset();
    reponse.travail.reset();
    EXPECT_TRUE(page.atelier.ListeMemoire.vide());
}

/// The stored extremes of the first `coupe` draws brought forward give what a run over all gives.
/// Nothing when that took a count over all draws, else whether lines bear the mark.
std::optional<bool> Avancer(const Base& base, int taille, int coupe, const char* abime = nullptr) {
    SCOPED_TRACE(testing::Message() << taille << " from " << coupe << " to " << base.NbTirages);
    Page page(base);
    page.cliquer(taille);
    const auto attendues = page.extremes();
    const auto bornes = page.etat();
    const std::string nom = "comb" + std::to_string(taille) + ".dat";
    Base courte = base;
    courte.NbTirages = coupe;
    Page avant(courte, &page.dossier);
    avant.etat() = {};
    avant.cliquer(taille);
    page.etat() = avant.etat();
    if (abime != nullptr) poser(page.dossier.chemin() / nom, abime);
    auto lues = LireListe(page.dossier.chemin() / nom, taille);
    const auto anciennes = lues ? *lues : std::vector<Combinaison>{};

    page.intervalle(1, 5);  // shorter than what is stored
    auto reponse = page.moteur.Cliquer(taille);
    EXPECT_EQ(reponse.genre, Genre::Lance) << reponse.message;
    EXPECT_EQ(reponse.travail->progres.total(), base.NbTirages - coupe);
    EXPECT_TRUE(page.extremes() == anciennes);
    const auto fin = page.mener(reponse);
    EXPECT_EQ(fin.message, "");

    const auto n = static_cast<std::size_t>(taille);
    EXPECT_EQ(page.etat().BorneInf[n], bornes.BorneInf[n]);
    EXPECT_EQ(page.etat().BorneSup[n], bornes.BorneSup[n]);
    EXPECT_EQ(page.etat().NbTiragesComb[n], base.NbTirages);
    EXPECT_EQ(page.atelier.ListeExtremes.FinListe, base.NbTirages);
    auto lignes = page.extremes();
    EXPECT_TRUE(*LireListe(page.dossier.chemin() / nom, taille) == lignes);
    const bool marquees = std::ranges::any_of(lignes, &Combinaison::marque);
    for (Combinaison& l : lignes) {
        // A mark is on what the new draws brought or raised, and on nothing else.
        const bool ancienne =
            std::ranges::find(anciennes, Combinaison{l.numeros, l.NbFois}) != anciennes.end();
        if (abime == nullptr && fin.secondes) {
            EXPECT_EQ(l.marque, !ancienne);
        }
        l.marque = false;
    }
    EXPECT_TRUE(lignes == attendues);
    if (fin.secondes) {
        EXPECT_EQ(reponse.travail->progres.fait(), base.NbTirages - coupe);
    }
    return fin.secondes ? std::optional(marquees) : std::nullopt;
}

TEST(Moteur, AvancerVautUnCalculEntier) {
    std::mt19937 hasard(33);
    const Base dense = BaseAleatoire(hasard, 330, 8);
    const Base pleine = BaseAleatoire(hasard, 330, 49);
    for (const Base* base : {&dense, &pleine})
        for (int taille = 2; taille <= 6; ++taille)
            for (const int coupe : {6, 240, 255, 310})
                if (taille == 2 || coupe == 240 || base == &dense) Avancer(*base, taille, coupe);
    // The minimum begins to be tracked with a draw that brings no line.
    for (int essai = 0; essai < 5; ++essai) Avancer(BaseAleatoire(hasard, 251, 8), 2, 250);
    // Draw by draw where that can tell, and counted anew only where it cannot.
    const Base globale = BaseIntegree(true);
    EXPECT_NE(Avancer(globale, 4, 8000), std::nullopt);
    EXPECT_NE(Avancer(globale, 3, 8050), std::nullopt);
    Avancer(globale, 2, 8000);
    EXPECT_EQ(Avancer(pleine, 6, 310), std::nullopt);
    // A list that does not agree with its bounds is not built on.
    for (const char* abime : {"", "bonjour", "01 02  (05)\n", "01 02  (999)\n"})
        EXPECT_EQ(Avancer(pleine, 2, 300, abime), std::nullopt);
}

TEST(Moteur, AvancerSArreteEtMontre) {
    Page page(BaseMoyenne());
    page.cliquer(2);
    const auto toutes = page.extremes();
    const auto fichiers = Contenu(page.dossier);
    page.intervalle(1, 5);
    // Nothing new: shown at once, without the marks.
    poser(page.dossier / "comb2.dat", "07 23  (112) N\n");
    EXPECT_EQ(page.genre(2), Genre::Affiche);
    EXPECT_EQ(page.extremes().front(), (Combinaison{{7, 23}, 112}));
    std::filesystem::remove(page.dossier / "comb2.dat");
    page.cliquer(2);
    EXPECT_TRUE(page.extremes() == toutes);
    EXPECT_EQ(Contenu(page.dossier), fichiers);
    page.etat().NbTiragesComb[2] = 6;
    auto reponse = page.moteur.Cliquer(2);
    ASSERT_EQ(reponse.genre, Genre::Lance);
    reponse.travail->arreter();
    EXPECT_TRUE(page.mener(reponse).arrete);
    EXPECT_EQ(page.etat().NbTiragesComb[2], 6);
    EXPECT_TRUE(page.extremes() == toutes);
    EXPECT_EQ(Contenu(page.dossier), fichiers);
}

TEST(Moteur, BornesRemplissentLaListeEnMemoire) {
    Page page(BaseIntegree(false));
    page.atelier.modeListe = ModeListe::Bornes;
    page.intervalle(11, 3210);
    page.atelier.ListeMemoire = ListeDeCombinaisons(2, std::vector<Combinaison>{{{7, 23}, 112}});
    auto reponse = page.moteur.Cliquer(3, 9, 99);
    EXPECT_TRUE(page.atelier.ListeMemoire.vide());
    EXPECT_EQ(page.mener(reponse).message, "");
    EXPECT_EQ(reponse.travail->progres.total(), 48);
    EXPECT_GT(reponse.travail->progres.fait(), 0);
    const Liste& liste = page.atelier.ListeMemoire;
    const Liste avant = liste;
    EXPECT_GT(avant.nombre(), 0U);
    EXPECT_EQ(std::pair(avant.DebutListe, avant.FinListe), std::pair(11, 3210));
    EXPECT_TRUE(avant.entiere());
    EXPECT_TRUE(Contenu(page.dossier).empty());
    EXPECT_EQ(Position(avant, avant.numeros(avant.nombre() - 1)), avant.nombre() - 1);

    EXPECT_EQ(
        page.cliquer(3, 5, 4).message,
        "Les bornes sont croisées : la borne Inf (5) dépasse la borne Sup (4). Corrigez l'une "
        "des deux.");
    page.moteur.octetsMax = 1000;
    EXPECT_TRUE(page.cliquer(4, 0, 99).message.starts_with("La liste compterait"));
    EXPECT_EQ(liste.arene.mots, avant.arene.mots);
    EXPECT_EQ(liste.taille(), 3);
    // One that outgrows what was expected of it (1 919 137) keeps nothing.
    page.moteur.octetsMax = 1'900'000ULL * 13 * sizeof(Mot);
    EXPECT_TRUE(page.cliquer(8, 2, 9).message.starts_with("La liste compterait plus de"));
    EXPECT_TRUE(liste.vide());
    page.moteur.octetsMax = 0;

    page.atelier.modeStockage = ModeStockage::RangsDeGain;
    page.atelier.configuration.reglages.GainsNominaux[0] = 0;
    EXPECT_EQ(page.cliquer(5, 2, 99).message, "");
    EXPECT_EQ(liste.arene.disposition.blocs(), 3);
    EXPECT_EQ(liste.nbFois(0), 2);

    page.atelier.modeStockage = ModeStockage::TousLesRangs;
    reponse = page.moteur.Cliquer(5, 0, 99);
    EXPECT_EQ(reponse.travail->description,
              (DescriptionTravail{GenreTravail::Bornes, 5, QuelleListe::Memoire}));
    EXPECT_TRUE(page.mener(reponse, true).arrete);
    EXPECT_EQ(liste.mode(), ModeStockage::TousLesRangs);
    EXPECT_LT(liste.nombre(), 1906884U);
    EXPECT_TRUE(liste.partielle);

    page.atelier.grilleSelection[2] = page.atelier.grilleSelection[12] = Priorite::Absolue;
    ASSERT_TRUE(page.atelier.recalculer());
    page.atelier.modeListe = ModeListe::Bornes;
    EXPECT_EQ(page.moteur.Cliquer(2, 51, 51).genre, Genre::Affiche);
    EXPECT_TRUE(Page::Lignes(liste) == (std::vector<Combinaison>{{{3, 13}, 51}}));
    EXPECT_EQ(std::pair(liste.DebutListe, liste.FinListe), std::pair(1, 3214));
    EXPECT_EQ(page.moteur.Cliquer(2, 0, 50).genre, Genre::Affiche);
    EXPECT_TRUE(liste.vide());
    EXPECT_EQ(liste.taille(), 2);
    page.atelier.modeListe = ModeListe::Manipulation;
    EXPECT_EQ(page.moteur.Cliquer(2, 0, 50).genre, Genre::Refuse);
}

}  // namespace
}  // namespace norvane
