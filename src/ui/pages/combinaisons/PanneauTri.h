// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the list in memory is sorted.
#pragma once

#include <QWidget>

class QLabel;

namespace norvane::ui {

class PanneauTri final : public QWidget {
    Q_OBJECT

 public:
    explicit PanneauTri(QWidget* parent);

    void montrerTriSimple();
    void vider();

 private:
    QLabel* genre_;
};

}  // namespace norvane::ui
