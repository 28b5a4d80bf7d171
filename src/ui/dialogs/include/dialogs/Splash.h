// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What stands on the screen until the main window does.
#pragma once

#include <QWidget>

namespace norvane::ui {

class TSplash final : public QWidget {
    Q_OBJECT

 public:
    TSplash();

 protected:
    void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace norvane::ui
