// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Modes.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

QString libelleMode(const Modes& modes) {
    if (modes.ModeConsultation) return u"Mode Consultation"_s;
    if (modes.ModeNormal) return u"Mode Normal"_s;
    if (modes.ModeMiseAJour) {
        return modes.AjoutEnfonce ? u"Mode Ajout Libre"_s : u"Mode Mise à jour"_s;
    }
    return u"Mode Sélection"_s;
}

}  // namespace norvane::ui
