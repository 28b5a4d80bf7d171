// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every part of the window is given.
#pragma once

#include <cmath>
#include <QString>
#include <QWidget>
#include <string>

#include "atelier/Atelier.h"
#include "common/Relais.h"
#include "common/Services.h"
#include "common/Travaux.h"

namespace norvane::ui {

struct Contexte {
    Atelier& atelier;
    Services& services;
    Travaux& travaux;
    Relais& relais;
    double Echelle = 1.0;         ///< screen height / 600: factor of every size set in pixels
    double EchelleLargeur = 1.0;  ///< screen width / 800

    /// A length of the 800 x 600 design, in pixels of this screen.
    int px(double longueur) const { return static_cast<int>(std::lround(longueur * Echelle)); }

    /// The busy rule. True when work runs: the user has then been told, and the command must end.
    bool refuserSiOccupe();
};

inline QString versQt(const std::string& texte) {
    return QString::fromStdString(texte);
}

/// Sets a hint "court|long": the short part as tool tip, the long one for the status bar
/// (the whole text serves as both when there is no bar).
void poserIndice(QWidget* cible, const QString& indice);

}  // namespace norvane::ui
