// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// F1: the help file, opened once and guarded against an impatient key.
#pragma once

#include <QObject>
#include <QTimer>

#include "common/Contexte.h"

namespace norvane::ui {

class Aide final : public QObject {
    Q_OBJECT

 public:
    static constexpr const char* Fichier = "Norvane.chm";

    Aide(Contexte& ctx, QObject* parent);

    /// Opens the help; ignored until the tenth tick of the timer after the last opening.
    void ouvrir();

 Q_SIGNALS:
    /// The tenth tick: the balloons go too.
    void gardeLevee();

 private:
    void battre();

    Contexte& contexte_;
    QTimer garde_;  // "Timer4": one tick a second, runs from an opening to its tenth tick
    int battements_ = 0;
};

}  // namespace norvane::ui
