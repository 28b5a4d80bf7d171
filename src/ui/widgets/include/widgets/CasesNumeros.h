// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The 49 numbers as tiles, each in one of three states that its owner gives a look to.
#pragma once

#include <array>
#include <cstdint>
#include <QAbstractListModel>
#include <QListView>
#include <QStyledItemDelegate>

#include "base/Tirage.h"

namespace norvane::ui {

/// A state: how it is told and painted. The first of the three is that of a tile left alone.
struct AspectCase {
    Qt::CheckState coche;
    const char16_t* nom;
    QRgb fond, texte;  ///< of a tile that is not left alone
};
using AspectsCases = std::array<AspectCase, 3>;

/// The state of each number, an index of its aspects.
using EtatsCases = std::array<std::uint8_t, NumeroMax>;

class ModeleCases final : public QAbstractListModel {
    Q_OBJECT

 public:
    ModeleCases(const AspectsCases& aspects, QObject* parent)
        : QAbstractListModel(parent), aspects_(aspects) {}

    void montrer(const EtatsCases& etats);
    const AspectCase& aspect(int rang) const {
        return aspects_.at(etats_[static_cast<std::size_t>(rang)]);
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
    const AspectsCases& aspects_;
    EtatsCases etats_{};
};

class DelegueCases final : public QStyledItemDelegate {
    Q_OBJECT

 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* peintre, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    /// A tile fills its place.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

/// It changes nothing itself: its owner is asked, and shows what came of it.
class CasesNumeros final : public QListView {
    Q_OBJECT

 public:
    /// `aspects` outlives it; `colonnes` tiles a row.
    CasesNumeros(const QString& nom, const QString& sens, const AspectsCases& aspects, int colonnes,
                 QWidget* parent);

    void montrer(const EtatsCases& etats) { modele_->montrer(etats); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 Q_SIGNALS:
    /// A tile was clicked, or reached with the blank: the next state is wanted.
    void avanceDemandee(int numero);
    /// Delete or backspace on a tile: the state of a tile left alone is wanted.
    void retraitDemande(int numero);

 protected:
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

 private:
    void presser(QMouseEvent* evenement);
    int rangees() const { return (NumeroMax + colonnes_ - 1) / colonnes_; }

    ModeleCases* modele_;
    const int colonnes_;
};

}  // namespace norvane::ui
