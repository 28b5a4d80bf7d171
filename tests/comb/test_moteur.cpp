// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <condition_variable>

#include "base/BaseIntegree.h"
#include "comb/Moteur.h"
#include "comb/Reduction.h"
#include "Dossier.h"
#include "OracleComb.h"

namespace norvane {
namespace {

using Genre = ReponseClic::Genre;

/// A page without a window: the engine in a folder of its own.
struct Page {
    explicit Page(Base b) : etabli(std::move(b)) {
        moteur.threads = 2;
        moteur.surFin = [this] {
            const std::lock_guard garde(verrou);
            finis = true;
            change.notify_all();
        };
    }
    FinTraitement attendre() {
        std::unique_lock garde(verrou);
        change.wait(garde, [this] { return finis; });
        finis = false;
        garde.unlock();
        return moteur.TraitementTermine();
    }
    /// A click to its end.
    FinTraitement cliquer(int taille, int inf = 0, int sup = 0) {
        const auto reponse = moteur.Cliquer(taille, inf, sup);
        if (reponse.genre == Genre::Lance) return attendre();
        FinTraitement fin;
        fin.message = reponse.message;
        return fin;
    }
    EtatCombinaisons& etat() { return etabli.etat; }

    Dossier dossier;
    Etabli etabli;
    int traitements = 0;
    bool disponible = true;
    Moteur moteur{etabli.base, etabli.occ, etabli.etat, dossier.chemin(), traitements, disponible};
    std::mutex verrou;
    std::condition_variable change;
    bool finis = false;
};

Base BaseMoyenne(int n = 300, int numeros = 30) {
    std::mt19937 hasard(31);
    return BaseAleatoire(hasard, n, numeros);
}

TEST(Moteur, RunStoreAndLoad) {
    Page page(BaseMoyenne());
    EXPECT_EQ(page.moteur.AfficherBornes(2).texteInf, "NC");
    const auto reponse = page.moteur.Cliquer(2);
    EXPECT_EQ(reponse.genre, Genre::Lance);
    EXPECT_EQ(reponse.jauge, 48);
    EXPECT_EQ(page.moteur.enCours(), 2);
    EXPECT_EQ(page.moteur.Cliquer(3).message, "Attendez la fin du traitement en cours...");
    const auto fin = page.attendre();
    EXPECT_EQ(fin.message, "");
    EXPECT_TRUE(fin.temps.starts_with("Temps de calcul : "));
    EXPECT_EQ(page.traitements, 0);

    const auto& n = page.etat();
    EXPECT_EQ(lire(page.dossier / "COMBCALC.INI").substr(0, 4), "300 ");
    EXPECT_EQ(n.NbTiragesComb[2], 300);
    EXPECT_EQ(*LireListe(page.dossier / "comb2.dat", 2), page.moteur.lignes);
    const auto bornes = page.moteur.RafraichirBornes();
    EXPECT_EQ(bornes[0].texteInf, std::to_string(n.BorneInf[2]));
    EXPECT_EQ(bornes[0].indiceSup, "Borne Sup calculée pour 300 tirages");
    EXPECT_EQ(bornes[1].indiceInf, "Borne Inf en attente de calcul");

    // The stored list is loaded, not counted again; without the file it is empty.
    poser(page.dossier / "comb2.dat", "07 23  (112)\n");
    EXPECT_EQ(page.moteur.Cliquer(2).genre, Genre::Affiche);
    EXPECT_EQ(page.moteur.lignes, std::vector<std::string>{"07 23  (112)"});
    poser(page.dossier / "comb2.dat", "07 23  (112)\nbonjour\n");
    const auto refus = page.moteur.Cliquer(2);
    EXPECT_EQ(refus.genre, Genre::Refuse);
    EXPECT_TRUE(refus.message.starts_with("Ligne 2 du fichier")) << refus.message;
    EXPECT_EQ(page.moteur.lignes.size(), 1U);
    std::filesystem::remove(page.dossier / "comb2.dat");
    EXPECT_EQ(page.moteur.Cliquer(2).genre, Genre::Affiche);
    EXPECT_TRUE(page.moteur.lignes.empty());
    page.disponible = false;
    EXPECT_EQ(page.moteur.Cliquer(2).genre, Genre::Refuse);
}

TEST(Moteur, WhichFilesARunWrites) {
    Page page(BaseMoyenne());
    page.cliquer(3);
    const auto avant = Contenu(page.dossier);
    const auto sont = [&](std::initializer_list<const char*> nouveaux) {
        auto fichiers = Contenu(page.dossier);
        for (const char* nom : nouveaux) EXPECT_EQ(fichiers.erase(nom), 1U) << nom;
        EXPECT_EQ(fichiers, avant);
    };
    sont({});
    page.etabli.intervalle(20, 90);
    page.etat().NbTiragesComb[3] = -10;
    page.cliquer(3);
    sont({"cmbtmp3.dat"});
    EXPECT_EQ(page.etat().NbTiragesComb[3], 71);
    page.moteur.series = true;
    page.etat().NbTiragesComb[3] = -10;
    page.cliquer(3);
    sont({"cmbtmp3.dat", "succ3.dat"});
    page.etabli.intervalle(1, 300);
    page.etat().NbTiragesComb[3] = -10;
    page.cliquer(3);
    sont({"cmbtmp3.dat", "succ3.dat"});
    EXPECT_EQ(page.moteur.Cliquer(3).genre, Genre::Affiche);
    EXPECT_EQ(*LireListe(page.dossier / "succ3.dat", 3), page.moteur.lignes);

    std::filesystem::remove_all(page.dossier.chemin());
    page.etat().NbTiragesComb[3] = -10;
    const auto fin = page.cliquer(3);
    EXPECT_NE(fin.message, "");
    EXPECT_EQ(page.etat().NbTiragesComb[3], -10);
}

TEST(Moteur, StateOfAnotherBase) {
    Page page(BaseMoyenne());
    page.etat().NbTiragesComb[2] = 400;
    page.etat().BorneSup[2] = 90;
    page.moteur.lignes = {"07 23  (112)"};
    const auto refus = page.moteur.Cliquer(2);
    EXPECT_EQ(
        refus.message,
        "Les bornes enregistrées pour 2 numéros portent sur 400 tirages et la base n'en compte "
        "que 300 : elles sont oubliées, cliquez à nouveau pour les recalculer.");
    EXPECT_EQ(page.moteur.lignes.size(), 1U);
    page.cliquer(2);
    EXPECT_EQ(page.etat().NbTiragesComb[2], 300);
    EXPECT_LT(page.etat().BorneSup[2], 90);
}

TEST(Moteur, LargeSizesLoadOnlyWhatIsTheirs) {
    Page page(BaseMoyenne(60, 20));
    page.cliquer(6);
    const auto juste = page.moteur.lignes;
    EXPECT_EQ(page.moteur.Cliquer(6).genre, Genre::Affiche);
    EXPECT_EQ(page.moteur.lignes, juste);

    // Never computed, made on other draws, without its file: counted, and known as such till then.
    const std::string etats[] = {"0 0 0\n", "50 0 3\n", "60 0 3\n"};
    for (const auto& ligne : etats) {
        poser(page.dossier / "COMBCALC.INI", "1 0 0\n1 0 0\n1 0 0\n1 0 0\n" + ligne);
        if (ligne.starts_with("60"))
            std::filesystem::remove(page.dossier / "comb6.dat");
        else
            poser(page.dossier / "comb6.dat", "01 02 03 04 05 06  (03)\n");
        ASSERT_TRUE(page.moteur.RelireEtat());
        EXPECT_EQ(page.etat().NbTiragesComb[6], 60);
        EXPECT_EQ(page.moteur.AfficherBornes(6).texteSup, ligne.starts_with("0") ? "NC" : "3");
        ASSERT_TRUE(EcrireCombCalc(page.etat(), page.dossier.chemin()));
        EXPECT_NE(lire(page.dossier / "COMBCALC.INI").find(ligne), std::string::npos);
        page.cliquer(6);
        EXPECT_EQ(page.moteur.lignes, juste);
        EXPECT_NE(lire(page.dossier / "COMBCALC.INI").find("\n60 0 "), std::string::npos);
    }
}

TEST(Moteur, ListCutAtItsCapacity) {
    Page page(BaseMoyenne(1, 5));
    const auto fin = page.cliquer(10);
    EXPECT_TRUE(fin.debordement);
    EXPECT_EQ(page.moteur.lignes.size(), CapaciteListe);
    EXPECT_EQ(page.moteur.nombreLignes, 1086008U);  // 5 free numbers of 44
    page.cliquer(10);
    EXPECT_EQ(page.moteur.nombreLignes, 1086008U);
}

TEST(Moteur, StopLeavesFilesAndBounds) {
    Page page(BaseIntegree(false));
    for (const int taille : {2, 10}) page.cliquer(taille);
    const auto fichiers = Contenu(page.dossier);
    const auto juste = page.moteur.lignes;
    std::mt19937 hasard(32);
    for (int essai = 0; essai < 12; ++essai) {
        const int taille = essai % 2 == 0 ? 10 : 2;
        const auto n = static_cast<std::size_t>(taille);
        const int sup = page.etat().BorneSup[n];
        page.etat().NbTiragesComb[n] = 3000;
        ASSERT_EQ(page.moteur.Cliquer(taille).genre, Genre::Lance);
        std::this_thread::sleep_for(std::chrono::microseconds(hasard() % 20000));
        EXPECT_EQ(page.moteur.Cliquer(taille).genre, Genre::Arrete);
        EXPECT_EQ(page.etat().NbTiragesComb[n], 3000);
        const auto fin = page.attendre();
        EXPECT_TRUE(fin.arrete);
        EXPECT_EQ(page.etat().NbTiragesComb[n], 3000);
        EXPECT_EQ(page.etat().BorneSup[n], sup);
        EXPECT_EQ(Contenu(page.dossier), fichiers);
    }
    page.cliquer(10);
    EXPECT_EQ(page.moteur.lignes, juste);
}

TEST(Moteur, DestroyedWhileAWorkerRuns) {
    int traitements = 0;
    {
        Page page(BaseIntegree(false));
        page.moteur.Cliquer(10);
        EXPECT_EQ(page.traitements, 1);
        traitements = page.traitements;
    }
    EXPECT_EQ(traitements, 1);
}

/// The stored extremes of the first `coupe` draws brought forward give what a run over all gives.
void Avancer(const Base& base, int taille, int coupe, const char* abime = nullptr) {
    SCOPED_TRACE(testing::Message() << taille << " from " << coupe << " to " << base.NbTirages);
    Page page(base);
    page.cliquer(taille);
    const auto attendues = page.moteur.lignes;
    const auto bornes = page.etat();
    {
        Base courte = base;
        courte.NbTirages = coupe;
        Page avant(courte);
        avant.cliquer(taille);
        page.etat() = avant.etat();
        for (const auto& nom : avant.dossier.noms())
            poser(page.dossier.chemin() / nom, lire(avant.dossier.chemin() / nom));
    }
    if (abime != nullptr)
        poser(page.dossier.chemin() / ("comb" + std::to_string(taille) + ".dat"), abime);
    page.etabli.intervalle(1, 5);  // shorter than what is stored
    const auto reponse = page.moteur.Cliquer(taille);
    ASSERT_EQ(reponse.genre, Genre::Lance) << reponse.message;
    EXPECT_EQ(reponse.jauge, base.NbTirages - coupe);
    EXPECT_EQ(page.attendre().message, "");

    const auto n = static_cast<std::size_t>(taille);
    EXPECT_EQ(page.etat().BorneInf[n], bornes.BorneInf[n]);
    EXPECT_EQ(page.etat().BorneSup[n], bornes.BorneSup[n]);
    EXPECT_EQ(page.etat().NbTiragesComb[n], base.NbTirages);
    const std::string nom = "comb" + std::to_string(taille) + ".dat";
    EXPECT_EQ(*LireListe(page.dossier.chemin() / nom, taille), page.moteur.lignes);
    auto lignes = page.moteur.lignes;
    EffacerMarques(lignes);
    EXPECT_EQ(lignes, attendues);
}

TEST(Moteur, BroughtForwardEqualsAFullRun) {
    std::mt19937 hasard(33);
    const Base dense = BaseAleatoire(hasard, 330, 8);
    const Base pleine = BaseAleatoire(hasard, 330, 49);
    for (const Base* base : {&dense, &pleine})
        for (int taille = 2; taille <= 6; ++taille)
            for (const int coupe : {6, 240, 255, 310})
                if (taille == 2 || coupe == 240 || base == &dense) Avancer(*base, taille, coupe);
    // The minimum begins to be tracked with a draw that brings no line.
    for (int essai = 0; essai < 5; ++essai) Avancer(BaseAleatoire(hasard, 251, 8), 2, 250);
    const Base globale = BaseIntegree(true);
    for (const auto& [taille, coupe] : {std::pair{2, 8000}, {3, 8050}, {4, 8000}})
        Avancer(globale, taille, coupe);
    // A list that does not agree with its bounds is not built on.
    for (const char* abime : {"", "01 02  (05)\n", "01 02  (999)\n"})
        Avancer(pleine, 2, 300, abime);
}

TEST(Moteur, BoundsFillTheListInMemory) {
    Page page(BaseIntegree(false));
    page.moteur.modeListe = ModeListe::Bornes;
    EXPECT_EQ(page.cliquer(3, 9, 99).message, "");
    const Arene avant = page.moteur.ListeMemoire;
    EXPECT_GT(avant.nombre(), 0U);
    EXPECT_EQ(page.moteur.TailleCombListe, 3);
    EXPECT_EQ(page.moteur.FinListe, 3214);
    EXPECT_TRUE(Contenu(page.dossier).empty());
    const std::vector<Mot> derniere(avant[avant.nombre() - 1].begin() + 5,
                                    avant[avant.nombre() - 1].end());
    EXPECT_EQ(ChercherCombinaison(avant, derniere), avant.nombre() - 1);
    EXPECT_EQ(ChercherCombinaison(avant, std::vector<Mot>{1, 2}), std::nullopt);

    EXPECT_EQ(
        page.cliquer(3, 5, 4).message,
        "Les bornes sont croisées : la borne Inf (5) dépasse la borne Sup (4). Corrigez l'une "
        "des deux.");
    page.moteur.octetsMax = 1000;
    EXPECT_TRUE(page.cliquer(4, 0, 99).message.starts_with("La liste compterait"));
    EXPECT_EQ(page.moteur.ListeMemoire.mots, avant.mots);
    EXPECT_EQ(page.moteur.TailleCombListe, 3);
    page.moteur.octetsMax = 0;

    ASSERT_EQ(page.moteur.Cliquer(5, 0, 99).genre, Genre::Lance);
    EXPECT_EQ(page.moteur.Cliquer(5).genre, Genre::Arrete);
    EXPECT_TRUE(page.attendre().arrete);
    EXPECT_EQ(page.moteur.TailleCombListe, 5);
    EXPECT_LT(page.moteur.ListeMemoire.nombre(), 1906884U);

    page.etabli.choisir({3, 13}, {});
    page.moteur.selection = page.etabli.selection;
    EXPECT_EQ(page.moteur.Cliquer(2, 51, 51).genre, Genre::Affiche);
    ASSERT_EQ(page.moteur.ListeMemoire.nombre(), 1U);
    EXPECT_EQ(
        LigneEnregistrement(page.moteur.ListeMemoire[0], page.moteur.ListeMemoire.disposition),
        "03 13  (51)");
    EXPECT_EQ(page.moteur.Cliquer(2, 0, 50).genre, Genre::Affiche);
    EXPECT_EQ(page.moteur.ListeMemoire.nombre(), 0U);
    EXPECT_EQ(page.moteur.TailleCombListe, 2);
}

TEST(Reduction, LinesOfANewDraw) {
    using Lignes = std::vector<std::string>;
    Lignes lignes = {"07 23  (99)", "01 02  (12)", "07 23  (100) N", "05 06  (99) N",
                     "05 06  (99)"};
    int min = 5, max = 3;
    NettoyerDoublons(lignes, min, max);
    EXPECT_EQ(lignes, (Lignes{"01 02  (12)", "05 06  (99) N", "07 23  (100) N"}));
    EXPECT_EQ(std::pair(min, max), std::pair(12, 100));
    min = 0;
    NettoyerDoublons(lignes, min, max);
    EXPECT_EQ(min, 0);
    GarderMarques(lignes);
    EffacerMarques(lignes);
    EXPECT_EQ(lignes, (Lignes{"05 06  (99)", "07 23  (100)"}));
}

}  // namespace
}  // namespace norvane
