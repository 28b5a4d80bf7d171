// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is told of a number or a Chance that was clicked on.
#pragma once

#include <string>

#include "graphs/Graphe.h"
#include "stats/Noyau.h"

namespace norvane {

/// The kernel's results over draws inf..sup (one-based, inclusive).
ResultatStats StatsElement(const Occurrences& occ, const Element& element, int inf, int sup);

/// Eight lines: the name, then one value each. A maximum is followed by the first and the last
/// draw of its latest stretch, unless it is 0.
std::string TexteElement(const Element& element, const ResultatStats& stats, int sup);

/// The same values in four lines, for narrow places.
std::string TexteElementCourt(const Element& element, const ResultatStats& stats, int sup);

}  // namespace norvane
