// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The ranks of one record by a walk over the draws with the table of distances: no draw before the
// next one can hold as many numbers as the lowest rank asked for.
#pragma once

#include <algorithm>
#include <vector>

#include "comb/Distances.h"
#include "comb/Enregistrement.h"

namespace norvane {

class MarcheParDistances {
 public:
    /// Writes all blocks, or all but that of the first rank. Draws inf..sup, one-based.
    MarcheParDistances(const TableDistances& table, Disposition d, int inf, int sup, bool premier)
        : table_(table), d_(d), inf_(inf), sup_(sup), rangs_(d.rangs()) {
        if (!premier) rangs_ &= ~(1U << BonsPremierRang(d.taille));
    }

    void ecrire(std::span<Mot> enregistrement) {
        const auto numeros = enregistrement.subspan(static_cast<std::size_t>(d_.numeros()));
        blocs_.assign(static_cast<std::size_t>(d_.taille) + 1, {});
        const int minimum = std::countr_zero(rangs_);
        for (int d = inf_ - 1; d < sup_;) {
            int bons = 0;
            distances_.clear();
            for (const Mot n : numeros) {
                const int v = table_.DistanceTirage[static_cast<std::size_t>(d)]
                                                   [static_cast<std::size_t>(n - 1)];
                bons += v > 0;
                distances_.push_back(std::abs(v));
            }
            if ((rangs_ >> bons & 1) != 0) blocs_[static_cast<std::size_t>(bons)].compter(d, inf_);
            if (minimum == 0) {
                ++d;
                continue;
            }
            const auto place = distances_.begin() + std::min(minimum, d_.taille) - 1;
            std::nth_element(distances_.begin(), place, distances_.end());
            d += *place;
        }
        for (int k = 0; k <= d_.taille; ++k) {
            if ((rangs_ >> k & 1) == 0) continue;
            Bloc& b = blocs_[static_cast<std::size_t>(k)];
            b.finir(inf_, sup_);
            const int mots[] = {b.NbFois, b.Ecart, b.EcartMax, b.Suite, b.SuiteMax};
            std::ranges::transform(mots, enregistrement.begin() + d_.bloc(k),
                                   [](int mot) { return static_cast<Mot>(mot); });
        }
    }

 private:
    struct Bloc {
        int NbFois = 0, Ecart = -1, EcartMax = 0, Suite = 0, SuiteMax = 0;

        void compter(int d, int inf) {  // Ecart: the last draw seen
            if (Ecart >= 0) {
                const int g = d - (Ecart + 1);
                if (g != 0) {
                    SuiteMax = std::max(SuiteMax, Suite);
                    Suite = 1;
                    EcartMax = std::max(EcartMax, g);
                } else {
                    ++Suite;
                }
            } else {
                EcartMax = d + 1 - inf;
                Suite = SuiteMax = 1;
            }
            Ecart = d;
            ++NbFois;
        }
        void finir(int inf, int sup) {
            const int g = Ecart >= 0 ? sup - (Ecart + 1) : sup - (inf - 1);
            SuiteMax = std::max(SuiteMax, Suite);
            if (g != 0) {
                Suite = 0;
                EcartMax = std::max(EcartMax, g);
            }
            Ecart = g;
        }
    };

    const TableDistances& table_;
    const Disposition d_;
    const int inf_, sup_;
    unsigned rangs_;
    std::vector<int> distances_;
    std::vector<Bloc> blocs_;
};

}  // namespace norvane
