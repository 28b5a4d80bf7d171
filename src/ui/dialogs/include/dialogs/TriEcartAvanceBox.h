// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the advanced sort by gap keeps: of which size, at which rank, from which gap on.
#pragma once

#include <QDialog>

#include "lists/Tri.h"

class QCheckBox;
class QComboBox;
class QSpinBox;

namespace norvane::ui {

class TTriEcartAvanceBox final : public QDialog {
    Q_OBJECT

 public:
    /// Over `tailleIntervalle` draws, which limits the gap.
    TTriEcartAvanceBox(const TriEcartAvance& reglage, int tailleIntervalle, QWidget* parent);

    TriEcartAvance reglage() const;

 private:
    int taille() const;
    void borner();

    QComboBox* taille_;
    QSpinBox* rang_;
    QSpinBox* seuil_;
    QCheckBox* activer_;
};

}  // namespace norvane::ui
