// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The row of commands on the base as a whole.
#pragma once

#include <QWidget>

namespace norvane::ui {

class RangeeBase final : public QWidget {
    Q_OBJECT

 public:
    explicit RangeeBase(QWidget* parent);

 Q_SIGNALS:
    void Button75Click();
};

}  // namespace norvane::ui
