// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The columns of the statistics tables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "stats/TableauStats.h"
#include "widgets/ModeleTableau.h"

namespace norvane::ui {

class VueTableau;
struct ContenuBulle;

/// The ten columns of the pages "Numéros" and "Chances".
std::vector<ColonneTableau> ColonnesStats(GenreStats genre);

/// The eight columns of the table of couples.
std::vector<ColonneTableau> ColonnesCouples();

/// The eight columns of the table of a combination.
std::vector<ColonneTableau> ColonnesCombinaison();

/// A ratio as its text, or as a bar of 0..BarreMax that says its text to a screen reader.
CelluleTableau CelluleRatio(const std::string& precis, int graphique, bool barre);
/// The balloon over a ratio drawn as a bar; nothing over other cells.
ContenuBulle BulleRatio(const VueTableau& table, const QModelIndex& index, int colonneRatio);

/// The draw that a cell "12  (02 0045)" leads to over an interval that starts at draw `inf`; 0 when
/// it leads nowhere.
int TirageMaximum(std::string_view cellule, int inf);

/// Gradients of the fixed columns: index 0 for an item absent from the draw of the upper bound,
/// 1 for one present.
std::vector<DegradeCellule> DegradesStats(GenreStats genre);

/// The red ball that stands for a Chance, at any size.
QIcon ImageChance();

}  // namespace norvane::ui
