// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemes/PageSystemes.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "common/Theme.h"
#include "systemes/CommandesSysteme.h"
#include "systemes/PanneauGarantie.h"
#include "systemes/PanneauGaranties.h"
#include "systemes/PanneauGrilles.h"
#include "systemes/PanneauNumeros.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PageSystemes::PageSystemes(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo10"_s, u"Systèmes réducteurs"_s, parent),
      commandes_(new CommandesSysteme(ctx, this)) {
    construire();
    connect(commandes_, &CommandesSysteme::selectionChangee, numeros_, &PanneauNumeros::montrer);
    connect(commandes_, &CommandesSysteme::systemeChange, grilles_, &PanneauGrilles::montrer);
    connect(commandes_, &CommandesSysteme::preuveChangee, garantie_, &PanneauGarantie::montrer);
    connect(commandes_, &CommandesSysteme::catalogueVoulu, garanties_,
            &PanneauGaranties::viserListe);
    connect(garanties_, &PanneauGaranties::generationDemandee, commandes_,
            &CommandesSysteme::Button82Click);
    commandes_->poserJauge(grilles_->jauge());
    const QList<QWidget*> ordre = garanties_->ordreTabulation() + numeros_->ordreTabulation() +
                                  grilles_->ordreTabulation() +
                                  QList<QWidget*>{garantie_->bouton()};
    for (qsizetype i = 1; i < ordre.size(); ++i) setTabOrder(ordre[i - 1], ordre[i]);
}

void PageSystemes::construire() {
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    const auto fiche = [this](QWidget* contenu) {
        auto* f = new Fiche(this);
        f->pile->addWidget(contenu);
        return f;
    };
    page->addWidget(fiche(garanties_ = new PanneauGaranties(contexte, this)), 3);
    page->addWidget(fiche(numeros_ = new PanneauNumeros(contexte, *commandes_, this)), 3);
    auto* droite = new QVBoxLayout;
    droite->setSpacing(2 * Unite);
    droite->addWidget(fiche(grilles_ = new PanneauGrilles(contexte, *commandes_, this)), 1);
    droite->addWidget(fiche(garantie_ = new PanneauGarantie(*commandes_, contexte.Echelle, this)));
    page->addLayout(droite, 4);
}

void PageSystemes::showEvent(QShowEvent* evenement) {
    Page::showEvent(evenement);
    if (!garanties_->charge()) garanties_->charger(contexte.atelier.typeGarantie);
}

}  // namespace norvane::ui
