// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Enregistrement.h"

namespace norvane {

int Disposition::blocs() const {
    switch (mode) {
        case ModeStockage::PremierRang:
            return 1;
        case ModeStockage::RangsDeGain:
            return std::popcount(RangsDeGain(taille, gains) | 1U << BonsPremierRang(taille));
        case ModeStockage::TousLesRangs:
            return taille + 1;
    }
    return 1;
}

int Disposition::premierRang() const {
    switch (mode) {
        case ModeStockage::PremierRang:
            return 0;
        case ModeStockage::RangsDeGain:
            return MotsParBloc * (blocs() - 1);
        case ModeStockage::TousLesRangs:
            return MotsParBloc * BonsPremierRang(taille);
    }
    return 0;
}

}  // namespace norvane
