// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The numbers that the engine's combinations are restricted to, and the list of such selections.
#pragma once

#include <QWidget>

namespace norvane::ui {

struct Contexte;

class PanneauSelections final : public QWidget {
    Q_OBJECT

 public:
    PanneauSelections(Contexte& ctx, QWidget* parent);
};

}  // namespace norvane::ui
