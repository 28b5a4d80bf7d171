// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauTri.h"

#include <QLabel>
#include <QVBoxLayout>

#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PanneauTri::PanneauTri(QWidget* parent) : QWidget(parent), genre_(legende({}, this)) {
    genre_->setObjectName(u"Label25"_s);
    genre_->setWordWrap(true);
    // Two lines: the longest text of those that it shows.
    genre_->setMinimumHeight(2 * genre_->fontMetrics().height());
    genre_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->addWidget(genre_);
}

void PanneauTri::montrerTriSimple() {
    genre_->setText(u"Tri simple des combinaisons selon le premier rang"_s);
}

void PanneauTri::vider() {
    genre_->clear();
}

}  // namespace norvane::ui
