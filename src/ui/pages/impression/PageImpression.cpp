// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "impression/PageImpression.h"

#include <QHBoxLayout>

#include "common/Theme.h"
#include "impression/CommandesBulletins.h"
#include "impression/PanneauBulletin.h"
#include "impression/PanneauImpression.h"
#include "impression/PanneauOptions.h"
#include "impression/PanneauPrix.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PageImpression::PageImpression(Contexte& ctx, QWidget* parent)
    : Page(ctx, u"Varo7"_s, u"Impression sur bulletins"_s, parent),
      commandes_(new CommandesBulletins(ctx, this)) {
    construire();
    commandes_->poserJauge(impression_->jauge());
    connect(commandes_, &CommandesBulletins::change, this, &PageImpression::montrer);
    connect(commandes_, &CommandesBulletins::impressionChangee, impression_,
            &PanneauImpression::montrerImpression);
    const QList<QWidget*> ordre = bulletin_->ordreTabulation() + options_->ordreTabulation() +
                                  impression_->ordreTabulation() + QList<QWidget*>{prix_->table()};
    for (qsizetype i = 1; i < ordre.size(); ++i) setTabOrder(ordre[i - 1], ordre[i]);
    montrer();
}

void PageImpression::construire() {
    auto* page = new QHBoxLayout(this);
    page->setContentsMargins(2 * Unite, 2 * Unite, 2 * Unite, 2 * Unite);
    page->setSpacing(2 * Unite);
    const auto fiche = [this](QWidget* contenu) {
        auto* f = new Fiche(this);
        f->pile->addWidget(contenu);
        return f;
    };
    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(2 * Unite);
    bulletin_ = new PanneauBulletin(
        *commandes_, versQt(contexte.atelier.configuration.reglages.SymboleMonnaie), this);
    gauche->addWidget(fiche(bulletin_), 1);
    gauche->addWidget(fiche(prix_ = new PanneauPrix(*commandes_, contexte, this)));
    page->addLayout(gauche, 1);
    auto* droite = new QVBoxLayout;
    droite->setSpacing(2 * Unite);
    droite->addWidget(fiche(options_ = new PanneauOptions(*commandes_, this)));
    auto* impression = fiche(impression_ = new PanneauImpression(*commandes_, this));
    impression->pile->addStretch(1);
    droite->addWidget(impression, 1);
    page->addLayout(droite);
}

void PageImpression::surChange(const Changement& changement) {
    if (changement.tickets || changement.reglages)
        commandes_->aller(contexte.atelier.bulletins.bulletin);
}

void PageImpression::montrer() {
    bulletin_->montrer();
    options_->montrer();
    impression_->montrer();
    prix_->montrer();
}

}  // namespace norvane::ui
