// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The prize table of a draw.
#pragma once

#include <array>
#include <QTableWidget>

#include "atelier/EditionBase.h"
#include "base/Configuration.h"
#include "base/Tirage.h"

namespace norvane::ui {

/// Columns "RANGS", "GAGNANTS", "RAPPORTS", "N"; one row a rank. Read-only but while a draw is
/// entered: then the cells of GAGNANTS and RAPPORTS can be edited.
class TableRapports final : public QTableWidget {
    Q_OBJECT

 public:
    enum Colonne { Rangs, Gagnants, Montants, N, NbColonnes };
    /// How many times a rank's amount is won, rank 1 first; 0 where there is no multiplier.
    using Facteurs = std::array<int, NbRangsLoto>;

    /// `rangs`: NbRangsLoto or NbRangs2nd rows.
    TableRapports(const QString& nom, int rangs, double echelle, QWidget* parent = nullptr);

    /// Winners, amounts with the currency symbol, and the value in francs as hint of the amount;
    /// nothing for a rank that the game did not have on the day of `tirage`.
    void afficher(const Tirage& tirage, const RapportsTirage& rapports, const Reglages& reglages);
    /// The prizes of a draw in hand, and the way to change them.
    void editer(const RapportsSaisis& saisis, const Reglages& reglages);
    /// Every cell of winners and amounts empty.
    void vider();
    /// Column N and the hints of the rows that are won.
    void setFacteurs(const Facteurs& facteurs);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

 Q_SIGNALS:
    /// A text was typed in a cell of winners or amounts, which shows it once the owner has taken
    /// it.
    void celluleSaisie(int rang, norvane::ColonneRapport colonne, const QString& texte);

 private:
    void poserValeurs(int rang, const RapportSaisi& rapport, const Reglages& reglages);
    void poser(int rang, Colonne colonne, const QString& texte, const QString& court,
               const QString& longue);

    Facteurs facteurs_{};
};

}  // namespace norvane::ui
