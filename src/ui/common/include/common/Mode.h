// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The mode of the program, as the state of tickets and base makes it.
#pragma once

#include <QString>

#include "atelier/Atelier.h"

namespace norvane::ui {

enum class Mode { Consultation, Normal, AjoutLibre, MiseAJour, Selection };

Mode modeEnCours(const Atelier& atelier);
/// Text of the mode label.
QString libelleMode(Mode mode);

}  // namespace norvane::ui
