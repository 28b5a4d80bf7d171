// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The companion run in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "base/TableCsv.h"
#include "BasesEssai.h"
#include "cli/Executer.h"
#include "Dossier.h"

namespace norvane {

using Args = std::vector<std::string>;

struct Sortie {
    int statut;
    std::string out, err;
};

/// A folder with the four records in quatre.csv, and the program run in it.
class Cli : public testing::Test {
 protected:
    Cli() {
        std::ostringstream csv;
        EcrireTableCsv(csv, QuatreTirages(), 0, 3);
        poser(dossier / "quatre.csv", csv.str());
    }

    /// The words of one line, between blanks.
    Sortie lancer(const std::string& ligne) const {
        std::istringstream mots(ligne);
        return lancer(Args{std::istream_iterator<std::string>(mots), {}});
    }
    Sortie lancer(const Args& args) const {
        std::ostringstream out, err;
        const int statut = Executer(args, out, err, dossier.chemin());
        return {statut, out.str(), err.str()};
    }

    /// Refus with one line that says `dit`, and nothing printed.
    template <typename Commande>
    void refuse(const Commande& commande, const char* dit) const {
        const Sortie sortie = lancer(commande);
        EXPECT_EQ(sortie.statut, StatutRefus) << dit;
        EXPECT_EQ(sortie.out, "");
        EXPECT_NE(sortie.err.find(dit), std::string::npos) << sortie.err;
        EXPECT_EQ(std::count(sortie.err.begin(), sortie.err.end(), '\n'), 1) << sortie.err;
    }

    Dossier dossier;
};

inline std::string Lignes(const std::string& texte, int premiere, int derniere) {
    std::istringstream flux(texte);
    std::string lignes, ligne;
    for (int i = 0; std::getline(flux, ligne); ++i)
        if (i >= premiere && i <= derniere) lignes += ligne + '\n';
    return lignes;
}

}  // namespace norvane
