// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/RangeeBase.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

RangeeBase::RangeeBase(QWidget* parent) : QWidget(parent) {
    auto* ligne = new QHBoxLayout(this);
    ligne->setContentsMargins(0, 0, 0, 0);
    auto* filtre = bouton(u"Button75"_s, u"&Filtrer la base des tirages"_s,
                          u"Filtrer la base des tirages"_s, this);
    connect(filtre, &QPushButton::clicked, this, &RangeeBase::Button75Click);
    ligne->addWidget(filtre);
    ligne->addStretch(1);
}

}  // namespace norvane::ui
