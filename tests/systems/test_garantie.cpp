// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The checker against every set counted one by one.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "systems/Garantie.h"

namespace norvane {

namespace {

/// The sets of `taille` numbers of the selection that hold the base, in lexicographic order.
std::vector<Ensemble> Cas(Ensemble selection, Ensemble base, int taille) {
    std::vector<Ensemble> cas;
    const std::vector<int> numeros = selection.valeurs();
    for (Masque choix = 0; choix < Masque{1} << numeros.size(); ++choix) {
        Ensemble e;
        for (std::size_t i = 0; i < numeros.size(); ++i)
            if ((choix >> i & 1) != 0) e.ajouter(numeros[i]);
        if (e.taille() == taille && e.contient(base)) cas.push_back(e);
    }
    std::sort(cas.begin(), cas.end(), [&](Ensemble a, Ensemble b) {
        return a.sans(base).valeurs() < b.sans(base).valeurs();
    });
    return cas;
}

int Meilleur(const std::vector<Ensemble>& grilles, Ensemble cas) {
    int meilleur = 0;
    for (const Ensemble grille : grilles)
        meilleur = std::max(meilleur, grille.commun(cas).taille());
    return meilleur;
}

std::vector<Ensemble> AuHasard(std::mt19937& alea, int nombre, int taille, int max) {
    std::vector<Ensemble> grilles;
    for (int i = 0; i < nombre; ++i) {
        Ensemble grille;
        while (grille.taille() < taille) grille.ajouter(1 + static_cast<int>(alea() % max));
        grilles.push_back(grille);
    }
    return grilles;
}

}  // namespace

TEST(Garantie, ContreLeCompteDeTousLesCas) {
    std::mt19937 alea(11);
    const Ensemble selection{2, 3, 5, 7, 8, 9, 11, 12, 13, 14};
    for (const int nombre : {1, 3, 20, 63, 64, 65, 130})
        for (const int taille : {2, 5, 7}) {
            const auto grilles = AuHasard(alea, nombre, taille, 15);
            for (const TypeGarantie& type : TypesGarantie)
                for (const Ensemble base : {Ensemble{}, Ensemble{7}, Ensemble{3, 14}}) {
                    SCOPED_TRACE(testing::Message() << nombre << " x " << taille << ' '
                                                    << type.legende << ' ' << base.taille());
                    BilanGarantie attendu;
                    for (const Ensemble cas : Cas(selection, base, type.Y)) {
                        ++attendu.cas;
                        if (Meilleur(grilles, cas) >= type.X) continue;
                        if (++attendu.manques <= 7) attendu.exemples.push_back(cas);
                    }
                    const auto bilan =
                        VerifierGarantie(grilles, selection, base, type.X, type.Y, 7);
                    ASSERT_TRUE(bilan);
                    EXPECT_EQ(bilan->cas, attendu.cas);
                    EXPECT_EQ(bilan->manques, attendu.manques);
                    EXPECT_EQ(bilan->exemples, attendu.exemples);
                    EXPECT_EQ(bilan->tenue(), attendu.manques == 0);
                }
        }
}

TEST(Garantie, ChancesContreLeCompteDeTousLesCas) {
    std::mt19937 alea(3);
    for (const int taille : {4, 6, 11}) {
        const Ensemble selection((Masque{1} << taille) - 1);
        const auto grilles = AuHasard(alea, 9, 5, 12);
        const auto table = CompterChances(grilles, selection);
        ASSERT_TRUE(table);
        for (int tires = 2; tires <= 5; ++tires) {
            std::array<std::int64_t, 6> attendu{};
            for (const Ensemble cas : Cas(selection, {}, tires))
                ++attendu[static_cast<std::size_t>(Meilleur(grilles, cas))];
            EXPECT_EQ((*table)[static_cast<std::size_t>(tires - TiresMin)], attendu);
        }
    }
}

TEST(Garantie, RefusEtArret) {
    const std::vector<Ensemble> grille = {Ensemble{1, 2, 3, 4, 5}};
    const Ensemble sept{1, 2, 3, 4, 5, 6, 7};
    EXPECT_FALSE(VerifierGarantie({}, sept, {}, 2, 3, 1));
    EXPECT_FALSE(CompterChances({}, sept));
    EXPECT_FALSE(VerifierGarantie(grille, Ensemble{1, 2}, {}, 3, 3, 1));
    EXPECT_FALSE(VerifierGarantie(grille, sept, Ensemble{1, 2, 3}, 2, 2, 1));

    Progres progres;
    const Suivi entier{{}, &progres, 2};
    ASSERT_TRUE(VerifierGarantie(grille, sept, {}, 2, 3, 1, entier));
    EXPECT_EQ(progres.fait(), 100);
    std::stop_source source;
    source.request_stop();
    const Suivi arrete{source.get_token(), nullptr, 2};
    const auto bilan =
        VerifierGarantie(grille, Ensemble((Masque{1} << 49) - 1), {}, 4, 5, 1, arrete);
    ASSERT_FALSE(bilan);
    EXPECT_EQ(bilan.erreur(), "Vérification arrêtée.");
    EXPECT_FALSE(CompterChances(grille, sept, arrete));
}

}  // namespace norvane
