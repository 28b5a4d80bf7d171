// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/Noyau.h"

#include <algorithm>

namespace norvane {

namespace {

/// The walk behind all kernels, over appearances that lie within records f..l. Inlined into each
/// of them, so that a kernel which gives few of the results back does not pay for the others.
class Parcours {
 public:
    [[gnu::always_inline]] Parcours(std::span<const Occurrence> liste, int f, int l) : p_(f) {
        if (liste.empty()) {
            suite_ = 0;
            suiteMax_ = 0;
        } else {
            premiere(liste.front(), f);
            for (const Occurrence x : liste.subspan(1)) suivante(x);
        }
        terminer(l);
    }

    [[gnu::always_inline]] ResultatStats resultat(std::size_t sorties, int sommeEcarts) const {
        return {static_cast<std::uint16_t>(sorties),
                mot(ecart_),
                mot(ecartMax_),
                mot(nbEcartMax_),
                mot(posEcartMax_),
                mot(suite_),
                mot(suiteMax_),
                mot(nbSuiteMax_),
                mot(posSuiteMax_),
                mot(ecartPrec_),
                mot(suitePrec_),
                sommeEcarts};
    }

    [[gnu::always_inline]] StatsBreves bref() const {
        return {mot(ecart_), mot(ecartMax_), mot(suite_), mot(suiteMax_)};
    }

 private:
    static std::uint16_t mot(int valeur) { return static_cast<std::uint16_t>(valeur); }

    [[gnu::always_inline]] void premiere(int x, int f) {
        ecartPrec_ = ecartMax_ = x - f;
        p_ = posSuiteMax_ = posEcartMax_ = x + 1;
    }

    [[gnu::always_inline]] void suivante(int x) {
        const int g = x - p_;
        if (g == 0) {
            ++suite_;
        } else {
            ecartPrec_ = g;
            // The first run of length 1 is the one SuiteMax starts with, so each closed one adds
            // to the count on account of the run that begins here, and takes its position.
            retenirSuite(suiteMax_ == 1 ? x + 1 : p_);
            suitePrec_ = suite_;
            suite_ = 1;
            retenirEcart(g, x + 1);
        }
        p_ = x + 1;
    }

    [[gnu::always_inline]] void terminer(int l) {
        ecart_ = l + 1 - p_;
        // Unlike a run closed by an appearance, one of length 1 leaves the maximum alone here: it
        // was counted when it began.
        if (suite_ > 1) retenirSuite(p_);
        if (ecart_ == 0) return;
        suitePrec_ = suite_;
        suite_ = 0;
        retenirEcart(ecart_, p_);
    }

    [[gnu::always_inline]] void retenirSuite(int positionEgale) {
        if (suite_ > suiteMax_) {
            suiteMax_ = suite_;
            nbSuiteMax_ = 1;
            posSuiteMax_ = p_;
        } else if (suite_ == suiteMax_) {
            ++nbSuiteMax_;
            posSuiteMax_ = positionEgale;
        }
    }

    [[gnu::always_inline]] void retenirEcart(int g, int position) {
        if (g > ecartMax_) {
            ecartMax_ = g;
            nbEcartMax_ = 1;
            posEcartMax_ = position;
        } else if (g == ecartMax_) {
            ++nbEcartMax_;
            posEcartMax_ = position;
        }
    }

    int p_;  // record just after the last appearance seen
    int ecart_ = 0;
    int ecartMax_ = 0;
    int nbEcartMax_ = 1;
    int posEcartMax_ = 0;
    int suite_ = 1;
    int suiteMax_ = 1;
    int nbSuiteMax_ = 1;
    int posSuiteMax_ = 0;
    int ecartPrec_ = 0;
    int suitePrec_ = 0;
};

/// The part of an ascending list that lies within records premier..dernier.
std::span<const Occurrence> Tranche(std::span<const Occurrence> liste, int premier, int dernier) {
    const auto debut = std::lower_bound(liste.begin(), liste.end(), premier);
    return {debut, std::upper_bound(debut, liste.end(), dernier)};
}

}  // namespace

ResultatStats StatsIntervalle(std::span<const Occurrence> liste, int premier, int dernier) {
    const auto tranche = Tranche(liste, premier, dernier);
    // A record without the item lies in exactly one gap.
    const int sommeEcarts = dernier - premier + 1 - static_cast<int>(tranche.size());
    return Parcours(tranche, premier, dernier).resultat(tranche.size(), sommeEcarts);
}

ResultatStats StatsJusqua(std::span<const Occurrence> liste, int dernier) {
    const auto tranche = Tranche(liste, 0, dernier);
    return Parcours(tranche, 0, dernier).resultat(tranche.size(), 0);
}

StatsBreves StatsResume(std::span<const Occurrence> liste, int premier, int dernier) {
    return Parcours(liste, premier - 1, dernier - 1).bref();
}

}  // namespace norvane
