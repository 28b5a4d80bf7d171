// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "tickets/Rangs.h"

namespace norvane {
namespace {

using Chiffres = std::array<int, 7>;
/// Digits left and right, tolerances left and right, euros left and right.
using Champs = std::array<double, 6>;

/// Equal digits from the left: none let pass, and one let pass if it is near.
std::pair<int, int> Prefixes(const Chiffres& joue, const Chiffres& tire) {
    const auto egaux = [&](std::ptrdiff_t de) {
        return std::mismatch(joue.begin() + de, joue.end(), tire.begin() + de).first - joue.begin();
    };
    const auto n = egaux(0);
    if (n == 7) return {7, 7};
    const int ecart =
        std::abs(joue[static_cast<std::size_t>(n)] - tire[static_cast<std::size_t>(n)]);
    return {n, ecart == 1 || ecart == 9 ? egaux(n + 1) : n};
}

Champs Attendu(const LigneJoker& ligne, const Chiffres& tire) {
    Chiffres j = ligne.chiffres, t = tire;
    auto [exactG, g] = Prefixes(j, t);
    std::reverse(j.begin(), j.end()), std::reverse(t.begin(), t.end());
    auto [exactD, d] = Prefixes(j, t);
    const bool option = ligne.code > 2, deux = g > exactG && d > exactD;
    if (!option || (deux && g < d)) g = exactG;
    if (!option || (deux && g != exactG)) d = exactD;
    const auto gain = [&](int exact, int n) {
        constexpr double simple[] = {0, 1, 5, 50, 500, 2500, 25000, 250000};
        constexpr double tolere[] = {0, 1, 1.5, 6, 60, 600, 3000, 30000};
        return (ligne.code % 2 == 1 ? 1 : 2) * (n > exact ? tolere : simple)[n];
    };
    return {1.0 * g,
            1.0 * d,
            g > exactG ? exactG : -1.0,
            d > exactD ? 6.0 - exactD : -1.0,
            gain(exactG, g),
            g < 7 ? gain(exactD, d) : 0};
}

void Verifier(const Chiffres& joue, const Chiffres& tire) {
    for (int code = 1; code <= 4; ++code) {
        const ResultatJoker r = GainJokerLigne({joue, code}, tire);
        const Champs obtenu = {1.0 * r.gauche,          1.0 * r.droite, 1.0 * r.toleranceGauche,
                               1.0 * r.toleranceDroite, r.gainGauche,   r.gainDroite};
        ASSERT_EQ(obtenu, Attendu({joue, code}, tire)) << testing::PrintToString(joue) << code;
    }
}

// 0 and 9 are near each other, 5 is far from both.
TEST(Joker, AllPairsOfASmallAlphabetAndRandomOnes) {
    for (int a = 0; a < 128; ++a)
        for (int b = 0; b < 2187; ++b) {
            Chiffres joue, tire;
            for (int i = 0, reste = b; i < 7; ++i, reste /= 3) {
                joue[static_cast<std::size_t>(i)] = 9 * (a >> i & 1);
                tire[static_cast<std::size_t>(i)] = "\0\x9\x5"[reste % 3];
            }
            ASSERT_NO_FATAL_FAILURE(Verifier(joue, tire));
        }
    std::mt19937 alea(7389164);
    for (int essai = 0; essai < 100000; ++essai) {
        Chiffres joue, tire;
        for (std::size_t i = 0; i < 7; ++i) {
            joue[i] = static_cast<int>(alea() % 10);
            tire[i] = (joue[i] + std::array{0, 0, 0, 0, 1, 9, 1, 9, 5, 3}[alea() % 10]) % 10;
        }
        ASSERT_NO_FATAL_FAILURE(Verifier(joue, tire));
        EXPECT_EQ(GainJokerLigne({joue, 4}, ChiffresJoker(JokerAbsent)).gain(), 0);
    }
}

TEST(Joker, Price) {
    for (const auto& [code, prix] : {std::pair{1, 1}, {2, 2}, {3, 2}, {4, 4}})
        EXPECT_EQ(PrixJoker(code), prix);
}

TEST(Montants, ConvertedInWholeTenThousandths) {
    std::mt19937_64 alea(655957);
    for (int essai = 0; essai < 20000; ++essai) {
        const auto euros = static_cast<std::int64_t>(alea() >> (20 + alea() % 40));
        const Conversion c = Convertir(static_cast<double>(euros) / 10000.0, 6.55957);
        ASSERT_EQ(c.euros, euros);
        ASSERT_EQ(c.francs, euros / 100000 * 655957 + (euros % 100000 * 655957 + 50000) / 100000);
    }
    EXPECT_EQ(Convertir(-2.5, 6.55957).francs, -163989);
    EXPECT_EQ(Convertir(0.1 + 0.2, 6.55957).euros, 3000);
    for (const double fou : {1e300, -1e300, HUGE_VAL, std::nan("")}) {
        const Conversion c = Convertir(fou, 6.55957);
        EXPECT_TRUE(std::isnan(fou) ? c.euros == 0 : std::signbit(fou) == (c.francs < 0)) << fou;
    }
}

TEST(Montants, Texts) {
    EXPECT_EQ(LibelleMontant(1234.5, "€", 6.55957, true), "1\u00A0234,50 Euros (8\u00A0097,79 F)");
    EXPECT_EQ(LibelleMontant(0, "CHF", 2, false), "0,00 CHF");
    EXPECT_EQ(LibelleMonnaie("€", true), " Euro");
    EXPECT_EQ(LibelleMonnaie("$", true), " $");
}

}  // namespace
}  // namespace norvane
