// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Enregistrement.h"

namespace norvane {

unsigned Disposition::rangs() const {
    const unsigned premier = 1U << BonsPremierRang(taille);
    switch (mode) {
        case ModeStockage::PremierRang:
            break;
        case ModeStockage::RangsDeGain:
            return RangsDeGain(taille, gains) | premier;
        case ModeStockage::TousLesRangs:
            return (2U << taille) - 1;
    }
    return premier;
}

int Disposition::bloc(int bons) const {
    return MotsParBloc * std::popcount(rangs() & ((1U << bons) - 1));
}

}  // namespace norvane
