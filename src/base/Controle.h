// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What makes a record acceptable, the same for every file that brings records in.
#pragma once

#include <string>

#include "base/Base.h"

namespace norvane {

/// What is wrong with one record, as the end of a French sentence; empty when it is sound.
/// Prize pairs beyond the four of a 2nd Tirage may hold anything sound: an insertion leaves
/// pairs seven to nine behind. Every draw since DateNouveauLoto but a 2nd Tirage has a Chance; an
/// older one may have been given one by hand.
std::string DefautTirage(const Tirage& tirage, const RapportsTirage& rapports);

/// True when `b` stands after `a`: by date, then by SousTirage.
bool EstApres(const Tirage& a, const Tirage& b);

/// What is wrong with the records in use, naming the first bad draw; empty when all are sound.
std::string DefautBase(const Base& base);

}  // namespace norvane
