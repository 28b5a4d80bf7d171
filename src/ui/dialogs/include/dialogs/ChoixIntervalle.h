// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Asks for the draws that the combinations are computed over.
#pragma once

#include <QDialog>

#include "common/Contexte.h"

class QLabel;

namespace norvane::ui {

class PaireIntervalle;

class TChoixIntervalle final : public QDialog {
    Q_OBJECT

 public:
    /// What exec() gives back; 0 when cancelled.
    enum Reponse { IntervalleChange = 1, IntervalleInchange = 2 };

    /// Opens on the interval in force, and changes nothing itself.
    TChoixIntervalle(Contexte& ctx, QWidget* parent);

    // One-based, inclusive; draws of the base once exec() has given one of the answers.
    int inf() const;
    int sup() const;

    void accept() override;

 private:
    void montrer();

    Contexte& contexte_;
    PaireIntervalle* intervalle_;
    QLabel* libelle_;
};

}  // namespace norvane::ui
