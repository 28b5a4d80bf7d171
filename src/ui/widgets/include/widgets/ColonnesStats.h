// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The columns of the statistics tables.
#pragma once

#include <vector>

#include "stats/Cellule.h"
#include "widgets/ModeleTableau.h"

namespace norvane::ui {

class VueTableau;
struct ContenuBulle;

/// The ten columns of the pages "Numéros" and "Chances".
std::vector<ColonneTableau> colonnesStats(GenreStats genre);

/// The eight columns of the table of a combination.
std::vector<ColonneTableau> colonnesCombinaison();
/// The same for a ticket of numbers and chances: its first column has room for a Chance behind the
/// count, and the maxima tell dates.
std::vector<ColonneTableau> colonnesCategories();

/// The ratio of a row as its text, or as a bar.
CelluleTableau celluleRatio(const Cellule& ratio, bool barre);
/// The balloon over a ratio drawn as a bar; nothing over other cells.
ContenuBulle bulleRatio(const VueTableau& table, const QModelIndex& index);

/// Gradients of the fixed columns: index 0 for an item absent from the draw of the upper bound,
/// 1 for one present.
std::vector<DegradeCellule> degradesStats(GenreStats genre);

/// The red ball that stands for a Chance, at any size.
QIcon imageChance();

}  // namespace norvane::ui
