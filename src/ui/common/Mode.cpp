// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "common/Mode.h"

#include <array>

namespace norvane::ui {

using namespace Qt::StringLiterals;

Mode modeEnCours(const Atelier& atelier) {
    if (atelier.saisie.enConsultation()) return Mode::Consultation;
    if (atelier.edition == Edition::AjoutLibre) return Mode::AjoutLibre;
    if (atelier.edition == Edition::MiseAJour) return Mode::MiseAJour;
    return atelier.saisie.enSelection() ? Mode::Selection : Mode::Normal;
}

QString libelleMode(Mode mode) {
    static constexpr std::array Libelles{u"Mode Consultation", u"Mode Normal", u"Mode Ajout Libre",
                                         u"Mode Mise à jour", u"Mode Sélection"};
    return QString::fromUtf16(Libelles[static_cast<std::size_t>(mode)]);
}

}  // namespace norvane::ui
