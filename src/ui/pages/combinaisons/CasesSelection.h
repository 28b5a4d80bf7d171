// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The 49 numbers, each checked absolutely, secondarily or not at all.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>

#include "comb/Selection.h"

namespace norvane::ui {

/// Check states: checked is absolute, partially checked secondary.
class ModeleSelection final : public QAbstractListModel {
    Q_OBJECT

 public:
    using QAbstractListModel::QAbstractListModel;

    void montrer(const GrilleSelection& grille);
    Priorite priorite(int rang) const { return grille_[static_cast<std::size_t>(rang)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
    GrilleSelection grille_{};
};

/// A tile: green when absolute, amber when secondary.
class DelegueSelection final : public QStyledItemDelegate {
    Q_OBJECT

 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Ground of a checked tile; nothing for one that is not.
    static QColor fond(Priorite priorite);

    void paint(QPainter* peintre, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// All of the cell.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// Ten tiles a row. It changes nothing itself: its owner is asked, and shows what came of it.
class CasesSelection final : public QListView {
    Q_OBJECT

 public:
    explicit CasesSelection(QWidget* parent);

    void montrer(const GrilleSelection& grille) { modele_->montrer(grille); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 Q_SIGNALS:
    /// A tile was clicked, or reached with the keys: what it is to become.
    void demande(int numero, norvane::Priorite priorite);

 protected:
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

 private:
    void presser(QMouseEvent* evenement);

    ModeleSelection* modele_;
};

}  // namespace norvane::ui
