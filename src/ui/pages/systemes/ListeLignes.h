// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A list of plain lines that are made when they are seen.
#pragma once

#include <functional>
#include <QAbstractListModel>
#include <QListView>

namespace norvane::ui {

class ModeleLignes final : public QAbstractListModel {
    Q_OBJECT

 public:
    using QAbstractListModel::QAbstractListModel;

    /// `nombre` lines, of which `ligne` gives the text, from 0 on.
    void montrer(int nombre, std::function<QString(int)> ligne);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
    int nombre_ = 0;
    std::function<QString(int)> ligne_;
};

class ListeLignes final : public QListView {
    Q_OBJECT

 public:
    ListeLignes(const QString& nom, const QString& sens, QWidget* parent);

    /// The first line is then the current one, without a signal.
    void montrer(int nombre, std::function<QString(int)> ligne);
    /// Makes a line the current one, in sight, without a signal.
    void viser(int ligne);
    int ligneCourante() const { return currentIndex().row(); }

 Q_SIGNALS:
    /// A line was clicked or reached with the keys.
    void ligneChoisie(int ligne);

 protected:
    void currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) override;

 private:
    ModeleLignes* modele_;
};

}  // namespace norvane::ui
