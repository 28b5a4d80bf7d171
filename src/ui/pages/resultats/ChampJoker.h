// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The field of a Joker+ number: seven digits separated by points.
#pragma once

#include <QString>

class QLineEdit;
class QWidget;

namespace norvane::ui {

/// That of a draw, read-only, and that of a receipt look alike.
QLineEdit* champJoker(const QString& nom, QWidget* parent);

}  // namespace norvane::ui
