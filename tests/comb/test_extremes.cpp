// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "base/BaseIntegree.h"
#include "comb/Reduction.h"
#include "OracleComb.h"

namespace norvane {
namespace {

struct Resultat2 {
    Extremes extremes;
    Collecte brut;
    std::vector<Combinaison> lignes;
};

Resultat2 Chercher(const Etabli& e, int taille, bool series = false) {
    Resultat2 r;
    const auto fil =
        CreerRechercheExtremes(e.contexte(ModeStockage::PremierRang, series), r.brut, taille);
    Mener(fil);
    EXPECT_EQ(fil->erreur(), "");
    r.extremes = fil->resultat();
    EXPECT_TRUE(r.extremes.complet);
    Collecte copie = r.brut;
    r.lignes = ReduireExtremes(copie, taille, r.extremes);
    return r;
}

/// What the definition asks for: the largest count, the smallest where `minimum`, and the lines.
struct Attendu {
    int inf = 0, sup = 0;
    std::vector<Combinaison> lignes;
};
template <typename Comptes>  // (numbers, count), in order
Attendu Attendre(const Comptes& comptes, bool minimum) {
    Attendu a;
    if (minimum) a.inf = comptes.begin()->second;
    for (const auto& [c, n] : comptes) {
        a.sup = std::max(a.sup, n);
        if (minimum) a.inf = std::min(a.inf, n);
    }
    for (const auto& [c, n] : comptes)
        if (n == a.sup || (minimum && n == a.inf)) a.lignes.push_back({Ensemble::de(c), n});
    return a;
}

std::vector<std::pair<NumerosChoisis, int>> Comptes(const Etabli& e,
                                                    const std::set<NumerosChoisis>& choix) {
    std::vector<std::pair<NumerosChoisis, int>> comptes;
    for (const auto& c : choix)
        comptes.emplace_back(c,
                             CompterSorties(e.base, c, e.occ.IntervalleInf, e.occ.IntervalleSup));
    return comptes;
}

void Comparer(const Resultat2& r, const Attendu& a) {
    EXPECT_EQ(r.extremes.BorneInf, a.inf);
    EXPECT_EQ(r.extremes.BorneSup, a.sup);
    EXPECT_EQ(r.extremes.nombre, a.lignes.size());
    EXPECT_TRUE(r.lignes == a.lignes);
}

TEST(Extremes, SeriesDeTouteTaille) {
    std::mt19937 hasard(12);
    Etabli e(BaseAleatoire(hasard, 300, 12));
    for (const int sup : {250, 251, 300})
        for (int taille = 2; taille <= 10; ++taille) {
            SCOPED_TRACE(testing::Message() << taille << ": 1.." << sup);
            e.intervalle(1, sup);
            const bool minimum = taille == 2 && sup > 250;
            Comparer(Chercher(e, taille, true), Attendre(Comptes(e, Series(taille)), minimum));
        }
}

TEST(Extremes, BorneLaisseeParUneAutreBase) {
    std::mt19937 hasard(14);
    for (const int n : {200, 300}) {
        Etabli e(BaseAleatoire(hasard, n, 30));
        for (int taille = 2; taille <= 5; ++taille)
            for (const bool series : {false, true}) {
                e.etat = {};
                const auto juste = Chercher(e, taille, series);
                for (const int borne :
                     {juste.extremes.BorneSup, juste.extremes.BorneSup + 1, 5000}) {
                    e.etat.BorneSup[static_cast<std::size_t>(taille)] = borne;
                    const auto r = Chercher(e, taille, series);
                    EXPECT_TRUE(r.lignes == juste.lignes);
                    EXPECT_EQ(r.extremes.BorneInf, juste.extremes.BorneInf);
                    EXPECT_EQ(r.extremes.BorneSup, juste.extremes.BorneSup);
                }
            }
    }
}

/// Sorted lines at the extremes, from the table of all combinations that came out.
Attendu ParTable(const Base& base, int taille, int inf, int sup, bool minimum) {
    auto comptes = TableDesComptes(base, taille, inf, sup);
    if (minimum)
        for (const auto& c : Choix({}, TousLesNumeros(), taille)) comptes.try_emplace(c, 0);
    return Attendre(comptes, minimum);
}

TEST(Extremes, BasesEntieresContreUneTable) {
    std::mt19937 hasard(15);
    Etabli globale(BaseIntegree(true)), longue(BaseAleatoire(hasard, 10001, 49));
    const auto comparer = [](Etabli& e, int taille, int inf, int sup) {
        SCOPED_TRACE(testing::Message() << taille << " over " << inf << ".." << sup);
        const int n = sup - inf + 1;
        e.intervalle(inf, sup);
        const auto r = Chercher(e, taille);
        Comparer(
            r, ParTable(e.base, taille, inf, sup, taille == 2 ? n > 250 : taille == 3 && n > 3000));
        EXPECT_EQ(r.brut.mots.empty(), n <= SeuilExtremes(taille));
    };
    const std::tuple<int, int, int> cas[] = {
        {2, 1, 8072}, {2, 1, 250}, {2, 100, 350}, {2, 4859, 5109}, {3, 1, 3000}, {3, 1, 3001},
        {3, 1, 8072}, {3, 7, 7},   {4, 1, 8072},  {4, 100, 150},   {5, 1, 8072}, {5, 300, 2000}};
    for (const auto& [taille, inf, sup] : cas) comparer(globale, taille, inf, sup);
    for (const int sup : {10000, 10001}) comparer(longue, 4, 1, sup);
    EXPECT_EQ(SeuilExtremes(4), 10000);
}

TEST(Reduction, LignesDUnNouveauTirage) {
    using Lignes = std::vector<Combinaison>;
    Lignes lignes = {{{7, 23}, 99},      {{1, 2}, 12}, {{7, 23}, 100, true},
                     {{5, 6}, 99, true}, {{5, 6}, 99}, {{1, 49}, 20}};
    int min = 5, max = 3;
    NettoyerDoublons(lignes, min, max);
    EXPECT_TRUE(lignes ==
                (Lignes{{{1, 2}, 12}, {{1, 49}, 20}, {{5, 6}, 99, true}, {{7, 23}, 100, true}}));
    EXPECT_EQ(std::pair(min, max), std::pair(12, 100));
    min = 0;
    NettoyerDoublons(lignes, min, max);
    EXPECT_EQ(min, 0);
    GarderMarques(lignes);
    EffacerMarques(lignes);
    EXPECT_TRUE(lignes == (Lignes{{{5, 6}, 99}, {{7, 23}, 100}}));
}

TEST(Fils, SuspenduArreteEtEnPanne) {
    struct Lent : TCombThread {
        explicit Lent(Puits& p) : TCombThread(p, {}) {}
        void Execute() override {
            while (!Terminated()) std::this_thread::yield();
            if (jeter) throw std::runtime_error("panne");
        }
        bool jeter = false;
    };
    PuitsMuet muet;
    for (const bool jeter : {false, true}) {
        PtrFil<Lent> fil(new Lent(muet));
        std::atomic<int> fins = 0;
        fil->jeter = jeter;
        fil->surFin = [&] { ++fins; };
        fil->WaitFor();
        EXPECT_FALSE(fins > 0 || fil->aTourne());
        fil->Resume();
        fil->Resume();
        fil->Terminate();
        fil->WaitFor();
        EXPECT_EQ(fins, 1);
        EXPECT_TRUE(fil->aTourne());
        EXPECT_EQ(fil->erreur(),
                  jeter ? "Le calcul s'est arrêté sur une erreur interne : panne." : "");
    }
    PtrFil<Lent> jete(new Lent(muet));
    jete->Resume();  // stopped and waited for by its pointer
}

}  // namespace
}  // namespace norvane
