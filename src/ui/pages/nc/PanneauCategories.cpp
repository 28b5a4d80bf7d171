// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "nc/PanneauCategories.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "stats/TableauStats.h"
#include "widgets/ColonnesStats.h"
#include "widgets/Fiche.h"
#include "widgets/TableauCombinaison.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PanneauCategories::PanneauCategories(Contexte& ctx, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      libelle_(valeur(u"LabelGrilleNC"_s, {}, this)),
      table_(new TableauCombinaison(u"AdvStringGrid7"_s, colonnesCategories(), NbCategoriesNC,
                                    ctx.Echelle, this)),
      tirages_(legende({}, this)),
      barres_(new QCheckBox(u"Ratio graphique"_s, this)),
      chance_(imageChance()) {
    libelle_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    libelle_->setMinimumHeight(libelle_->fontMetrics().height());
    libelle_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    poserIndice(libelle_, u"Grille dont le tableau donne les résultats"_s);
    table_->vue->setAccessibleName(u"Résultats de la grille par catégorie"_s);
    poserIndice(table_->vue,
                u"Double cliquez sur un rang pour afficher son historique, sur une autre case pour "
                u"voir la grille sur le dernier tirage qui l'a donné"_s);
    tirages_->setObjectName(u"LabelTiragesNC"_s);
    barres_->setObjectName(u"CheckBoxRNC"_s);
    poserIndice(barres_, u"Afficher le ratio sous forme de barre"_s);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(3 * Unite);
    pied->addWidget(tirages_);
    pied->addStretch(1);
    pied->addWidget(barres_);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(libelle_);
    pile->addWidget(table_->vue);
    pile->addLayout(pied);
    connect(table_->vue, &VueTableau::celluleActivee, this,
            &PanneauCategories::AdvStringGrid7DblClickCell);
    connect(barres_, &QCheckBox::toggled, this, &PanneauCategories::afficher);
}

void PanneauCategories::montrer(const LigneNC& ticket, int inf, int sup) {
    const Base& base = contexte_.atelier.base;
    const bool intervalle = inf <= sup;
    vide_ = ticket.vide() || !intervalle;
    sup_ = sup;
    // On one line: the board above has need of the height.
    tirages_->setText(intervalle
                          ? versQt(LibelleIntervalleCourt(base, inf, sup)).replace(u'\n', u' ')
                          : QString());
    libelle_->setText(vide_ ? QString() : versQt(LibelleTicket(ticket)));
    if (!vide_) lignes_ = StatsCategories(base, inf, sup, ticket);
    afficher();
}

void PanneauCategories::afficher() {
    std::vector<LigneTableau> lignes;
    if (!vide_) lignes = lignesTableau(lignes_);
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        if (lignes_[i].chance) lignes[i].front().image = chance_;
    }
    table_->montrer(std::move(lignes), barres_->isChecked());
}

void PanneauCategories::AdvStringGrid7DblClickCell(const QModelIndex& index) {
    const auto& cible = table_->vue->modele().cellule(index.siblingAtColumn(0)).cible;
    const int categorie = std::get<RangTable>(cible.value()).indice;
    const LigneCategorie& ligne = lignes_.at(static_cast<std::size_t>(categorie));
    if (ligne.NbFois == 0) {
        Q_EMIT jamaisSorti();
    } else if (index.column() == 0) {
        Q_EMIT historiqueDemande(categorie);
    } else {
        Q_EMIT tirageDemande(sup_ - ligne.resultat.Ecart);
    }
}

void PanneauCategories::cacherBulle() {
    table_->vue->cacherBulle();
}

QList<QWidget*> PanneauCategories::ordreTabulation() const {
    return {table_->vue, barres_};
}

}  // namespace norvane::ui
