// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A table on show: read-only, sorted by header clicks (SHIFT for the second key), with bars,
// gradients, hints and a balloon. What it holds is told by its columns and rows alone.
#pragma once

#include <functional>
#include <QTableView>

#include "widgets/ModeleTableau.h"

namespace norvane::ui {

class Bulle;
class ColonnesFigees;
class EnteteTableau;

/// What a balloon over a cell says; no text, no balloon.
struct ContenuBulle {
    QString titre;
    QString texte;
};

class VueTableau final : public QTableView {
    Q_OBJECT

 public:
    /// `echelle` is the factor of all widths and font sizes of the columns.
    /// The first `figees` columns stay in sight when the others are scrolled.
    VueTableau(std::vector<ColonneTableau> colonnes, int figees, double echelle, QWidget* parent);

    ModeleTableau& modele() { return *modele_; }
    const ModeleTableau& modele() const { return *modele_; }

    /// New content. The current cell keeps its place, the sort goes back to its start, the width
    /// follows the columns.
    void remplir(std::vector<LigneTableau> lignes);

    void poserBulle(std::function<ContenuBulle(const QModelIndex&)> bulle);
    void cacherBulle();

    /// Keeps the height that this many rows need, however many there are.
    void reserverLignes(int nombre);

    /// The width that shows all columns.
    int largeurEntiere() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void scrollTo(const QModelIndex& index, ScrollHint place = EnsureVisible) override;

 Q_SIGNALS:
    /// A double click on a cell, or Enter on the current one.
    void celluleActivee(const QModelIndex& index);

 protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void hideEvent(QHideEvent* evenement) override;
    bool viewportEvent(QEvent* evenement) override;
    void scrollContentsBy(int dx, int dy) override;
    void currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) override;

 private:
    void poserMesures();
    void suivreEntete(EnteteTableau* entete);
    void ajusterTaille();
    void montrerBulle(const QModelIndex& index);
    void ouvrirMenuTri(int colonne, const QPoint& place);
    bool defile() const;  // more rows than the height shows
    int hauteurEntiere() const;

    double echelle_;
    int reservees_ = 0;  // rows that the height is made for, at least
    ModeleTableau* modele_;
    Bulle* bulle_;
    ColonnesFigees* figees_ = nullptr;
    std::function<ContenuBulle(const QModelIndex&)> contenuBulle_;
    QPersistentModelIndex survol_;  // cell that the balloon speaks of
};

}  // namespace norvane::ui
