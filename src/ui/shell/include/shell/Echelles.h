// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How large things are on this screen.
#pragma once

#include <QRect>
#include <QSize>
#include <QString>

namespace norvane::ui {

/// The factors of the design made for a screen of 800 x 600.
struct Echelles {
    double Echelle;         ///< screen height / 600
    double EchelleLargeur;  ///< screen width / 800

    static Echelles de(QSize ecran);
    /// The window opens maximised on a screen of the design's own proportions.
    bool maximisee() const;
};

/// How the main window opens.
struct Ouverture {
    QRect place;
    bool maximisee;
};

/// The place kept as "x,y,largeur,hauteur", with ",max" behind for a maximised window, when it
/// makes sense on a screen with this available area. Without one: nearly all of the area, or
/// maximised where the screen is small.
Ouverture ouvertureFenetre(const QString& gardee, QRect disponible);

/// The text kept for it.
QString texteGeometrie(const Ouverture& ouverture);

}  // namespace norvane::ui
