// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The look of the program: Fusion with our own palette, light or dark, and the colours that have
// a meaning of their own.
#pragma once

#include <QColor>
#include <QPalette>
#include <string>

class QApplication;

namespace norvane::ui {

enum class Apparence { Auto, Claire, Sombre };

/// Makes the pictures that are part of the program known; they stand in a library of ours, which a
/// linker would otherwise leave out.
void chargerRessources();

/// Sets style, palette, fonts and style sheet of the whole application. `Auto` follows the desktop.
void appliquerTheme(QApplication& app, Apparence apparence);

/// The look that a word of the configuration names: claire, sombre, and auto for any other.
Apparence apparenceDe(const std::string& cle);

/// True when a palette is a dark one.
bool estSombre(const QPalette& palette);

/// One spacing unit, in pixels: margins and gaps are multiples of it.
inline constexpr int Unite = 6;

// Colours given by their meaning, the same in light and dark.
inline constexpr QRgb CouleurNumeroAllume = qRgb(0x7D, 0x7D, 0xFF);   ///< fill of a lit number
inline constexpr QRgb CouleurChanceAllumee = qRgb(0xFF, 0x09, 0x09);  ///< fill of a lit Chance
inline constexpr QRgb CouleurTexteAllume = qRgb(0xFF, 0xFF, 0x00);    ///< font of a lit button
inline constexpr QRgb CouleurBoutonNeutre = qRgb(0xDF, 0xDF, 0xDF);   ///< fill of a button not lit
inline constexpr QRgb CouleurNumeroCommun = qRgb(0x80, 0x00, 0x00);
inline constexpr QRgb CouleurChanceCommune = qRgb(0x00, 0x00, 0xFF);
inline constexpr QRgb CouleurLigneSup = qRgb(0x00, 0x00, 0xFF);  ///< a line at the upper bound
inline constexpr QRgb CouleurLigneInf = qRgb(0x00, 0x80, 0x00);  ///< a line at the lower bound
inline constexpr QRgb CouleurLigneChoisie =
    qRgb(0x00, 0xFF, 0xFF);  ///< ground of the line selected

/// Colours that follow the palette on show.
struct Teintes {
    QColor bordure;       ///< hairlines of panels and tables
    QColor carte;         ///< surface of a panel that stands on the window
    QColor discret;       ///< secondary text, readable on window and card
    QColor accent;        ///< the one accent colour
    QColor alerte;        ///< colour of the blinking mode label
    QColor numeroCommun;  ///< CouleurNumeroCommun, lightened on dark so that it can be read
    QColor chanceCommune;
    QColor ligneSup;  ///< CouleurLigneSup, lightened on dark
    QColor ligneInf;
    QColor fondFerme;                             ///< ground of an edit that cannot be written in
    QColor barreBasse, barreMoyenne, barreHaute;  ///< levels of a bar in a cell
    QColor barreBord;                             ///< its border: navy, lightened on dark
};
Teintes teintes(const QPalette& palette);

}  // namespace norvane::ui
