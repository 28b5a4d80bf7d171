// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/ChampJoker.h"

#include <QLineEdit>

#include "common/Contexte.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

QLineEdit* champJoker(const QString& nom, QWidget* parent) {
    auto* champ = new QLineEdit(parent);
    champ->setObjectName(nom);
    champ->setAlignment(Qt::AlignCenter);
    champ->setAccessibleName(u"Numéro Joker+"_s);
    poserIndice(champ, u"Numéro Joker+"_s);
    grossir(champ, 1.15);
    champ->setFixedWidth(champ->fontMetrics().horizontalAdvance(u"0.0.0.0.0.0.0"_s) + 26);
    return champ;
}

}  // namespace norvane::ui
