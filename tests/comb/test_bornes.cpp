// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "base/BaseIntegree.h"
#include "base/Textes.h"
#include "OracleComb.h"

namespace norvane {
namespace {

constexpr ModeStockage Modes[] = {ModeStockage::PremierRang, ModeStockage::RangsDeGain,
                                  ModeStockage::TousLesRangs};

std::vector<Mot> Chercher(const ContexteComb& c, int taille, int inf, int sup) {
    Collecte collecte;
    const auto fil = CreerRechercheBornes(c, collecte, taille, inf, sup);
    Mener(fil);
    EXPECT_EQ(fil->erreur(), "");
    const auto pas = static_cast<std::size_t>(fil->disposition().mots());
    EXPECT_EQ(collecte.mots.size(), fil->nombre() * pas);
    EXPECT_EQ(collecte.mots.capacity(), collecte.mots.size());

    PuitsMuet muet;
    const auto compte = CreerRechercheBornes(c, muet, taille, inf, sup);
    compte->compterSeulement = true;
    Mener(compte);
    EXPECT_EQ(compte->nombre(), fil->nombre());
    return collecte.mots;
}

std::vector<Mot> Attendre(const Etabli& e, const std::set<Numeros>& choix, ModeStockage mode,
                          int inf, int sup) {
    std::vector<Mot> mots;
    for (const auto& c : choix) {
        const int n = CompterSorties(e.base, c, e.occ.IntervalleInf, e.occ.IntervalleSup);
        if (n < inf || n > sup) continue;
        const auto un = Enregistrer(e.base, c, mode, e.occ.IntervalleInf, e.occ.IntervalleSup);
        mots.insert(mots.end(), un.begin(), un.end());
    }
    return mots;
}

TEST(Bornes, EverySizeModeAndBound) {
    std::mt19937 hasard(21);
    Etabli e(BaseAleatoire(hasard, 60, 13));
    const std::tuple<int, int, int> cas[] = {
        {2, 0, 0},  {2, 0, 99}, {2, 5, 9}, {2, 6, 6}, {2, 50, 99}, {3, 0, 0}, {3, 1, 2},
        {3, 3, 99}, {4, 1, 99}, {4, 2, 2}, {5, 1, 1}, {5, 1, 99},  {5, 2, 99}};
    for (const auto& [de, a] : {std::pair{1, 60}, {13, 44}})
        for (const auto& [taille, inf, sup] : cas)
            for (const ModeStockage mode : Modes) {
                SCOPED_TRACE(testing::Message() << taille << ": " << inf << ".." << sup << " mode "
                                                << static_cast<int>(mode));
                e.intervalle(de, a);
                // What never came out need not be written out where it is not asked for.
                const auto numeros = TousLesNumeros(inf == 0 ? NumeroMax : 13);
                EXPECT_EQ(Chercher(e.contexte(mode), taille, inf, sup),
                          Attendre(e, Choix({}, numeros, taille), mode, inf, sup));
            }
}

TEST(Bornes, SeriesOfEverySize) {
    std::mt19937 hasard(22);
    Etabli e(BaseAleatoire(hasard, 50, 12));
    e.intervalle(4, 47);
    for (int taille = 2; taille <= 10; ++taille)
        for (const auto& [inf, sup] : {std::pair{0, 0}, {0, 99}, {1, 3}})
            for (const ModeStockage mode : Modes)
                EXPECT_EQ(Chercher(e.contexte(mode, true), taille, inf, sup),
                          Attendre(e, Series(taille), mode, inf, sup))
                    << taille;
}

TEST(Bornes, SelectionsAgainstAllChoices) {
    std::mt19937 hasard(23);
    Etabli e(BaseAleatoire(hasard, 80, 14));
    e.intervalle(7, 78);
    struct {
        Numeros absolus, secondaires;
        int taille;
    } const cas[] = {{{5}, {}, 2},
                     {{5}, {1, 9, 13}, 2},
                     {{2, 7, 9, 30}, {}, 2},
                     {{3}, {}, 3},
                     {{3, 11}, {}, 3},
                     {{3, 11}, {2, 8}, 3},
                     {{3}, {1, 2, 4}, 4},
                     {{3, 4}, {5}, 4},
                     {TousLesNumeros(12), {}, 4},
                     {{1, 2, 3, 4}, {}, 5},
                     {{6}, {1, 3, 5, 7, 9}, 5},
                     {{1, 4, 5, 8, 9, 12}, {}, 5},
                     {{1, 2, 3, 4}, {}, 6},
                     {{1, 9}, {2, 3, 4, 5, 40, 49}, 6},
                     {TousLesNumeros(12), {}, 7},
                     {{2, 3, 5, 7, 11, 13, 14}, {}, 9},
                     {{4, 6, 8, 10}, TousLesNumeros(3), 7},
                     {TousLesNumeros(14), {}, 10}};
    for (const auto& c : cas) {
        e.choisir(c.absolus, c.secondaires);
        const int s = static_cast<int>(c.absolus.size());
        const auto& pris = s > c.taille            ? c.absolus
                           : c.secondaires.empty() ? e.selection.Complement
                                                   : c.secondaires;
        Numeros reserve = pris;
        std::erase_if(reserve, [&](int n) {
            return s < c.taille && std::count(c.absolus.begin(), c.absolus.end(), n) > 0;
        });
        const auto choix =
            s > c.taille ? Choix({}, reserve, c.taille) : Choix(c.absolus, reserve, c.taille - s);
        for (const auto& [inf, sup] : {std::pair{0, 0}, {0, 99}, {1, 2}, {2, 99}}) {
            SCOPED_TRACE(testing::Message()
                         << s << " of " << c.taille << ": " << inf << ".." << sup);
            EXPECT_EQ(Chercher(e.contexte(ModeStockage::TousLesRangs), c.taille, inf, sup),
                      Attendre(e, choix, ModeStockage::TousLesRangs, inf, sup));
        }
    }
}

TEST(Bornes, OneCombinationHasItsCountAlone) {
    std::mt19937 hasard(24);
    Etabli e(BaseAleatoire(hasard, 40, 10));
    for (const auto& c : {Numeros{2, 5}, {1, 2, 3, 4, 5, 6, 7}}) {
        e.choisir(c, {});
        const int taille = static_cast<int>(c.size());
        const int n = CompterSorties(e.base, c, 1, 40);
        PuitsMuet muet;
        EXPECT_EQ(CreerRechercheBornes(e.contexte(), muet, taille, 0, 9), nullptr);
        auto attendu = Enregistrer(e.base, c, ModeStockage::RangsDeGain, 1, 40);
        const Arene liste = CombinaisonUnique(e.contexte(ModeStockage::RangsDeGain), n, n);
        ASSERT_EQ(liste.nombre(), 1U);
        const auto bloc = attendu.begin() + liste.disposition.premierRang();
        std::fill(bloc + 1, bloc + 5, Mot{0});
        EXPECT_EQ(liste.mots, attendu);
        EXPECT_EQ(CombinaisonUnique(e.contexte(), n + 1, 99).nombre(), 0U);
    }
}

TEST(Bornes, FullBaseAgainstATableWhateverTheThreads) {
    const Etabli e(BaseIntegree(false));
    for (const auto& [taille, inf] : {std::pair{3, 0}, {4, 0}, {5, 1}}) {
        ContexteComb c = e.contexte();
        c.threads = 1;
        const auto mots = Chercher(c, taille, inf, 9999);
        for (const unsigned threads : {2U, 5U}) {
            c.threads = threads;
            EXPECT_TRUE(Chercher(c, taille, inf, 9999) == mots);
        }
        const auto table = TableDesComptes(e.base, taille, 1, e.base.NbTirages);
        const auto pas = static_cast<std::size_t>(taille) + 5;
        std::uint64_t precedente = 0;
        std::size_t sorties = 0, faux = 0;
        for (std::size_t i = 0; i < mots.size(); i += pas) {
            std::uint64_t cle = 0;
            for (std::size_t k = 5; k < pas; ++k) cle = cle * 64 + mots[i + k];
            const auto it = table.find(cle);
            faux += cle <= precedente || mots[i] != (it == table.end() ? 0 : it->second);
            sorties += it != table.end();
            precedente = cle;
        }
        EXPECT_EQ(faux, 0U);
        EXPECT_EQ(sorties, table.size());
    }
}

TEST(Bornes, ListThatDoesNotFitIsRefusedBeforeItStarts) {
    const Etabli e(BaseIntegree(false));
    ContexteComb c = e.contexte(ModeStockage::TousLesRangs);
    const std::uint64_t octets = 18424ULL * (6 * 3 + 5) * 2;
    for (const std::uint64_t max : {octets, octets - 1}) {
        c.octetsMax = max;
        Collecte collecte;
        const auto fil = CreerRechercheBornes(c, collecte, 3, 0, 9999);
        Mener(fil);
        EXPECT_EQ(fil->nombre(), max == octets ? 18424U : 0U);
        EXPECT_EQ(collecte.mots.size() * 2, fil->nombre() * 46);
        if (max == octets) continue;
        EXPECT_EQ(collecte.mots.capacity(), 0U);
        EXPECT_TRUE(fil->erreur().starts_with("La liste compterait " + FormaterCompte(18424) +
                                              " combinaisons, soit 1 Mo"))
            << fil->erreur();
    }
    c.octetsMax = 46 * 100;
    Collecte premiers, tous;
    const auto fil = CreerRechercheBornes(c, premiers, 3, 1, 9999);
    fil->limite = 100;
    Mener(fil);
    EXPECT_EQ(fil->nombre(), 100U);
    c.octetsMax = 0;
    const auto entier = CreerRechercheBornes(c, tous, 3, 1, 9999);
    Mener(entier);
    EXPECT_TRUE(std::equal(premiers.mots.begin(), premiers.mots.end(), tous.mots.begin()));
}

TEST(Bornes, StoppedLeavesALeadingPart) {
    const Etabli e(BaseIntegree(false));
    Collecte tout;
    Mener(CreerRechercheBornes(e.contexte(), tout, 4, 0, 9999));
    std::mt19937 hasard(25);
    for (int essai = 0; essai < 8; ++essai) {
        struct : Collecte {
            void AddRecord(std::span<const Mot> nouveaux) override {
                Collecte::AddRecord(nouveaux);
                if (--avantArret == 0) fil->Terminate();
            }
            TCombThread* fil = nullptr;
            int avantArret = 0;
        } part;
        part.avantArret = 1 + static_cast<int>(hasard() % 60);
        const auto fil = CreerRechercheBornes(e.contexte(), part, 4, 0, 9999);
        part.fil = fil.get();
        Mener(fil);
        EXPECT_EQ(fil->erreur(), "");
        EXPECT_EQ(part.mots.size() % 9, 0U);
        ASSERT_LE(part.mots.size(), tout.mots.size());
        EXPECT_TRUE(std::equal(part.mots.begin(), part.mots.end(), tout.mots.begin()));
    }
}

TEST(Bornes, SinkThatFails) {
    const Etabli e(BaseIntegree(false));
    struct : PuitsMuet {
        void AddRecord(std::span<const Mot>) override { throw std::bad_alloc(); }
    } plein;
    const auto fil = CreerRechercheBornes(e.contexte(), plein, 4, 0, 9999);
    Mener(fil);
    EXPECT_TRUE(fil->erreur().starts_with("La mémoire manque")) << fil->erreur();
}

}  // namespace
}  // namespace norvane
