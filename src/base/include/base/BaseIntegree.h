// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The draws that are part of the program, made from data/tirages.csv when it is built.
#pragma once

#include "base/Base.h"

namespace norvane {

/// The built-in base, complete without reading any file. The present game's draws alone
/// (NbAnciensTirages 0), or with `globale` those of the old game in front of them
/// (AnciensTirages set, NbAnciensTirages their count).
Base BaseIntegree(bool globale);

}  // namespace norvane
