// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A chart between the two bars that scroll it.
#pragma once

#include <QWidget>

#include "graphes/VueGraphe.h"

class QScrollBar;

namespace norvane::ui {

class CadreGraphe final : public QWidget {
    Q_OBJECT

 public:
    CadreGraphe(const QString& nomVue, QWidget* parent);

    VueGraphe* const vue;

    /// Shows the scene, and where its window lies within the limits.
    void montrer(const SceneGraphe& scene, const Etendue& limitesX, const Etendue& limitesY);

 private:
    QScrollBar* horizontale_;
    QScrollBar* verticale_;
};

}  // namespace norvane::ui
