// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The picture behind a report, one for each set of styles.
#pragma once

#include <QPixmap>

#include "reports/DocumentStyles.h"

namespace norvane::ui {

/// One tile of it, drawn for that scale; faint enough to read on.
QPixmap fondEcran(JeuStyles jeu, double echelle);

}  // namespace norvane::ui
