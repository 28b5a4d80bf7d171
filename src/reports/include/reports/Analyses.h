// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The analyses: a long report on the numbers of an interval of draws.
#pragma once

#include <span>

#include "base/Tirage.h"
#include "reports/Document.h"

namespace norvane {

/// The report on records TirageInf..TirageSup of `tirages` (zero-based, inclusive; 0 <= TirageInf
/// <= TirageSup < size). Draws are numbered by their place in `tirages`, from 1. Up to ten chapters
/// with an anchor each, and one for each place of a number in the draw ("case1" to "case5") and
/// each number ("numero1" to "numero49").
Document RedigerAnalyses(std::span<const Tirage> tirages, int TirageInf, int TirageSup);

}  // namespace norvane
