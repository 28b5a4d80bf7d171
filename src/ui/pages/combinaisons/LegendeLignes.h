// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the colours and the figures of the lines mean.
#pragma once

#include <QWidget>

namespace norvane::ui {

class LegendeLignes final : public QWidget {
    Q_OBJECT

 public:
    explicit LegendeLignes(QWidget* parent);
};

}  // namespace norvane::ui
