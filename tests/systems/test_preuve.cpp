// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Every system of every list holds what its line promises, on a selection that is not 1 to S.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "base/Tirage.h"
#include "systems/Garantie.h"

namespace norvane {

namespace {

class Preuve : public testing::TestWithParam<TypeGarantie> {};

/// The highest numbers, the base numbers in the middle of them.
SelectionSysteme SelectionPour(const SystemeDisponible& s) {
    Ensemble numeros, base;
    for (int i = 0; i < s.Selection; ++i) numeros.ajouter(NumeroMax - i);
    for (int i = 0; i < s.Base; ++i) base.ajouter(NumeroMax - 2 - i);
    return {numeros, base};
}

}  // namespace

TEST_P(Preuve, ChaqueLigneTientSaPromesse) {
    const TypeGarantie& type = GetParam();
    int precedente = 0;
    for (const EntreeCatalogue& entree : CatalogueIntegre(type)) {
        SCOPED_TRACE(entree.ligne);
        const SystemeDisponible& s = entree.systeme;
        const int place = 10 * s.Selection + s.Base;
        EXPECT_LT(precedente, place);
        precedente = place;
        ASSERT_EQ(std::pair(s.GarantieX, s.GarantieY), std::pair(type.X, type.Y));

        const SelectionSysteme selection = SelectionPour(s);
        const auto systeme = GenererSysteme(s, selection);
        ASSERT_TRUE(systeme) << systeme.erreur();
        const auto grilles = GrillesEnsembles(*systeme);
        ASSERT_EQ(grilles.size(), static_cast<std::size_t>(s.Grilles));
        std::set<Masque> differentes;
        for (const Ensemble grille : grilles) {
            differentes.insert(grille.bits());
            ASSERT_EQ(grille.taille(), NbBoules);
            ASSERT_TRUE(grille.contient(selection.base()));
            ASSERT_TRUE(selection.numeros().contient(grille));
        }
        ASSERT_EQ(differentes.size(), grilles.size());
        const auto bilan =
            VerifierGarantie(grilles, selection.numeros(), selection.base(), type.X, type.Y, 1);
        ASSERT_TRUE(bilan);
        ASSERT_TRUE(bilan->tenue()) << bilan->manques;
    }
}

INSTANTIATE_TEST_SUITE_P(Systemes, Preuve, testing::ValuesIn(TypesGarantie));

}  // namespace norvane
