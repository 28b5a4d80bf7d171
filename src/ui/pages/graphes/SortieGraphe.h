// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A chart on its way out of the window: paper, a file, the clipboard.
#pragma once

#include <QSize>

#include "common/Contexte.h"
#include "graphes/SceneGraphe.h"

namespace norvane::ui {

/// Asks for a printer or a PDF and fills an A4 page across. A failure is told.
void imprimerGraphe(Contexte& contexte, QWidget* parent, const SceneGraphe& scene,
                    const QFont& fonte);

/// Asks for a file and writes the chart as it shows, in the size on show, as PNG (twice as fine)
/// or SVG.
void enregistrerGraphe(Contexte& contexte, QWidget* parent, const SceneGraphe& scene,
                       const StyleGraphe& style, const QSize& taille, const QString& nomPropose);

/// Puts the picture on the clipboard and tells so in the status bar.
void copierGraphe(Contexte& contexte, const SceneGraphe& scene, const StyleGraphe& style,
                  const QSize& taille);

}  // namespace norvane::ui
