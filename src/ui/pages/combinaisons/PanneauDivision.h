// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list in memory cut into sub-lists that fit the buffers.
#pragma once

#include <QWidget>

class QPushButton;
class QSpinBox;

namespace norvane::ui {

struct Contexte;

class PanneauDivision final : public QWidget {
    Q_OBJECT

 public:
    PanneauDivision(Contexte& ctx, QWidget* parent);

    /// What stands of the cut of the list in memory.
    void suivre();

    QList<QWidget*> ordreTabulation() const;

 private:
    void DiviserListeMemoireClick();

    Contexte& contexte_;
    QPushButton* bouton_;
    QSpinBox* taille_;
};

}  // namespace norvane::ui
