// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Random walks through the entry of tickets.
#include <random>
#include <set>

#include "EssaiBillets.h"

namespace norvane {
namespace {

/// What must hold whatever was done. `sauvees`: the lists that a file holds.
void VerifierInvariants(const Essai& e, const std::set<std::string>& sauvees) {
    const SaisieBillets& s = e.saisie;
    const Billets& b = e.billets;
    const auto aucuneVide = [](const std::vector<Grille>& liste) {
        return std::none_of(liste.begin(), liste.end(), [](auto& g) { return g.vide(); });
    };
    ASSERT_LE(s.nombre(), NbGrillesMax);
    ASSERT_LE(b.ListeChoix.size(), std::size_t{NbGrillesMax});
    ASSERT_TRUE(aucuneVide(b.ListeChoix) && aucuneVide(b.ListeRecu));
    ASSERT_TRUE(s.surPlanche() || aucuneVide(b.ListeGrilles));
    ASSERT_NE(TableMises(s.grilleEnMain().n(), s.grilleEnMain().c()), MiseInjouable);
    if (s.surPlanche() || s.enConsultation()) {
        ASSERT_EQ(s.grille() == 0, b.ListeGrilles.empty());
        ASSERT_LE(s.grille(), s.nombre());
    } else {
        ASSERT_TRUE(s.grilleEnMain().vide());
    }
    if (s.enConsultation()) {
        ASSERT_TRUE(ListesEgales(b.ListeGrilles, s.ModeGrilles() ? b.ListeChoix : b.ListeRecu));
        ASSERT_TRUE(s.grille() == 0 ||
                    s.grilleEnMain() == b.ListeGrilles[static_cast<std::size_t>(s.grille() - 1)]);
    }
    ASSERT_TRUE(!b.aSauver || !b.ListeChoix.empty());
    ASSERT_TRUE(b.aSauver || s.surPlanche() || b.ListeChoix.empty() ||
                sauvees.contains(TexteGrilles(b.ListeChoix)));
    const auto secours = s.grillesSecours();
    ASSERT_TRUE(aucuneVide(secours));
    // Whatever no file holds is in it, the stock first.
    const auto stock = b.aSauver ? b.ListeChoix : std::vector<Grille>{};
    ASSERT_TRUE(std::ssize(secours) == NbGrillesMax ||
                std::equal(stock.begin(), stock.end(), secours.begin(),
                           secours.begin() + std::min(std::ssize(stock), std::ssize(secours))));
}

TEST(SaisieBillets, ParcoursAuHasardSousInvariants) {
    constexpr std::string_view gestes = "EEEttttttnnnccccxodddaaaaahhsspSQffkjvVCCClbwgrJ";
    for (unsigned graine = 1; graine <= 12; ++graine) {
        std::mt19937 alea(graine);
        Essai e;
        std::set<std::string> sauvees;
        std::string histoire;
        if (graine % 6 == 0) {  // close to the capacity
            e.billets.ListeChoix.assign(NbGrillesMax - 4, Ticket(1));
            e.billets.aSauver = true;
        }
        for (int pas = 0; pas < (graine % 6 == 0 ? 60 : 800); ++pas) {
            const char geste = gestes[alea() % gestes.size()];
            int n = static_cast<int>(alea() % 10) + 1;
            if (geste == 'E' || geste == 'o' || geste == 'l') n %= 2;
            if (geste == 'v' || geste == 'V' || geste == 'r') n = 20240800 + n % 8;
            if (geste == 'k') n %= 3;
            // The questions before what would be lost are answered: saved first, or let go.
            if ((geste == 'S' && e.saisie.suppressionPerdrait() && n < 6) ||
                (geste == 'w' && !e.saisie.surPlanche())) {
                ASSERT_TRUE(e.saisie.sauver(e.dossier / "a.grl"));
                sauvees.insert(lire(e.dossier / "a.grl"));
            }
            if (geste == 'w') continue;
            histoire += fmt::format(" {}{}", geste, n);
            if (histoire.size() > 400) histoire.erase(0, 200);
            e.faire(geste, n);
            ASSERT_NO_FATAL_FAILURE(VerifierInvariants(e, sauvees)) << graine << histoire;
        }
    }
}

}  // namespace
}  // namespace norvane
