// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The twelve categories of the ticket on show.
#pragma once

#include <QIcon>
#include <QList>
#include <QWidget>

#include "tickets/CategoriesNC.h"

class QCheckBox;
class QLabel;
class QModelIndex;

namespace norvane::ui {

class TableauCombinaison;
struct Contexte;

class PanneauCategories final : public QWidget {
    Q_OBJECT

 public:
    PanneauCategories(Contexte& ctx, QWidget* parent);

    /// The ticket over draws inf..sup of the base as it is now; no ticket: an empty table.
    void montrer(const LigneNC& ticket, int inf, int sup);

    void cacherBulle();
    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    /// The label of a category was double clicked; it came out.
    void historiqueDemande(int categorie);
    /// Another cell of such a row: the draw (one-based) of its last appearance.
    void tirageDemande(int tirage);
    /// A category that never came out.
    void jamaisSorti();

 private:
    void afficher();
    void AdvStringGrid7DblClickCell(const QModelIndex& index);

    Contexte& contexte_;
    QLabel* libelle_;
    TableauCombinaison* table_;
    QLabel* tirages_;
    QCheckBox* barres_;
    const QIcon chance_;
    TableauCategories lignes_;
    bool vide_ = true;
    int sup_ = 0;
};

}  // namespace norvane::ui
