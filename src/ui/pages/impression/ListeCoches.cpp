// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/ListeCoches.h"

#include <algorithm>
#include <QMouseEvent>

#include "common/Theme.h"

namespace norvane::ui {

ListeCoches::ListeCoches(const QString& nom, const QString& libelle, const QStringList& items,
                         QWidget* parent)
    : QListWidget(parent) {
    setObjectName(nom);
    setAccessibleName(libelle);
    setFlow(LeftToRight);
    setFrameShape(NoFrame);
    setSelectionMode(NoSelection);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    viewport()->setAutoFillBackground(false);
    for (const QString& texte : items) {
        auto* ligne = new QListWidgetItem(texte, this);
        ligne->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        ligne->setCheckState(Qt::Unchecked);
    }
    connect(this, &QListWidget::itemChanged, this, [this](const QListWidgetItem* change) {
        Q_EMIT StateChange(row(change), change->checkState() == Qt::Checked);
    });
}

QSize ListeCoches::sizeHint() const {
    QSize taille(2 * frameWidth() + 2, 0);
    for (int i = 0; i < count(); ++i) {
        const QSize item = sizeHintForIndex(indexFromItem(this->item(i)));
        taille.rwidth() += item.width() + Unite / 2;
        taille.setHeight(std::max(taille.height(), item.height()));
    }
    taille.rheight() += 2 * frameWidth() + 2;
    return taille;
}

/// The whole of an item is its box.
void ListeCoches::mousePressEvent(QMouseEvent* evenement) {
    auto* vise = itemAt(evenement->position().toPoint());
    if (vise == nullptr || evenement->button() != Qt::LeftButton || !isEnabled()) return;
    setCurrentItem(vise);
    vise->setCheckState(vise->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

}  // namespace norvane::ui
