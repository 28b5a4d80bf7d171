// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <iterator>

#include "base/BaseIntegree.h"
#include "base/Textes.h"
#include "OracleComb.h"
#include "Residus.h"

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
    if (taille <= NbBoules) {
        EXPECT_EQ(collecte.mots.capacity(), collecte.mots.size());
    }
    EXPECT_TRUE(fil->complet());

    PuitsMuet muet;
    const auto compte = CreerRechercheBornes(c, muet, taille, inf, sup);
    compte->compterSeulement = true;
    Mener(compte);
    EXPECT_EQ(compte->nombre(), fil->nombre());
    return collecte.mots;
}

std::vector<Mot> Attendre(const Etabli& e, const std::set<NumerosChoisis>& choix, ModeStockage mode,
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

TEST(Bornes, TouteTailleModeEtBorne) {
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

TEST(Bornes, SeriesDeTouteTaille) {
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

TEST(Bornes, SelectionsContreTousLesChoix) {
    std::mt19937 hasard(23);
    Etabli e(BaseAleatoire(hasard, 80, 14));
    e.intervalle(7, 78);
    struct {
        NumerosChoisis absolus, secondaires;
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
        NumerosChoisis reserve = pris;
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

TEST(Bornes, UneCombinaisonSeuleASonCompte) {
    std::mt19937 hasard(24);
    Etabli e(BaseAleatoire(hasard, 40, 10));
    for (const auto& c : {NumerosChoisis{2, 5}, {1, 2, 3, 4, 5, 6, 7}}) {
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

/// Whatever the threads the same list, in order, with the counts of the table (0 for what it does
/// not know) and without a hole in it.
void VerifierContreTable(ContexteComb c, int taille, int inf,
                         const std::map<NumerosChoisis, int>& table) {
    SCOPED_TRACE(taille);
    c.threads = 1;
    const auto mots = Chercher(c, taille, inf, 9999);
    for (const unsigned threads : {2U, 5U}) {
        c.threads = threads;
        EXPECT_TRUE(Chercher(c, taille, inf, 9999) == mots);
    }
    const auto pas = static_cast<std::size_t>(taille) + 5;
    NumerosChoisis precedente;
    std::size_t sorties = 0, faux = 0;
    for (std::size_t i = 0; i < mots.size(); i += pas) {
        const auto fin = mots.begin() + static_cast<std::ptrdiff_t>(i + pas);
        const NumerosChoisis numeros(fin - taille, fin);
        const auto it = table.find(numeros);
        faux += numeros <= precedente || mots[i] != (it == table.end() ? 0 : it->second);
        sorties += it != table.end();
        precedente = numeros;
    }
    EXPECT_EQ(faux, 0U);
    EXPECT_EQ(sorties, table.size());
}

TEST(Bornes, BaseEntiereContreUneTable) {
    const Etabli e(BaseIntegree(false));
    for (const auto& [taille, inf] : {std::pair{3, 0}, {4, 0}, {5, 1}})
        VerifierContreTable(e.contexte(), taille, inf,
                            TableDesComptes(e.base, taille, 1, e.base.NbTirages));
}

// Each draw within the selection is filled up in every way. Pieces of one, two and three numbers.
TEST(Bornes, GrandeSelectionParMorceaux) {
    Etabli e(BaseIntegree(false));
    for (const auto& [taille, libres] : {std::pair{7, 25}, {9, 24}, {7, 32}, {8, 30}}) {
        const NumerosChoisis reserve = TousLesNumeros(libres);
        e.choisir(reserve, {});
        std::map<NumerosChoisis, int> table;
        for (const Tirage& t : e.base.enUsage()) {
            const NumerosChoisis tirage(t.Numeros, t.Numeros + NbBoules);
            if (tirage.back() > libres) continue;
            NumerosChoisis autres;
            std::ranges::set_difference(reserve, tirage, std::back_inserter(autres));
            for (const auto& c : Choix(tirage, autres, taille - NbBoules)) ++table[c];
        }
        VerifierContreTable(e.contexte(), taille, 1, table);
    }
}

TEST(Bornes, ListeTropLongueRefuseeAvantDePartir) {
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
    Collecte premiers;
    const auto fil = CreerRechercheBornes(c, premiers, 3, 1, 9999);
    fil->limite = 100;
    Mener(fil);
    EXPECT_EQ(fil->nombre(), 100U);
}

/// The number in "La liste compterait environ 1 234 combinaisons".
double Annoncees(const std::string& phrase) {
    std::string chiffres;
    std::ranges::copy_if(phrase.substr(0, phrase.find(" combinaisons")),
                         std::back_inserter(chiffres), [](char c) { return c >= '0' && c <= '9'; });
    return std::stod(chiffres);
}

TEST(Bornes, GrandeListeRefuseeParEstimation) {
    const Etabli e(BaseIntegree(false));
    using enum ModeStockage;
    struct {
        int taille, inf, sup;
        ModeStockage mode;
        std::uint64_t octetsMax;
        const char *debut, *fin;
        double nombre, marge;  // counted; 85900584 is 49 choose 7
    } const cas[] = {
        {8, 2, 9, PremierRang, 1000000, "environ ", " : resserrez les bornes.", 1919137, 57000},
        {8, 2, 9, TousLesRangs, 60000000, "environ ",
         " : resserrez les bornes ou stockez moins de rangs.", 1919137, 57000},
        {8, 2, 2, PremierRang, 1000000, "environ ", " : choisissez d'autres bornes.", 1857946,
         57000},
        {8, 2, 9, PremierRang, 1900000 * 26, "plus de ", " : resserrez les bornes.", 1900000, 0},
        {7, 0, 9999, PremierRang, 1000000, "", " : resserrez les bornes.", 85900584, 0}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c.fin);
        ContexteComb contexte = e.contexte(c.mode);
        contexte.octetsMax = c.octetsMax;
        struct : PuitsMuet {
            void AddRecord(std::span<const Mot> mots) override { recus += mots.size() / 13; }
            std::uint64_t recus = 0;
        } puits;
        const auto fil = CreerRechercheBornes(contexte, puits, c.taille, c.inf, c.sup);
        Mener(fil);
        const std::string phrase = fil->erreur();
        EXPECT_TRUE(phrase.starts_with(std::string("La liste compterait ") + c.debut)) << phrase;
        EXPECT_TRUE(phrase.ends_with(c.fin)) << phrase;
        EXPECT_FALSE(fil->complet());
        EXPECT_EQ(puits.recus > 0, *c.debut == 'p');
        EXPECT_LE(puits.recus, 1900000U);
        EXPECT_NEAR(Annoncees(phrase), c.nombre, c.marge);
    }
}

// The interval that an estimate gives holds the truth, and is of use where there are many.
TEST(Bornes, LesEstimationsTiennentLaVerite) {
    std::mt19937 hasard(26);
    for (int essai = 0; essai < 20; ++essai) {
        const int taille = 6 + essai % 5;
        const int libres = essai % 3 == 0 ? 49 : 25 + static_cast<int>(hasard() % 3);
        const Base base = BaseAleatoire(hasard, 20 + static_cast<int>(hasard() % 300), libres);
        std::vector<Masque> masques;
        for (const Tirage& t : base.Tirages) masques.push_back(Ensemble::de(t.Numeros).bits());
        NumerosChoisis reserve = TousLesNumeros(essai % 3 == 0 ? 27 : libres);
        NumerosChoisis fixes(reserve.begin(), reserve.begin() + essai % 4);
        reserve.erase(reserve.begin(), reserve.begin() + essai % 4);
        if (essai % 6 == 5) fixes.clear();
        const Residus residus(masques, 0, Ensemble::de(fixes).bits(), reserve,
                              taille - static_cast<int>(fixes.size()));
        for (const auto& [inf, sup] : {std::pair{0, 0}, {0, 2}, {1, 1}, {1, 99}, {2, 3}, {4, 99}}) {
            SCOPED_TRACE(testing::Message() << essai << ": " << inf << ".." << sup);
            const std::uint64_t vrai = residus.compter(inf, sup, 2, {});
            const Prevision p = residus.prevoir(inf, sup, {});
            EXPECT_LE(p.minimum, vrai);
            EXPECT_GE(p.maximum, vrai);
            if (vrai > residus.choixPossibles() / 20) {
                EXPECT_NEAR(static_cast<double>(p.nombre), static_cast<double>(vrai),
                            static_cast<double>(vrai) * 0.05);
            }
        }
    }
}

TEST(Bornes, DebutDUneLongueListe) {
    std::mt19937 hasard(27);
    const Etabli e(BaseAleatoire(hasard, 90, 12));
    for (const auto& [taille, inf, sup] :
         {std::tuple{6, 0, 0}, {6, 0, 1}, {7, 0, 2}, {8, 0, 9}, {8, 0, 0}, {10, 1, 99}}) {
        // The first ones in order: all but their last three numbers are the least.
        NumerosChoisis reserve = TousLesNumeros();
        reserve.erase(reserve.begin(), reserve.begin() + taille - 3);
        auto attendus = Attendre(e, Choix(TousLesNumeros(taille - 3), reserve, 3),
                                 ModeStockage::PremierRang, inf, sup);
        ASSERT_GE(attendus.size(), 5000U * static_cast<std::size_t>(taille + 5));
        attendus.resize(5000U * static_cast<std::size_t>(taille + 5));
        Collecte collecte;
        const auto fil = CreerRechercheBornes(e.contexte(), collecte, taille, inf, sup);
        fil->limite = 5000;
        Mener(fil);
        EXPECT_TRUE(fil->complet());
        EXPECT_TRUE(collecte.mots == attendus) << taille;
    }
}

// A rank wins when some grid of five numbers of the combination does.
TEST(Bornes, LesRangsDeGainSuiventLesPrix) {
    for (unsigned prix = 0; prix < 16; ++prix) {
        std::array<double, 4> gains{};
        for (unsigned j = 0; j < 4; ++j) gains[j] = (prix >> j & 1) != 0 ? 0.5 : 0;
        const FormeGains forme = FormeGains::de(gains);
        for (int taille = 2; taille <= 10; ++taille) {
            SCOPED_TRACE(testing::Message() << prix << ", " << taille);
            std::set<int> gagnants;
            for (int k = 2; k <= std::min(taille, 5); ++k)
                for (unsigned grille = 0; grille < 1U << taille; ++grille) {
                    if (std::popcount(grille) != std::min(taille, 5)) continue;
                    const int bons = std::popcount(grille & ((1U << k) - 1));
                    if (bons >= 2 && gains[static_cast<std::size_t>(bons) - 2] > 0)
                        gagnants.insert(k);
                }
            EXPECT_EQ(NbRangsGain(taille, forme), std::ssize(gagnants));
            EXPECT_EQ(MinBonsNumeros(taille, forme), gagnants.empty() ? 65535 : *gagnants.begin());
            gagnants.insert(std::min(taille, 5));  // kept in any case
            const Disposition d{taille, ModeStockage::RangsDeGain, forme};
            EXPECT_EQ(d.mots(), 5 * std::ssize(gagnants) + taille);
            EXPECT_EQ(d.premierRang(), 5 * (std::ssize(gagnants) - 1));
        }
    }
}

TEST(Bornes, ArreteeLaisseUnDebut) {
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

TEST(Bornes, PuitsQuiEchoue) {
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
