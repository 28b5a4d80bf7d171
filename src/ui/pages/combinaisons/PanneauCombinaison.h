// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The statistics of one combination over an interval. It knows no list and no engine.
#pragma once

#include <QList>
#include <QWidget>

#include "base/Ensemble.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace norvane::ui {

class TableauCombinaison;
struct Contexte;

/// Object names of one panel.
struct NomsCombinaison {
    const char16_t* libelle;
    const char16_t* table;
    const char16_t* tirages;   ///< the interval
    const char16_t* barres;    ///< ratio as bars
    const char16_t* position;  ///< place in the list in memory
};
inline constexpr NomsCombinaison CombinaisonChoisie{
    u"LabelCombinaison", u"AdvStringGrid2", u"LabelTirages", u"CheckBoxRN", u"ButtonPosition"};

class PanneauCombinaison final : public QWidget {
    Q_OBJECT

 public:
    PanneauCombinaison(Contexte& ctx, const NomsCombinaison& noms, QWidget* parent);

    /// Draws inf..sup (one-based) of the base as it is now, which the statistics speak of from now
    /// on; none when sup is below inf.
    void poserIntervalle(int inf, int sup);
    /// 2 to 10 numbers, or none.
    void montrer(Ensemble numeros);
    Ensemble numeros() const { return numeros_; }

    void cacherBulle();
    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    void positionDemandee();

 private:
    QLabel* creerLibelle(const char16_t* nom);
    void rafraichir();

    Contexte& contexte_;
    QLabel* libelle_;
    TableauCombinaison* table_;
    QLabel* tirages_;
    QCheckBox* barres_;
    QPushButton* boutonPosition_;
    Ensemble numeros_;
    int inf_ = 1;
    int sup_ = 0;
};

}  // namespace norvane::ui
