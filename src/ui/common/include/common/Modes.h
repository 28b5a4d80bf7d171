// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The modes of the program.
#pragma once

#include <QString>

namespace norvane::ui {

/// Plain flags; not exclusive by construction, see libelleMode for their precedence.
struct Modes {
    bool ModeNormal = true;         ///< nothing being entered
    bool ModeConsultation = false;  ///< stored tickets are being checked against draws
    bool ModeSelection = false;     ///< tickets are being entered
    bool ModeMiseAJour = false;     ///< the base is being edited
    bool ModeRecu = false;          ///< the entry in progress is a "Reçu de Jeu"
    bool AucunTirageChoisi = true;  ///< the date chosen is no record of the base
    bool AjoutEnfonce = false;      ///< the add button of the editing mode is held down
};

/// Text of the mode label.
QString libelleMode(const Modes& modes);

}  // namespace norvane::ui
