// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is told of a list in words.
#pragma once

#include <optional>
#include <QString>

#include "lists/Liste.h"

namespace norvane::ui {

/// "Premier rang stocké" and the like.
QString libelleStockage(ModeStockage mode);

/// Size, count, ranks stored and sort of a list that is not empty, one a line.
QString detailsListe(const Liste& liste);

/// The computing time, empty for none.
QString texteTemps(const std::optional<double>& secondes);

}  // namespace norvane::ui
