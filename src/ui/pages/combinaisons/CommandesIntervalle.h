// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user asks of the draws and of the kind of combinations that the engine works on.
#pragma once

#include <QObject>

#include "atelier/Moteur.h"

namespace norvane::ui {

struct Contexte;

class CommandesIntervalle final : public QObject {
    Q_OBJECT

 public:
    CommandesIntervalle(Contexte& ctx, const Moteur& moteur, QWidget* page);

    void BitBtnWithColor4Click();
    void CheckBoxSeriesClick();

 Q_SIGNALS:
    /// The interval is another one, and the list in memory is to follow it.
    void adaptationDemandee();

 private:
    void direErreur(const Resultat<Rien>& fait);
    void proposerAdaptation();

    Contexte& contexte_;
    const Moteur& moteur_;
    QWidget* page_;
};

}  // namespace norvane::ui
