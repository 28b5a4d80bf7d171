// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A button no wider than its caption asks for: many stand side by side on this page.
#pragma once

class QPushButton;
class QString;
class QWidget;

namespace norvane::ui {

QPushButton* boutonEtroit(const QString& nom, const QString& libelle, const QString& indice,
                          QWidget* parent);

}  // namespace norvane::ui
