// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemes/ListeLignes.h"

#include <QSignalBlocker>
#include <utility>

#include "widgets/ListeCombinaisons.h"

namespace norvane::ui {

void ModeleLignes::montrer(int nombre, std::function<QString(int)> ligne) {
    beginResetModel();
    nombre_ = nombre;
    ligne_ = std::move(ligne);
    endResetModel();
}

int ModeleLignes::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : nombre_;
}

QVariant ModeleLignes::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
    if (role == ModeleCombinaisons::RoleBorne) return static_cast<int>(BorneLigne::Sup);  // blue
    return role == Qt::DisplayRole ? ligne_(index.row()) : QVariant();
}

ListeLignes::ListeLignes(const QString& nom, const QString& sens, QWidget* parent)
    : QListView(parent), modele_(new ModeleLignes(this)) {
    setObjectName(nom);
    setAccessibleName(sens);
    setModel(modele_);
    setItemDelegate(new DelegueCombinaisons(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void ListeLignes::montrer(int nombre, std::function<QString(int)> ligne) {
    const QSignalBlocker muet(this);
    modele_->montrer(nombre, std::move(ligne));
    viser(0);
}

void ListeLignes::viser(int ligne) {
    const QSignalBlocker muet(this);
    setCurrentIndex(modele_->index(ligne));
    scrollTo(currentIndex());
}

void ListeLignes::currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) {
    QListView::currentChanged(actuel, ancien);
    if (actuel.isValid()) Q_EMIT ligneChoisie(actuel.row());
}

}  // namespace norvane::ui
