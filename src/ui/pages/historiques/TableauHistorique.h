// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table of a history on show: its columns and its colours.
#pragma once

#include <QObject>

#include "reports/Historique.h"

namespace norvane::ui {

class VueTableau;

class TableauHistorique final : public QObject {
    Q_OBJECT

 public:
    TableauHistorique(double echelle, QWidget* parent);

    VueTableau* const vue;

    void montrer(const Historique& historique, VueHistorique choix);
    /// Selects the row of that draw (one-based) when it is there.
    void choisir(int numero);

 protected:
    /// The colours follow the palette.
    bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
    void poserCouleurs();
};

}  // namespace norvane::ui
