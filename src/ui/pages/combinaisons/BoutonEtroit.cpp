// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/BoutonEtroit.h"

#include <QPushButton>

#include "common/Contexte.h"
#include "common/Theme.h"

namespace norvane::ui {

QPushButton* boutonEtroit(const QString& nom, const QString& libelle, const QString& indice,
                          QWidget* parent) {
    auto* bouton = new QPushButton(libelle, parent);
    bouton->setObjectName(nom);
    // The style would make it as wide as one of a dialog.
    const int texte = bouton->fontMetrics().size(Qt::TextShowMnemonic, libelle).width();
    bouton->setMinimumWidth(texte + 2 * Unite + Unite / 2);
    poserIndice(bouton, indice);
    return bouton;
}

}  // namespace norvane::ui
