// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <random>

#include "BasesEssai.h"
#include "OracleStats.h"
#include "stats/Occurrences.h"

namespace norvane {
namespace {

/// The list that a scan of the presences gives, within a range.
ListeOccurrences Attendue(const Presences& presences, Plage plage) {
    ListeOccurrences liste;
    for (int i = plage.premier; i <= plage.dernier; ++i)
        if (presences[static_cast<std::size_t>(i)]) liste.push_back(static_cast<Occurrence>(i));
    return liste;
}

template <std::size_t N, typename PresencesDe>
void VerifierListes(const Base& base, Plage plage, const std::array<std::int16_t, N>& sorties,
                    const std::array<ListeOccurrences, N>& listes, PresencesDe presencesDe) {
    for (std::size_t k = 0; k < N; ++k) {
        SCOPED_TRACE(k + 1);
        const auto attendue = Attendue(presencesDe(base, static_cast<int>(k) + 1), plage);
        EXPECT_EQ(listes[k], attendue);
        EXPECT_EQ(static_cast<std::size_t>(sorties[k]), attendue.size());
        EXPECT_EQ(listes[k].capacity(), attendue.size());
    }
}

void VerifierTout(const Base& base, const Occurrences& occ, Plage plageChances) {
    VerifierListes(base, PlageBase(base), occ.SortiesNumeros, occ.ListeNumeros, PresencesNumero);
    VerifierListes(base, plageChances, occ.SortiesChances, occ.ListeChances, PresencesChance);
    VerifierListes(base, PlageIntervalle(occ.IntervalleInf, occ.IntervalleSup),
                   occ.SortiesIntervalle, occ.ListeIntervalle, PresencesNumero);
}

TEST(Occurrences, BuiltKeptAndRebuiltWithTheBase) {
    std::mt19937 hasard(7);
    for (int n = 1; n <= 12; ++n) {
        SCOPED_TRACE(n);
        Base base = BaseAleatoire(hasard, n, 8);
        Occurrences occ;
        ConstruireOccurrences(base, occ);
        VerifierTout(base, occ, PlageBase(base));
        ChangerIntervalle(base, occ, (n + 1) / 2, n);
        VerifierTout(base, occ, PlageBase(base));
        InsererTirage(base, n / 2, Tirage{{2, 4, 6, 8, 49}, 10, 0, 2023001, 20230101, 1, 0}, {});
        RecalculBase(base, occ);
        VerifierTout(base, occ, PlageBase(base));
        EXPECT_EQ(occ.IntervalleInf, 1);
        EXPECT_EQ(occ.IntervalleSup, n + 1);
        EXPECT_EQ(occ.PositionNumero.size(), static_cast<std::size_t>(n + 1));
    }
}

// The old records carry a Chance here, as no real one does, to tell the ranges apart.
TEST(Occurrences, ChancesOfTheOldRecordsFollowTheFlag) {
    std::mt19937 hasard(11);
    Base base = BaseAleatoire(hasard, 40, 49);
    base.NbAnciensTirages = 25;
    const Plage tout = PlageBase(base);
    const Plage nouveaux = PlageNouveaux(base, tout);
    EXPECT_EQ(nouveaux.premier, 25);
    EXPECT_EQ(PlageNouveaux(base, PlageIntervalle(31, 40)).premier, 30);
    for (const bool anciens : {false, true}) {
        base.AnciensTirages = anciens;
        Occurrences occ;
        ConstruireOccurrences(base, occ);
        VerifierTout(base, occ, tout);
        RecalculBase(base, occ);
        VerifierTout(base, occ, anciens ? tout : nouveaux);
    }
}

TEST(Occurrences, PresenceTables) {
    Occurrences occ;
    ConstruireOccurrences(QuatreTirages(), occ);
    ASSERT_EQ(occ.PositionNumero.size(), 4U);
    const auto& position = occ.PositionNumero[3];  // 1 7 20 33 41
    const std::pair<std::size_t, int> places[] = {{1, 0}, {7, 1}, {20, 2}, {33, 3}, {41, 4}};
    for (const auto& [numero, place] : places) EXPECT_EQ(position[numero - 1], place);
    EXPECT_EQ(std::count(position.begin(), position.end(), -1), 44);

    const std::size_t marquees[] = {1, 1, 3, 1};  // chance 1 where there is none
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(occ.PositionChance[i][marquees[i] - 1], 5);
        EXPECT_EQ(std::count(occ.PositionChance[i].begin(), occ.PositionChance[i].end(), -1), 9);
    }
}

}  // namespace
}  // namespace norvane
