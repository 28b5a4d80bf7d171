// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The files that make room while the base is filtered, and the names they bear meanwhile.
#pragma once

#include "comb/EtatCombinaisons.h"

namespace norvane {

struct Echange {
    const char* enUsage;
    const char* sauvegarde;
};
inline constexpr Echange Echanges[] = {{NomCombCalc, "Combcalc.~in"},
                                       {"comb2.dat", "comb2.~da"},
                                       {"comb3.dat", "comb3.~da"},
                                       {"comb4.dat", "comb4.~da"},
                                       {"comb5.dat", "comb5.~da"}};

}  // namespace norvane
