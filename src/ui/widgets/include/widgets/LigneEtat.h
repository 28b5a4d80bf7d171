// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A text of the status bar: one line, whatever it says, cut with an ellipsis where it is too long.
#pragma once

#include <QLabel>

namespace norvane::ui {

class LigneEtat final : public QLabel {
    Q_OBJECT

 public:
    explicit LigneEtat(QWidget* parent);

    /// What is to be read in the width at hand.
    QString texteVu() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 protected:
    void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace norvane::ui
