// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "nc/ListeNC.h"

#include <QScrollBar>

#include "common/Theme.h"
#include "widgets/ListeCombinaisons.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

// ------------------------------------------------------------------------------------------ model

ModeleNC::ModeleNC(const std::vector<LigneNC>& liste, QObject* parent)
    : QAbstractListModel(parent), liste_(liste) {
    montrer();
}

void ModeleNC::montrer() {
    beginResetModel();
    nombre_ = static_cast<int>(liste_.size());
    endResetModel();
}

int ModeleNC::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : nombre_;
}

QVariant ModeleNC::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::DisplayRole) return {};
    // The owner may have changed its list since the last showing.
    const auto ligne = static_cast<std::size_t>(index.row());
    return ligne < liste_.size() ? QString::fromStdString(TexteLigneNC(liste_[ligne])) : QString();
}

// ------------------------------------------------------------------------------------------- view

ListeNC::ListeNC(const std::vector<LigneNC>& liste, QWidget* parent)
    : QListView(parent), modele_(new ModeleNC(liste, this)) {
    setObjectName(u"ListBox4"_s);
    setAccessibleName(u"Liste des grilles"_s);
    setModel(modele_);
    setItemDelegate(new DelegueCombinaisons(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A line that is the current one already is shown again.
    connect(this, &QAbstractItemView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT ligneChoisie(index.row()); });
}

int ListeNC::largeurLigne() const {
    const TypeGrille longue{6, ChanceMax};
    const int chiffres = fontMetrics().horizontalAdvance(u"00 "_s) * (longue.n + longue.c);
    return chiffres + fontMetrics().horizontalAdvance(u"N:   C: "_s) + 4 * Unite +
           2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

void ListeNC::paintEvent(QPaintEvent* evenement) {
    QListView::paintEvent(evenement);
    if (modele_->rowCount() == 0) {
        peindreInvite(*viewport(),
                      u"Cochez une grille sur la planche\npuis validez-la\n"
                      u"pour lister toutes celles de son type"_s);
    }
}

void ListeNC::currentChanged(const QModelIndex& actuel, const QModelIndex& ancien) {
    QListView::currentChanged(actuel, ancien);
    if (actuel.isValid()) Q_EMIT ligneChoisie(actuel.row());
}

}  // namespace norvane::ui
