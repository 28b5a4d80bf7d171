// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The Chance that goes with combinations on their way to the tickets.
#pragma once

#include <QDialog>

class QComboBox;

namespace norvane::ui {

class TChoixChance final : public QDialog {
    Q_OBJECT

 public:
    /// `nombre` tickets are to be made.
    TChoixChance(std::size_t nombre, QWidget* parent);

    /// 1..10, or 0 for one at random for each ticket.
    int chance() const;

 private:
    QComboBox* choix_;
};

}  // namespace norvane::ui
