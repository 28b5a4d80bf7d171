// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The columns of the statistics tables.
#pragma once

#include <vector>

#include "stats/TableauStats.h"
#include "widgets/ModeleTableau.h"

namespace norvane::ui {

/// The ten columns of the pages "Numéros" and "Chances".
std::vector<ColonneTableau> ColonnesStats(GenreStats genre);

/// The eight columns of the table of couples.
std::vector<ColonneTableau> ColonnesCouples();

/// Gradients of the fixed columns: index 0 for an item absent from the draw of the upper bound,
/// 1 for one present.
std::vector<DegradeCellule> DegradesStats(GenreStats genre);

/// The red ball that stands for a Chance, at any size.
QIcon ImageChance();

}  // namespace norvane::ui
