// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The lines of a list of tickets on show. It reads them where they lie and copies nothing.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <vector>

#include "tickets/ListesNC.h"

namespace norvane::ui {

class ModeleNC final : public QAbstractListModel {
    Q_OBJECT

 public:
    /// The list stays its owner's: after it changed, show it again.
    ModeleNC(const std::vector<LigneNC>& liste, QObject* parent);

    void montrer();

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
    const std::vector<LigneNC>& liste_;
    int nombre_ = 0;
};

class ListeNC final : public QListView {
    Q_OBJECT

 public:
    ListeNC(const std::vector<LigneNC>& liste, QWidget* parent);

    /// The lines as they are now, none chosen.
    void montrer() { modele_->montrer(); }
    /// The width of a line of six numbers and ten chances.
    int largeurLigne() const;

 Q_SIGNALS:
    /// A line was clicked or reached with the keys.
    void ligneChoisie(int ligne);

 protected:
    void paintEvent(QPaintEvent* evenement) override;
    void currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) override;

 private:
    ModeleNC* modele_;
};

}  // namespace norvane::ui
