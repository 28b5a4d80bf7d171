// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/PageAVenir.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

#include "shell/Theme.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PageAVenir::PageAVenir(Contexte& ctx, const QString& nom, const QString& titre,
                       const QString& promesse, QWidget* parent)
    : Page(ctx, parent) {
    setObjectName(nom);
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
    detail_ = new QLabel(carte);
    detail_->setObjectName(u"Detail"_s);
    detail_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    detail_->hide();
    for (QLabel* etiquette : {entete, ligne, detail_}) colonne->addWidget(etiquette);

    auto* page = new QVBoxLayout(this);
    page->addStretch(2);
    page->addWidget(carte, 0, Qt::AlignHCenter);
    page->addStretch(3);
}

void PageAVenir::montrerDetail(const QString& detail) {
    detail_->setText(detail);
    detail_->setMinimumHeight(detail_->sizeHint().height());
    detail_->setVisible(!detail.isEmpty());
}

}  // namespace norvane::ui
