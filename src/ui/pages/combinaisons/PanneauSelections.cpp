// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauSelections.h"

namespace norvane::ui {

PanneauSelections::PanneauSelections(Contexte&, QWidget* parent) : QWidget(parent) {}

}  // namespace norvane::ui
