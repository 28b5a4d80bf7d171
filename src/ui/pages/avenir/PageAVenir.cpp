// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "avenir/PageAVenir.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "common/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PageAVenir::PageAVenir(Contexte& ctx, const QString& nom, const QString& onglet,
                       const QString& promesse, QWidget* parent)
    : Page(ctx, nom, onglet, parent) {
    auto* carte = new QFrame(this);
    carte->setObjectName(u"Carte"_s);
    auto* colonne = new QVBoxLayout(carte);
    colonne->setContentsMargins(6 * Unite, 5 * Unite, 6 * Unite, 5 * Unite);
    colonne->setSpacing(2 * Unite);

    auto* entete = new QLabel(titre, carte);
    QFont grande = font();
    grande.setPixelSize(fontInfo().pixelSize() * 8 / 5);
    grande.setBold(true);
    entete->setFont(grande);
    auto* ligne = new QLabel(promesse, carte);
    ligne->setObjectName(u"Promesse"_s);
    ligne->setWordWrap(true);
    ligne->setFixedWidth(contexte.px(420));
    ligne->setMinimumHeight(ligne->heightForWidth(contexte.px(420)));
    for (QLabel* etiquette : {entete, ligne}) colonne->addWidget(etiquette);

    auto* page = new QVBoxLayout(this);
    page->addStretch(2);
    page->addWidget(carte, 0, Qt::AlignHCenter);
    page->addStretch(3);
}

}  // namespace norvane::ui
