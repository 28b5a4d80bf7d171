// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "OracleStats.h"
#include "stats/Noyau.h"

namespace norvane {

static void PrintTo(const ResultatStats& r, std::ostream* os) {
    *os << testing::PrintToString(Valeurs(r));
}

namespace {

/// All kernels against the oracle on one interval.
void Comparer(const ListeOccurrences& liste, const Presences& presences, int f, int l) {
    const ResultatStats attendu = OracleStats(presences, f, l);
    ASSERT_EQ(StatsIntervalle(liste, f, l), attendu);
    if (f == 0) {
        ResultatStats sansSomme = attendu;
        sansSomme.SommeEcarts = 0;
        ASSERT_EQ(StatsJusqua(liste, l), sansSomme);
    }
    ListeOccurrences dedans;
    for (const Occurrence x : liste)
        if (x >= f && x <= l) dedans.push_back(x);
    ASSERT_EQ(StatsResume(dedans, f + 1, l + 1),
              (StatsBreves{attendu.Ecart, attendu.EcartMax, attendu.Suite, attendu.SuiteMax}));
}

TEST(Noyau, EveryPatternOfPresencesOnEveryInterval) {
    constexpr int NbMax = 11;
    for (int n = 1; n <= NbMax; ++n)
        for (int motif = 0; motif < 1 << n; ++motif) {
            Presences presences;
            ListeOccurrences liste;
            for (int i = 0; i < n; ++i) {
                presences.push_back((motif >> i & 1) != 0);
                if (presences.back()) liste.push_back(static_cast<Occurrence>(i));
            }
            for (int f = 0; f < n; ++f)
                for (int l = f; l < n; ++l) {
                    SCOPED_TRACE(testing::Message() << "motif " << motif << ", " << f << ".." << l);
                    Comparer(liste, presences, f, l);
                    if (HasFatalFailure()) return;
                }
        }
}

// Worked by hand, so that the oracle itself stands on something.
TEST(Noyau, KnownResults) {
    const ListeOccurrences liste = {2, 3, 7, 9, 10};  // ..11...1.11.
    EXPECT_EQ(StatsIntervalle(liste, 0, 11), (ResultatStats{5, 1, 3, 1, 8, 0, 2, 2, 11, 1, 2, 7}));
    EXPECT_EQ(StatsIntervalle(liste, 0, 9), (ResultatStats{4, 0, 3, 1, 8, 1, 2, 1, 4, 1, 1, 6}));
    EXPECT_EQ(StatsIntervalle(liste, 4, 6), (ResultatStats{0, 3, 3, 1, 4, 0, 0, 1, 0, 0, 0, 3}));
    EXPECT_EQ(StatsIntervalle(liste, 9, 10), (ResultatStats{2, 0, 0, 1, 10, 2, 2, 1, 11, 0, 0, 0}));
    EXPECT_EQ(StatsJusqua({}, 4), (ResultatStats{0, 5, 5, 1, 0, 0, 0, 1, 0, 0, 0, 0}));
}

}  // namespace
}  // namespace norvane
