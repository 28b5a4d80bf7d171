// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A sink that keeps everything, for whoever looks at the results after the end of the worker.
#pragma once

#include <vector>

#include "comb/Puits.h"

namespace norvane {

class Collecte : public PuitsProgres {
 public:
    std::vector<Mot> mots;  ///< the records, allocated exactly to size where it is told beforehand
    std::vector<Combinaison> lignes;

    void AddLine(std::span<const Combinaison> nouvelles) override {
        lignes.insert(lignes.end(), nouvelles.begin(), nouvelles.end());
    }
    void AddRecord(std::span<const Mot> nouveaux) override {
        mots.insert(mots.end(), nouveaux.begin(), nouveaux.end());
    }
    void Reserver(std::size_t n) override { mots.reserve(n); }
};

}  // namespace norvane
