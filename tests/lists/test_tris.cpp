// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <numeric>
#include <random>

#include "lists/Tri.h"

namespace norvane {
namespace {

constexpr GainsNominaux Gains = {5, 20, 500, 100000};
constexpr FormeGains SansTrois{0b110100};

/// Records of few different words, so that most sorts meet ties on several ranks; words above
/// 32767 are negative. Lines in no order.
Liste Inventer(std::mt19937& hasard, Disposition d, std::size_t n) {
    Liste liste;
    liste.arene.disposition = d;
    liste.DebutListe = 1;
    liste.FinListe = 500;
    for (std::size_t i = 0; i < n; ++i) {
        for (int m = 0; m < d.numeros(); ++m)
            liste.arene.mots.push_back(
                static_cast<Mot>(hasard() % 9 == 0 ? 40000 + hasard() % 2 : hasard() % 3 * 300));
        for (int k = 1; k <= d.taille; ++k) liste.arene.mots.push_back(static_cast<Mot>(k));
    }
    CompterRangs(liste);
    liste.ordre = OrdreDesLignes(liste);
    std::ranges::shuffle(liste.ordre, hasard);
    return liste;
}

/// The word of the criterion for k good numbers; the block found by counting the ranks below.
int Valeur(std::span<const Mot> e, const Disposition& d, int k, Critere critere) {
    std::size_t bloc = 0;
    if (d.mode == ModeStockage::TousLesRangs) bloc = static_cast<std::size_t>(k);
    if (d.mode == ModeStockage::RangsDeGain)
        for (int j = 2; j < k; ++j) bloc += d.taille > 5 || (d.gains.bons >> j & 1) != 0;
    return static_cast<std::int16_t>(e[5 * bloc + static_cast<std::size_t>(critere)]);
}

/// -1, 0 or 1 for two records, ascending.
int Comparer(std::span<const Mot> a, std::span<const Mot> b, const Disposition& d,
             const EtatTri& tri) {
    const int premier = std::min(d.taille, 5);
    const bool rangs = d.mode != ModeStockage::PremierRang &&
                       (d.mode != ModeStockage::RangsDeGain || d.taille > 2);
    const auto ecart = [](auto x, auto y) { return (x > y) - (x < y); };
    if (!rangs || tri.TypeTriListe == TypeTri::Simple)
        return ecart(Valeur(a, d, premier, tri.CritereTri), Valeur(b, d, premier, tri.CritereTri));
    const auto garde = [&](int k) {
        if (k > d.taille || d.mode == ModeStockage::TousLesRangs) return k <= d.taille;
        return k >= 2 && (d.taille > 5 || k == d.taille || (d.gains.bons >> k & 1) != 0);
    };
    if (tri.TypeTriListe == TypeTri::Profondeur) {
        for (int k = std::min(tri.RangTri, 5); k >= 0; --k) {
            const int e =
                !garde(k) ? 0
                          : ecart(Valeur(a, d, k, tri.CritereTri), Valeur(b, d, k, tri.CritereTri));
            if (e != 0) return e;
        }
        return 0;
    }
    const auto gain = [&](std::span<const Mot> e) {
        double total = 0;
        for (int k = 2; k <= premier; ++k) {
            if (!garde(k)) continue;
            if (d.mode == ModeStockage::TousLesRangs && d.taille >= 8 && k < 5) continue;
            double prix = 0;
            for (int j = 2; j <= k; ++j) {
                double grilles = j == k;
                if (d.taille > 5) {
                    grilles = 0;
                    for (unsigned g = 0; g < 1U << d.taille; ++g)
                        grilles += std::popcount(g) == 5 && std::popcount(g & ((1U << k) - 1)) == j;
                }
                prix += grilles * Gains[static_cast<std::size_t>(j - 2)];
            }
            total += prix * static_cast<Mot>(Valeur(e, d, k, Critere::NbFois));
        }
        return total;
    };
    return ecart(gain(a), gain(b));
}

TEST(Tris, ContreUnComparateurLent) {
    std::mt19937 hasard(51);
    for (int taille = TailleCombMin; taille <= TailleCombMax; ++taille)
        for (const Disposition d : {Disposition{taille, ModeStockage::PremierRang},
                                    Disposition{taille, ModeStockage::RangsDeGain},
                                    Disposition{taille, ModeStockage::RangsDeGain, SansTrois},
                                    Disposition{taille, ModeStockage::TousLesRangs}})
            for (const TypeTri type : {TypeTri::Simple, TypeTri::Profondeur, TypeTri::Gain})
                for (const bool croissant : {true, false}) {
                    Liste liste = Inventer(hasard, d, 150);
                    const EtatTri tri{type, static_cast<Critere>(hasard() % 5), croissant,
                                      static_cast<int>(hasard() % 8)};
                    auto attendu = liste.ordre;
                    std::ranges::stable_sort(attendu, [&](std::uint32_t a, std::uint32_t b) {
                        const int e = Comparer(liste.arene[a], liste.arene[b], d, tri);
                        return croissant ? e < 0 : e > 0;
                    });
                    const auto mots = liste.arene.mots;
                    Trier(liste, tri, Gains);
                    ASSERT_EQ(liste.ordre, attendu)
                        << taille << " mode " << static_cast<int>(d.mode) << " sort "
                        << static_cast<int>(type) << " from " << tri.RangTri;
                    EXPECT_EQ(liste.arene.mots, mots);
                    EtatTri fait = tri;
                    fait.TypeTriListe = TriPossible(liste, type);
                    EXPECT_EQ(liste.tri, fait);
                }
}

TEST(Tris, CeQuiEstPossibleEtCeQuiNeChangeRien) {
    std::mt19937 hasard(52);
    for (const TypeTri type : {TypeTri::Profondeur, TypeTri::Gain}) {
        Liste liste = Inventer(hasard, {4, ModeStockage::TousLesRangs}, 20);
        EXPECT_EQ(TriPossible(liste, type), type);
        liste.arene.mots[1] = RangNonCalcule;
        CompterRangs(liste);
        EXPECT_EQ(TriPossible(liste, type), TypeTri::Simple);
        EXPECT_EQ(TriPossible(Inventer(hasard, {2, ModeStockage::RangsDeGain}, 9), type),
                  TypeTri::Simple);
        EXPECT_EQ(TriPossible(Inventer(hasard, {3, ModeStockage::RangsDeGain}, 9), type), type);
        EXPECT_EQ(TriPossible(Inventer(hasard, {7, ModeStockage::PremierRang}, 9), type),
                  TypeTri::Simple);

        const auto avant = liste.ordre;
        Trier(liste, {TypeTri::Sans, Critere::Ecart, true, 1}, Gains);
        EXPECT_EQ(liste.ordre, avant);
        std::stop_source arret;
        arret.request_stop();
        EXPECT_EQ(OrdreTrie(liste, {type}, Gains, {arret.get_token()}), std::nullopt);
    }
    Liste vide;
    Trier(vide, {TypeTri::Simple}, Gains);
    EXPECT_TRUE(vide.ordre.empty());
}

TEST(Tris, FiltreParEcart) {
    std::mt19937 hasard(53);
    const Disposition d{5, ModeStockage::RangsDeGain, SansTrois};
    const Liste liste = Inventer(hasard, d, 60);
    for (const int rang : {2, 4, 5}) {
        Liste filtree = liste;
        std::vector<std::uint32_t> attendus;
        for (const std::uint32_t i : liste.ordre)
            if (liste.arene[i][static_cast<std::size_t>(rang == 2 ? 1 : 5 * rang - 14)] >= 300)
                attendus.push_back(i);
        ASSERT_TRUE(attendus.size() > 5 && attendus.size() < 60);
        EXPECT_EQ(FiltrerEcart(filtree, rang, 300), attendus.size());
        for (std::size_t l = 0; l < attendus.size(); ++l)
            EXPECT_TRUE(std::ranges::equal(filtree.enregistrement(l), liste.arene[attendus[l]]));
    }
    Liste filtree = liste;
    for (const int rang : {-1, 0, 3, 6}) EXPECT_EQ(FiltrerEcart(filtree, rang, 0), std::nullopt);
    filtree.arene[59][1] = RangNonCalcule;
    EXPECT_EQ(FiltrerEcart(filtree, 2, 0), std::nullopt);
    EXPECT_EQ(filtree.ordre, liste.ordre);
    EXPECT_EQ(FiltrerEcart(filtree, 5, 65000), 0U);
    EXPECT_TRUE(filtree.vide());
}

}  // namespace
}  // namespace norvane
