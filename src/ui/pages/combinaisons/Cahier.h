// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The notebook under the statistics: what the modes do and what the colours mean, or the buffer
// lists.
#pragma once

#include <QStackedWidget>

#include "atelier/Atelier.h"

class QLabel;

namespace norvane::ui {

class Fiche;

class Cahier final : public QStackedWidget {
    Q_OBJECT

 public:
    explicit Cahier(QWidget* parent);

    void montrerMode(ModeListe mode);

 private:
    Fiche* creerLegende();
    Fiche* creerTampons();

    QLabel* aideMode_ = nullptr;
};

}  // namespace norvane::ui
