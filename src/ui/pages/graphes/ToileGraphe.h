// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the routines that paint a chart share.
#pragma once

#include <QPainter>

#include "graphes/SceneGraphe.h"

namespace norvane::ui {

struct ToileGraphe {
    QPainter& p;
    const SceneGraphe& scene;
    const StyleGraphe& style;
    const Repere& repere;
};

/// The points, each with what is to be read beside it.
void peindrePoints(const ToileGraphe& toile);

}  // namespace norvane::ui
