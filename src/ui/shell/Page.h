// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every page is given, and what it can ask of the main form.
#pragma once

#include <cmath>
#include <QString>
#include <QWidget>
#include <string>

#include "atelier/Atelier.h"
#include "services/Services.h"
#include "shell/Modes.h"
#include "stats/TableauStats.h"

namespace norvane::ui {

struct Contexte {
    Atelier& atelier;
    Services& services;
    Modes& modes;
    double Echelle = 1.0;         ///< screen height / 600: factor of every size set in pixels
    double EchelleLargeur = 1.0;  ///< screen width / 800
    // Draws chosen on the page "Numéros", one-based; the whole base until that page stands.
    int StatsInf = 1;
    int StatsSup = 0;

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

/// In place of a number or a Chance: none of them.
inline constexpr int AucunElement = 0;

/// One of the ten pages. Pages do not know each other: they ask the form through these signals.
class Page : public QWidget {
    Q_OBJECT

 public:
    Page(Contexte& ctx, QWidget* parent) : QWidget(parent), contexte(ctx) {}

    /// The base in memory is another one: limits, tables and labels follow.
    virtual void surBaseChangee() {}
    /// The page is being left: balloons go.
    virtual void surDepart() {}

 Q_SIGNALS:
    /// Leave consultation and free choice, open "Résultats" on draw `numero` (one-based) and
    /// press the button of `element` if it is up (AucunElement: none).
    void tirageDemande(int numero, norvane::GenreStats genre, int element);
    /// Open "Historiques" on an item that came out, over draws inf..sup (one-based).
    void historiqueDemande(norvane::GenreStats genre, int element, int inf, int sup);
    /// A mode flag changed: the form rewrites the label and lets it blink.
    void modeChange();
    /// A worker of the page is through and no longer counts: the form goes back to rest.
    void traitementTermine();
    /// Text of long work for the first panel of the status bar.
    void texteEtat(const QString& texte);

 protected:
    Contexte& contexte;
};

}  // namespace norvane::ui
