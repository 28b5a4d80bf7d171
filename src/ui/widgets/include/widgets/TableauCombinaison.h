// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The table of the draws of an interval by what was found in them, of a combination or of a ticket.
#pragma once

#include <QObject>
#include <vector>

#include "stats/LigneSortis.h"
#include "widgets/ModeleTableau.h"

class QModelIndex;

namespace norvane::ui {

class VueTableau;

class TableauCombinaison final : public QObject {
    Q_OBJECT

 public:
    /// Room for so many rows, however many there are.
    TableauCombinaison(const QString& nom, std::vector<ColonneTableau> colonnes, int lignes,
                       double echelle, QWidget* parent);

    VueTableau* const vue;

    /// Rows of NbColonnesSortis cells; the ratio as a bar or as its text.
    void montrer(std::vector<LigneTableau> lignes, bool barres);

 Q_SIGNALS:
    /// A double click on a cell that speaks of a draw (one-based).
    void tirageDemande(int numero);
    /// One on the label of a rank: the index of its RangTable.
    void rangDemande(int bons);

 private:
    void activer(const QModelIndex& index);
};

}  // namespace norvane::ui
