// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "comb/TravauxRangs.h"
#include "OracleComb.h"

namespace norvane {
namespace {

constexpr FormeGains GainsTroues{0b110100};  // three good numbers win nothing

/// Every block of a record by definition; `rangs` false: the first rank alone.
std::vector<Mot> Attendu(const Base& base, const NumerosChoisis& c, const Disposition& d, int inf,
                         int sup, bool rangs) {
    std::vector<Mot> mots;
    for (int k = 0; k <= d.taille; ++k) {
        if ((d.rangs() >> k & 1) == 0) continue;
        Presences presences;
        for (const Tirage& t : base.enUsage())
            presences.push_back(k == std::count_if(t.Numeros, t.Numeros + NbBoules, [&](int n) {
                                    return std::count(c.begin(), c.end(), n) > 0;
                                }));
        const ResultatStats r = OracleStats(presences, inf - 1, sup - 1);
        if (rangs || k == std::min(d.taille, 5))
            mots.insert(mots.end(), {r.Sorties, r.Ecart, r.EcartMax, r.Suite, r.SuiteMax});
        else
            mots.insert(mots.end(), {0, RangNonCalcule, 0, 0, 0});
    }
    mots.insert(mots.end(), c.begin(), c.end());
    return mots;
}

std::vector<Mot> Liste(const Base& base, const std::vector<NumerosChoisis>& combinaisons,
                       const Disposition& d, int inf, int sup, bool rangs) {
    std::vector<Mot> mots;
    for (const auto& c : combinaisons) {
        const auto un = Attendu(base, c, d, inf, sup, rangs);
        mots.insert(mots.end(), un.begin(), un.end());
    }
    return mots;
}

/// The same draw for up to `suite` records in a row: runs and gaps of every length.
Base BaseEnSuites(std::mt19937& hasard, int n, int numeros, unsigned suite) {
    Base base = BaseAleatoire(hasard, n, numeros);
    for (std::size_t i = 0, reste = 0; i < base.Tirages.size(); ++i, --reste) {
        if (reste == 0)
            reste = 1 + hasard() % suite;
        else
            std::copy_n(base.Tirages[i - 1].Numeros, NbBoules, base.Tirages[i].Numeros);
    }
    return base;
}

std::vector<NumerosChoisis> AuHasard(std::mt19937& hasard, std::size_t n, int taille, int max) {
    std::vector<NumerosChoisis> combinaisons;
    while (combinaisons.size() < n) {
        NumerosChoisis c = TousLesNumeros(max);
        std::shuffle(c.begin(), c.end(), hasard);
        c.resize(static_cast<std::size_t>(taille));
        std::sort(c.begin(), c.end());
        combinaisons.push_back(c);
    }
    // Half in order, so that leading parts are shared, half as they come.
    std::sort(combinaisons.begin(), combinaisons.begin() + static_cast<std::ptrdiff_t>(n / 2));
    return combinaisons;
}

// Maps of one word and of several, full and cut words, runs longer than a word.
TEST(Rangs, ChaqueMotDeChaqueBloc) {
    std::mt19937 hasard(35);
    struct Cas {
        int n, numeros;
        unsigned suite;
        std::vector<std::pair<int, int>> intervalles;
    };
    for (const Cas& cas : {Cas{600, 14, 170, {{1, 600}, {3, 578}, {33, 96}, {600, 600}}},
                           Cas{320, 11, 1, {{1, 320}, {2, 65}, {7, 70}, {64, 255}}}}) {
        Etabli e(BaseEnSuites(hasard, cas.n, cas.numeros, cas.suite));
        for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille) {
            const auto liste = AuHasard(hasard, 9, taille, cas.numeros + 2);
            for (const Disposition d : {Disposition{taille, ModeStockage::PremierRang},
                                        Disposition{taille, ModeStockage::RangsDeGain},
                                        Disposition{taille, ModeStockage::RangsDeGain, GainsTroues},
                                        Disposition{taille, ModeStockage::TousLesRangs}}) {
                for (std::size_t i = 0; i < cas.intervalles.size(); ++i) {
                    const auto [inf, sup] = cas.intervalles[i];
                    const auto [de, a] = cas.intervalles[(i + 1) % cas.intervalles.size()];
                    SCOPED_TRACE(testing::Message()
                                 << taille << " mode " << static_cast<int>(d.mode) << ' '
                                 << int{d.gains.bons} << ", draws " << inf << ".." << sup);
                    e.intervalle(inf, sup);
                    Arene arene{d, Liste(e.base, liste, d, inf, sup, false)};
                    PuitsMuet muet;
                    TRemplirRangsSearch rangs(e.contexte(), muet, arene, QuelleListe::Memoire);
                    Mener(&rangs);
                    ASSERT_EQ(arene.mots, Liste(e.base, liste, d, inf, sup, true));
                    EXPECT_TRUE(rangs.complet());
                    EXPECT_EQ(rangs.nombre(), d.blocs() == 1 ? 0U : 9U);

                    e.intervalle(de, a);
                    TRemplirRangsAdaptationSearch adaptation(e.contexte(), muet, arene,
                                                             QuelleListe::Memoire);
                    Mener(&adaptation);
                    ASSERT_EQ(arene.mots, Liste(e.base, liste, d, de, a, true));
                    EXPECT_TRUE(adaptation.complet());
                    EXPECT_EQ(adaptation.nombre(), 9U);
                }
            }
        }
    }
}

/// Stops its worker at a step.
struct PuitsArret : PuitsMuet {
    TCombThread* fil = nullptr;
    int arret = 1000;
    std::vector<int> gauge, barre;

    void SetProgress(int valeur) override { noter(gauge, valeur); }
    void SetStatusProgress(int valeur) override { noter(barre, valeur); }
    void noter(std::vector<int>& ou, int valeur) {
        ou.push_back(valeur);
        if (valeur >= arret) fil->Terminate();
    }
};

template <typename Fil>
std::size_t Lancer(const Etabli& e, Arene& arene, PuitsArret& puits) {
    Fil fil(e.contexte(), puits, arene, QuelleListe::Tampon2);
    EXPECT_EQ(fil.TailleComb, arene.disposition.taille);
    EXPECT_EQ(fil.description.liste, QuelleListe::Tampon2);
    EXPECT_EQ(fil.progres.total(), 100);
    puits.fil = &fil;
    Mener(&fil);
    EXPECT_EQ(fil.complet(), puits.arret > 100);
    for (const auto* pas : {&puits.gauge, &puits.barre})
        EXPECT_TRUE(std::adjacent_find(pas->begin(), pas->end(), std::greater_equal<>()) ==
                    pas->end());
    return fil.nombre();
}

TEST(Rangs, ArretPuisReprise) {
    std::mt19937 hasard(36);
    Etabli e(BaseAleatoire(hasard, 300, 49));
    e.intervalle(20, 280);
    const Disposition d{4, ModeStockage::TousLesRangs};
    const auto liste = AuHasard(hasard, 20000, 4, 49);
    std::vector<Mot> vides;
    for (const auto& c : liste) {
        const auto un = Enregistrer(e.base, c, d.mode, 20, 280);
        vides.insert(vides.end(), un.begin(), un.end());
    }
    Arene entiere{d, vides};
    PuitsArret suivi;
    EXPECT_EQ(Lancer<TRemplirRangsSearch>(e, entiere, suivi), 20000U);
    EXPECT_EQ(suivi.gauge.back(), 100);
    EXPECT_TRUE(suivi.barre.empty());

    const auto comparer = [&](const Arene& arene, const std::vector<Mot>& avant,
                              const Arene& apres) {
        std::size_t faits = 0;
        for (std::size_t i = 0; i < arene.nombre(); ++i) {
            const bool fait = std::ranges::equal(arene[i], apres[i]);
            const Arene ancienne{d,
                                 {avant.begin() + static_cast<std::ptrdiff_t>(i) * 29,
                                  avant.begin() + static_cast<std::ptrdiff_t>(i + 1) * 29}};
            EXPECT_TRUE(fait || std::ranges::equal(arene[i], ancienne[0])) << i;
            faits += fait;
        }
        return faits;
    };
    Arene arretee{d, vides};
    PuitsArret arret;
    arret.arret = 30;
    const std::size_t premiers = Lancer<TRemplirRangsSearch>(e, arretee, arret);
    EXPECT_TRUE(premiers > 0 && premiers < 15000) << premiers;
    EXPECT_EQ(comparer(arretee, vides, entiere), premiers);
    arretee.mots[2] = 4321;  // a record that stands filled is not looked at again
    PuitsArret reprise;
    EXPECT_EQ(Lancer<TRemplirRangsSearch>(e, arretee, reprise), 20000U - premiers);
    EXPECT_EQ(std::exchange(arretee.mots[2], entiere.mots[2]), 4321);
    EXPECT_EQ(arretee.mots, entiere.mots);

    e.intervalle(1, 200);
    Arene autre = entiere;
    PuitsArret barre;
    EXPECT_EQ(Lancer<TRemplirRangsAdaptationSearch>(e, autre, barre), 20000U);
    EXPECT_EQ(barre.barre.back(), 100);
    EXPECT_TRUE(barre.gauge.empty());
    Arene melangee = entiere;
    PuitsArret coupure;
    coupure.arret = 50;
    const std::size_t adaptes = Lancer<TRemplirRangsAdaptationSearch>(e, melangee, coupure);
    EXPECT_TRUE(adaptes > 0 && adaptes < 18000) << adaptes;
    EXPECT_GE(comparer(melangee, entiere.mots, autre), adaptes);
}

}  // namespace
}  // namespace norvane
