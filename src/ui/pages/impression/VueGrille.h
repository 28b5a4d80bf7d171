// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The preview of one grid of a slip.
#pragma once

#include <optional>
#include <QWidget>

#include "slips/Bulletins.h"

namespace norvane::ui {

class VueGrille final : public QWidget {
    Q_OBJECT

 public:
    /// `place`: 1..6.
    VueGrille(int place, QWidget* parent);

    /// No grid: the blank picture.
    void montrer(const Grille* grille, int marque);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint() / 2; }

 protected:
    void paintEvent(QPaintEvent* evenement) override;

 private:
    const int place_;
    std::optional<Grille> grille_;
    int marque_ = 0;
};

}  // namespace norvane::ui
