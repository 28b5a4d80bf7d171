// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <random>

#include "base/BaseIntegree.h"
#include "BasesEssai.h"
#include "OracleStats.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"
#include "stats/TableauStats.h"

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

TEST(Noyau, ToutesLesPresencesSurToutIntervalle) {
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

class NoyauBaseIntegree : public testing::TestWithParam<bool> {};

TEST_P(NoyauBaseIntegree, ToutElementSurDesIntervallesAuHasard) {
    const Base base = BaseIntegree(GetParam());
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    std::mt19937 hasard(20240724);
    const auto parcourir = [&](const auto& listes, auto presencesDe) {
        for (std::size_t k = 0; k < listes.size(); ++k) {
            const Presences presences = presencesDe(base, static_cast<int>(k) + 1);
            SCOPED_TRACE(k + 1);
            Comparer(listes[k], presences, 0, base.NbTirages - 1);
            for (int essai = 0; essai < 40; ++essai) {
                int f = std::uniform_int_distribution(0, base.NbTirages - 1)(hasard);
                // Half of the intervals are short, where the item is absent or everywhere.
                const int portee = essai % 2 == 0 ? 12 : base.NbTirages;
                const int l = std::uniform_int_distribution(
                    f, std::min(f + portee, base.NbTirages) - 1)(hasard);
                SCOPED_TRACE(testing::Message() << f << ".." << l);
                Comparer(listes[k], presences, f, l);
                if (testing::Test::HasFatalFailure()) return;
            }
        }
    };
    parcourir(occ.ListeNumeros, PresencesNumero);
    parcourir(occ.ListeChances, PresencesChance);
}

INSTANTIATE_TEST_SUITE_P(Bases, NoyauBaseIntegree, testing::Bool());

// Worked by hand, so that the oracle itself stands on something.
TEST(Noyau, ResultatsConnus) {
    const ListeOccurrences liste = {2, 3, 7, 9, 10};  // ..11...1.11.
    EXPECT_EQ(StatsIntervalle(liste, 0, 11), (ResultatStats{5, 1, 3, 1, 8, 0, 2, 2, 11, 1, 2, 7}));
    EXPECT_EQ(StatsIntervalle(liste, 0, 9), (ResultatStats{4, 0, 3, 1, 8, 1, 2, 1, 4, 1, 1, 6}));
    EXPECT_EQ(StatsIntervalle(liste, 4, 6), (ResultatStats{0, 3, 3, 1, 4, 0, 0, 1, 0, 0, 0, 3}));
    EXPECT_EQ(StatsIntervalle(liste, 9, 10), (ResultatStats{2, 0, 0, 1, 10, 2, 2, 1, 11, 0, 0, 0}));
    EXPECT_EQ(StatsJusqua({}, 4), (ResultatStats{0, 5, 5, 1, 0, 0, 0, 1, 0, 0, 0, 0}));
}

/// The list that a scan of the presences gives, within a range.
ListeOccurrences Attendue(const Presences& presences, Plage plage) {
    ListeOccurrences liste;
    for (int i = plage.premier; i <= plage.dernier; ++i)
        if (presences[static_cast<std::size_t>(i)]) liste.push_back(static_cast<Occurrence>(i));
    return liste;
}

template <std::size_t N, typename PresencesDe>
void VerifierListes(const Base& base, Plage plage, const Sorties<N>& sorties,
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

TEST(Occurrences, ConstruitesGardeesEtRefaites) {
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

// As many records as a base may have, all with the same numbers.
TEST(Occurrences, NumbersThatComeOutInEachRecordOfAFullBase) {
    const Base base = FaireBase(std::vector<Tirage>(
        NbTiragesMax, Tirage{{3, 7, 20, 33, 41}, 2, 0, 2023001, 20230101, 1, 0}));
    Occurrences occ;
    ConstruireOccurrences(base, occ);
    EXPECT_EQ(occ.SortiesNumeros[6], NbTiragesMax);
    EXPECT_EQ(occ.SortiesChances[1], NbTiragesMax);
    EXPECT_EQ(occ.SortiesIntervalle[40], NbTiragesMax);
    const int dernier = NbTiragesMax - 1;
    const std::array<int, 12> partout = {NbTiragesMax, 0, 0, 1, 1, NbTiragesMax, NbTiragesMax, 1,
                                         NbTiragesMax, 0, 0, 0};
    EXPECT_EQ(Valeurs(StatsIntervalle(occ.ListeNumeros[6], 0, dernier)), partout);
    EXPECT_EQ(Valeurs(StatsJusqua(occ.ListeChances[1], dernier)), partout);
    const LigneStats ligne = RemplirStats(GenreStats::Numeros, base, occ, 0, dernier)[6];
    EXPECT_EQ(ligne.cellules[static_cast<std::size_t>(ColonneStats::NbS)].texte, "65534");
}

// The old records carry a Chance here, as no real one does, to tell the ranges apart.
TEST(Occurrences, LesChancesAnciennesSuiventLeDrapeau) {
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

}  // namespace
}  // namespace norvane
