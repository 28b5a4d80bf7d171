// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table of a combination's statistics: one row for each count of good numbers.
#pragma once

#include <QObject>
#include <vector>

#include "comb/StatsCombinaison.h"

class QModelIndex;

namespace norvane::ui {

class VueTableau;

class TableauCombinaison final : public QObject {
    Q_OBJECT

 public:
    TableauCombinaison(const QString& nom, double echelle, QWidget* parent);

    VueTableau* const vue;

    /// The ratio as a bar or as its text.
    void montrer(const std::vector<LigneStatsCombinaison>& lignes, bool barres);

 Q_SIGNALS:
    /// A double click on a cell that speaks of a draw (one-based).
    void tirageDemande(int numero);
    /// One on the label of a rank, by its count of good numbers.
    void rangDemande(int bons);
    /// One on the label of a rank that never came out.
    void rangAbsent();

 private:
    void activer(const QModelIndex& index);
};

}  // namespace norvane::ui
