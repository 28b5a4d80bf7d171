// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The model behind a table on show: rows of cells, sorted by the keys of one or two columns.
#pragma once

#include <QAbstractTableModel>
#include <QBrush>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>
#include <QVariant>
#include <span>
#include <string>
#include <vector>

#include "stats/Cellule.h"
#include "stats/ExportTableau.h"

namespace norvane::ui {

/// One column of a table.
struct ColonneTableau {
    QString entete;
    QString indice;      ///< hint of the header
    double largeur = 0;  ///< design units, multiplied by Echelle
    Qt::Alignment alignement = Qt::AlignHCenter;
    double police = 0;  ///< of figures: font size in pixels, multiplied by Echelle; 0: the table's
    bool gras = false;  ///< bold
    bool position = false;  ///< shows the place of the row in the sort, from 1; is never a key
    bool adaptable = true;  ///< may grow beyond `largeur` when `etalon` or the header asks for it
    QString etalon;         ///< the widest text that the column is made for
    QIcon image;            ///< drawn in the header instead of its text
    NatureColonne nature = NatureColonne::Texte;  ///< of the keys, for a spreadsheet
};

/// Colours of a cell that stands out: a vertical gradient and the font on it.
struct DegradeCellule {
    QColor haut;
    QColor bas;
    QColor texte;
    bool choixVisible = false;  ///< a ground of whole rows: the row selected is seen through it
};

/// A cell and how it is shown.
struct CelluleTableau : Cellule {
    QString indice;            ///< tool tip and status tip, may be empty
    int degrade = -1;          ///< index into the table's gradients, -1 for the ordinary colours
    std::optional<int> barre;  ///< drawn as a bar of this length, 0..BarreMax, in place of the text
    QIcon image{};             ///< a Chance, drawn behind the text
};
using LigneTableau = std::vector<CelluleTableau>;  ///< as many cells as there are columns

/// A row of plain cells.
LigneTableau ligneTableau(std::span<const Cellule> cellules);
/// Rows of plain cells, of whatever holds them as `cellules`.
template <typename Lignes>
std::vector<LigneTableau> lignesTableau(const Lignes& lignes) {
    std::vector<LigneTableau> rangees;
    rangees.reserve(std::size(lignes));
    for (const auto& ligne : lignes) rangees.push_back(ligneTableau(ligne.cellules));
    return rangees;
}

inline constexpr int BarreMax = 10000;

struct CleTri {
    int colonne;
    bool croissant;

    friend bool operator==(const CleTri&, const CleTri&) = default;
};

class ModeleTableau final : public QAbstractTableModel {
    Q_OBJECT

 public:
    explicit ModeleTableau(std::vector<ColonneTableau> colonnes, QObject* parent = nullptr);

    const std::vector<ColonneTableau>& colonnes() const { return colonnes_; }
    void poserDegrades(std::vector<DegradeCellule> degrades);
    const DegradeCellule& degrade(int d) const { return degrades_[static_cast<std::size_t>(d)]; }
    void poserPolices(std::vector<QFont> polices);  ///< one a column
    /// The key that rows given to remplir() already follow.
    void poserTriDepart(CleTri cle) { depart_ = {cle}; }
    /// Rows given to remplir() follow no key.
    void sansTriDepart() { depart_.clear(); }

    /// New content in one reset; the sort goes back to its start.
    void remplir(std::vector<LigneTableau> lignes);

    /// A click on a header: the column becomes the primary key, or turns its direction when it is
    /// already; with `secondaire` the same for the second key. The column of places does
    /// nothing.
    void cliquer(int colonne, bool secondaire);
    /// Sorts by these keys (at most two); rows that are equal by all keys keep their first order.
    void trier(std::vector<CleTri> cles);
    /// The first order again.
    void retablirOrdre() { trier(depart_); }
    const std::vector<CleTri>& cles() const { return cles_; }
    /// "1▲", "2▼", or nothing.
    QString marque(int colonne) const;

    const CelluleTableau& cellule(const QModelIndex& index) const;
    /// What is read in a cell, place in the sort included; of a bar its exact text.
    std::string texte(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

 private:
    const ColonneTableau& colonne(int c) const { return colonnes_[static_cast<std::size_t>(c)]; }

    std::vector<ColonneTableau> colonnes_;
    std::vector<QFont> polices_;
    std::vector<DegradeCellule> degrades_;
    std::vector<QBrush> fonds_;  // of the gradients
    std::vector<QBrush> encres_;
    std::vector<LigneTableau> lignes_;
    std::vector<int> ordre_;  // row on show -> index in lignes_
    std::vector<CleTri> cles_;
    std::vector<CleTri> depart_{{1, true}};
};

}  // namespace norvane::ui
