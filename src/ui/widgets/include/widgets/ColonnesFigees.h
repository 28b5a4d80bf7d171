// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The first columns of a VueTableau, kept in sight while the others are scrolled sideways.
#pragma once

#include <QTableView>

namespace norvane::ui {

class ModeleTableau;

/// Lies over its table, with the same model, selection and delegate, and shows only while the
/// table is scrolled to the right.
class ColonnesFigees final : public QTableView {
    Q_OBJECT

 public:
    ColonnesFigees(QTableView& table, ModeleTableau& modele, int nombre);

    /// Follows the size, the rows and the scroll position of the table.
    void placer();
    /// Pixels of the table's viewport that it covers.
    int largeurCouverte() const { return isVisibleTo(parentWidget()) ? width() : 0; }
    int nombre() const { return nombre_; }

 Q_SIGNALS:
    void colonneCliquee(int colonne, bool secondaire);

 private:
    QTableView& table_;
    int nombre_;
};

}  // namespace norvane::ui
