// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <thread>

#include "base/BaseIntegree.h"
#include "BasesEssai.h"
#include "MarcheDeTirages.h"

namespace norvane {
namespace {

using Tirages = std::span<const Tirage>;
using Places = std::span<const std::uint16_t>;
using Suite = std::vector<Mot>;
using Histogramme = std::map<int, std::uint64_t>;  // draws held -> combinations

const Base& Integree() {
    static const Base base = BaseIntegree(false);
    return base;
}

std::uint64_t Combinaisons(int n, int k) {
    return k == 0 ? 1
                  : Combinaisons(n - 1, k - 1) * static_cast<std::uint64_t>(n) /
                        static_cast<std::uint64_t>(k);
}

std::vector<Masque> Masques(Tirages tirages) {
    std::vector<Masque> masques;
    for (const Tirage& t : tirages) masques.push_back(MasqueTirage(t));
    return masques;
}

/// In the order of the numbers: the lowest number that one of them alone has decides.
bool Avant(Masque a, Masque b) {
    return ((a ^ b) & (~(a ^ b) + 1) & a) != 0;
}

ExtremesGrandeTaille Extremes(Tirages tirages, int taille, std::size_t capacite = 100000) {
    const auto threads = 1 + static_cast<unsigned>(tirages.size()) % 4;
    return ChercherExtremesGrandeTaille(tirages, taille, capacite, threads, {}, {});
}

/// A combination as words: four of its mask, how many draws, which.
Livraison EnMots(const std::function<bool(std::span<const Mot>)>& livrer) {
    return {[](Suite& mots, Masque m, Places places) {
                for (int i = 0; i < 4; ++i) mots.push_back(static_cast<Mot>(m >> (16 * i)));
                mots.push_back(static_cast<Mot>(places.size()));
                mots.insert(mots.end(), places.begin(), places.end());
            },
            livrer};
}

/// A list whose every line was looked at: the right size, after the one before, and its draws
/// ascending, as many as allowed, each of them inside.
struct Liste {
    Histogramme histogramme;
    std::vector<Masque> premiers;  // the lines with the most draws
};

Liste Lister(Tirages tirages, int taille, int inf, int sup) {
    const std::vector<Masque> masques = Masques(tirages);
    Liste liste;
    Masque precedent = 0;
    int dernier = -1, maximum = 0, fautes = 0;
    const auto regarder = [&](Masque m, Places places) {
        const auto compte = static_cast<int>(places.size());
        fautes += std::popcount(m) != taille || m >> NumeroMax != 0 || compte < inf || compte > sup;
        fautes += precedent != 0 && !Avant(precedent, m);
        for (std::size_t i = 0; i < places.size(); ++i)
            fautes += (masques.at(places[i]) & ~m) != 0 || (i > 0 && places[i] <= places[i - 1]);
        precedent = m;
        ++liste.histogramme[compte];
        if (compte > maximum) liste.premiers.clear();
        maximum = std::max(maximum, compte);
        if (compte == maximum) liste.premiers.push_back(m);
    };
    const auto threads = 1 + static_cast<unsigned>(taille + inf) % 4;
    const auto avance = [&](int pourcent) {
        if (threads > 1) return;  // told by several at once
        fautes += pourcent < dernier || pourcent > 100;
        dernier = pourcent;
    };
    const auto livrer = [&](std::span<const Mot> mots) {
        EXPECT_FALSE(mots.empty());
        while (!mots.empty()) {
            Masque m = 0;
            for (std::size_t i = 0; i < 4; ++i) m |= Masque{mots[i]} << (16 * i);
            regarder(m, mots.subspan(5, mots[4]));
            mots = mots.subspan(5U + mots[4]);
        }
        return true;
    };
    EXPECT_TRUE(
        ListerBornesGrandeTaille(tirages, taille, inf, sup, threads, {}, avance, EnMots(livrer)));
    EXPECT_EQ(fautes, 0) << taille << " [" << inf << ", " << sup << "]";
    if (threads == 1 && !liste.histogramme.empty()) {
        EXPECT_EQ(dernier, 100);
    }
    return liste;
}

/// Every combination of a base that uses the numbers 1 to `utiles` only: each choice among those,
/// as often as the other numbers can fill it up.
Histogramme ForceBrute(Tirages tirages, int taille, int utiles) {
    const std::vector<Masque> masques = Masques(tirages);
    Histogramme histogramme;
    for (Masque m = 0; m < Masque{1} << utiles; ++m) {
        const int reste = taille - std::popcount(m);
        if (reste < 0) continue;
        int compte = 0;
        for (const Masque t : masques) compte += (t & ~m) == 0;
        histogramme[compte] += Combinaisons(NumeroMax - utiles, reste);
    }
    return histogramme;
}

std::uint64_t Total(const Histogramme& h, int inf, int sup) {
    std::uint64_t total = 0;
    for (const auto& [compte, nombre] : h)
        if (compte >= inf && compte <= sup) total += nombre;
    return total;
}

/// Both functions and the count against the histogram of a base, for all bounds that give a list
/// of bearable length.
void Comparer(Tirages tirages, int taille, const Histogramme& h) {
    SCOPED_TRACE(std::to_string(tirages.size()) + " draws, size " + std::to_string(taille));
    const int maximum = h.rbegin()->first;
    const ExtremesGrandeTaille e = Extremes(tirages, taille, 20000);
    EXPECT_EQ(e.maximum, maximum);
    EXPECT_EQ(e.nombre, h.rbegin()->second);
    EXPECT_EQ(e.combinaisons.size(), std::min<std::uint64_t>(e.nombre, 20000));
    for (const int inf : {0, 1, 2, maximum / 2, maximum - 1, maximum, maximum + 1})
        for (const int sup : {inf, inf + 2, maximum}) {
            const std::uint64_t total = Total(h, inf, sup);
            if (Total(h, std::max(inf, 1), maximum) > 300000) continue;
            EXPECT_EQ(CompterBornesGrandeTaille(tirages, taille, inf, sup, 2, {}), total);
            if (inf == 0 || total > 30000) continue;
            const Liste liste = Lister(tirages, taille, inf, sup);
            EXPECT_EQ(Total(liste.histogramme, inf, sup), total);
            if (inf == maximum && e.combinaisons.size() == total) {
                EXPECT_EQ(liste.premiers, e.combinaisons);
            }
        }
}

TEST(GrandesTailles, BasesConstruitesContreForceBrute) {
    std::mt19937 hasard(7);
    for (const auto& [nombre, utiles] :
         {std::pair{1, 9}, {2, 12}, {3, 13}, {9, 12}, {25, 13}, {60, 10}, {150, 12}, {400, 11}}) {
        std::vector<Tirage> tirages = BaseAleatoire(hasard, nombre, utiles).Tirages;
        if (nombre == 9) tirages.insert(tirages.end(), 5, Tirage(tirages[4]));  // the same again
        if (nombre == 9) tirages.insert(tirages.begin(), 3, Tirage(tirages[7]));
        for (int taille = 6; taille <= 10; ++taille)
            Comparer(tirages, taille, ForceBrute(tirages, taille, utiles));
    }
}

TEST(GrandesTailles, SansTirageEtUnSeul) {
    const Tirages unSeul = Integree().enUsage().first(1);
    for (int taille = 6; taille <= 10; ++taille) {
        for (const Tirages tirages : {Tirages(), unSeul}) {
            const auto e = Extremes(tirages, taille, 30);
            EXPECT_EQ(e.maximum, std::ssize(tirages));
            EXPECT_EQ(e.nombre,
                      tirages.empty() ? Combinaisons(49, taille) : Combinaisons(44, taille - 5));
            // Without a draw to hold, the first ones differ in their last number alone.
            const Masque debut = (Masque{1} << (taille - 1)) - 1;
            for (std::size_t i = 0; i < 30 && tirages.empty(); ++i)
                EXPECT_EQ(e.combinaisons.at(i), debut | Masque{1} << (taille - 1) << i);
        }
        EXPECT_TRUE(Extremes(unSeul, taille, 0).combinaisons.empty());
        EXPECT_TRUE(Lister(unSeul, taille, 2, 9).histogramme.empty());
        EXPECT_TRUE(Lister(unSeul, taille, 3, 2).histogramme.empty());
        EXPECT_EQ(CompterBornesGrandeTaille(unSeul, taille, INT_MAX, INT_MAX, 1, {}), 0);
        EXPECT_EQ(CompterBornesGrandeTaille(unSeul, taille, 0, INT_MAX, 1, {}),
                  Combinaisons(49, taille));
    }
}

TEST(GrandesTailles, BaseEntiereContreFormules) {
    // Each pair of draws lies in as many combinations as its union leaves room for. All pairs of
    // the draws of all lines are pairs inside: equal sums mean that no line and no draw is missing.
    for (const auto& [taille, tirages] :
         {std::pair{6, 3214}, {7, 3214}, {8, 1500}, {9, 250}, {10, 90}}) {
        SCOPED_TRACE(taille);
        const Tirages fin = Integree().enUsage().last(static_cast<std::size_t>(tirages));
        const std::vector<Masque> masques = Masques(fin);
        std::uint64_t paires = 0, trouvees = 0;
        for (std::size_t i = 0; i < masques.size(); ++i)
            for (std::size_t j = 0; j < i; ++j) {
                const int reunis = std::popcount(masques[i] | masques[j]);
                if (reunis <= taille) paires += Combinaisons(49 - reunis, taille - reunis);
            }
        const Liste liste = Lister(fin, taille, 2, tirages);
        for (const auto& [compte, nombre] : liste.histogramme)
            trouvees += nombre * Combinaisons(compte, 2);
        EXPECT_EQ(trouvees, paires);
        const auto e = Extremes(fin, taille);
        EXPECT_EQ(e.maximum, liste.histogramme.rbegin()->first);
        EXPECT_EQ(e.combinaisons, liste.premiers);
    }
}

TEST(GrandesTailles, ExtremesContreMarcheDeTirages) {
    std::mt19937 hasard(11);
    const Tirages tous = Integree().enUsage();
    const auto comparer = [&](Tirages tirages, int taille) {
        const MarcheDeTirages marche(tirages, taille);
        std::vector<Masque> attendues = marche.combinaisons();
        std::sort(attendues.begin(), attendues.end(), Avant);
        const auto e = Extremes(tirages, taille);
        EXPECT_EQ(e.maximum, marche.maximum()) << taille << ", " << tirages.size() << " draws";
        EXPECT_EQ(e.nombre, attendues.size());
        EXPECT_EQ(e.combinaisons, attendues);
    };
    for (int taille = 6; taille <= 8; ++taille) comparer(tous, taille);
    comparer(tous.last(600), 9);
    comparer(tous.last(300), 10);
    for (int essai = 0; essai < 30; ++essai) {
        const std::size_t debut = hasard() % tous.size();
        const std::size_t longueur = std::min<std::size_t>(1 + hasard() % 200, tous.size() - debut);
        comparer(tous.subspan(debut, longueur), essai % 2 == 0 ? 6 : 7 + essai % 4);
    }
}

TEST(GrandesTailles, Arret) {
    const Tirages tirages = Integree().enUsage();
    // One draw in ten numbers: three thousand million lines that nobody waits for.
    for (const auto& [taille, inf, pourcent] :
         {std::tuple{10, 1, -1}, {10, 1, 0}, {8, 4, 17}, {8, 4, 40}, {7, 2, 75}}) {
        SCOPED_TRACE(pourcent);
        std::stop_source source;
        int recus = 0;
        const auto avance = [&, limite = pourcent](int p) {
            if (p >= limite) source.request_stop();
        };
        if (pourcent < 0) source.request_stop();
        EXPECT_FALSE(
            ListerBornesGrandeTaille(tirages, taille, inf, 99, 2, source.get_token(), avance,
                                     EnMots([&](std::span<const Mot>) { return ++recus > 0; })));
        EXPECT_EQ(recus > 0, pourcent > 50);
        source = {};
        if (pourcent < 0) source.request_stop();
        EXPECT_TRUE(ChercherExtremesGrandeTaille(tirages, taille, 10, 2, source.get_token(), avance)
                        .interrompu);
    }
    std::stop_source source;
    const std::jthread plusTard([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        source.request_stop();
    });
    // All lines would take minutes to count.
    EXPECT_LT(CompterBornesGrandeTaille(tirages, 10, 1, 99, 2, source.get_token()), 1000000000);
}

}  // namespace
}  // namespace norvane
