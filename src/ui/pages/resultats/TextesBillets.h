// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is in memory of tickets and free choice, in words.
#pragma once

#include <QString>

#include "atelier/Atelier.h"

namespace norvane::ui {

/// "2 grilles": the count and its noun, plural from two on.
QString compte(std::size_t n, const QString& mot);
/// The receipt: grids and Joker+ numbers, counted, then these numbers on a line if there are any.
QString texteRecu(const Atelier& atelier);
/// The stock, the receipt with its date and its Joker+ numbers, the free choice: a line each.
QString texteMemoire(const Atelier& atelier);

}  // namespace norvane::ui
