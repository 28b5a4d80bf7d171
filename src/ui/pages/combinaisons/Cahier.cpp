// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/Cahier.h"

#include <QHBoxLayout>

#include "combinaisons/PanneauSelections.h"
#include "combinaisons/PanneauTampons.h"
#include "combinaisons/PanneauTri.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

enum PageCahier { PageChoix, PageTampons };

}  // namespace

Cahier::Cahier(Contexte& ctx, QWidget* parent) : QStackedWidget(parent) {
    setObjectName(u"Cahier"_s);
    insertWidget(PageChoix, creerChoix(ctx));
    insertWidget(PageTampons, creerTampons(ctx));
}

void Cahier::montrerMode(ModeListe mode) {
    setCurrentIndex(mode == ModeListe::Manipulation ? PageTampons : PageChoix);
}

QWidget* Cahier::creerChoix(Contexte& ctx) {
    auto* page = new QWidget(this);
    auto* gauche = new Fiche(page);
    gauche->pile->addWidget(selections_ = new PanneauSelections(ctx, gauche));
    auto* droite = new Fiche(page);
    droite->pile->addWidget(tri_ = new PanneauTri(droite));
    auto* rang = new QHBoxLayout(page);
    rang->setContentsMargins(0, 0, 0, 0);
    rang->setSpacing(2 * Unite);
    rang->addWidget(gauche, 1);
    rang->addWidget(droite);
    return page;
}

QWidget* Cahier::creerTampons(Contexte& ctx) {
    auto* fiche = new Fiche(this);
    fiche->pile->addWidget(tampons_ = new PanneauTampons(ctx, fiche));
    return fiche;
}

QList<QWidget*> Cahier::ordreTabulation() const {
    return selections_->ordreTabulation() + tri_->ordreTabulation() + tampons_->ordreTabulation();
}

}  // namespace norvane::ui
