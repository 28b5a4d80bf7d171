// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/PanneauRapports.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>

#include "common/Contexte.h"
#include "resultats/ChoixTirage.h"
#include "widgets/Fiche.h"
#include "widgets/TableRapports.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PanneauRapports::PanneauRapports(Contexte& ctx, QWidget* parent) : QWidget(parent), contexte_(ctx) {
    auto* dehors = new QHBoxLayout(this);
    dehors->setContentsMargins(0, 0, 0, 0);
    auto* fiche = new Fiche(this);
    dehors->addWidget(fiche);
    auto* titre = legende({}, fiche);
    titre->setObjectName(u"TitreVolet"_s);
    premier_ = new TableRapports(u"AdvStringGrid6"_s, NbRangsLoto, ctx.Echelle, fiche);
    second_ = new TableRapports(u"AdvStringGrid8"_s, NbRangs2nd, ctx.Echelle, fiche);
    tables_ = new QStackedWidget(fiche);
    tables_->setObjectName(u"Rapports"_s);
    tables_->addWidget(premier_);
    tables_->addWidget(second_);
    tables_->setFixedHeight(premier_->sizeHint().height());
    volet_ = new QStackedWidget(fiche);
    volet_->addWidget(tables_);
    fiche->pile->addWidget(titre);
    fiche->pile->addWidget(volet_);
}

void PanneauRapports::ajouter(QWidget* panneau) {
    volet_->addWidget(panneau);
}

void PanneauRapports::montrer(const ChoixTirage& choix) {
    for (TableRapports* table : {premier_, second_}) {
        if (choix.indice() < 0) {
            table->vider();
        } else {
            table->afficher(
                *choix.tirage(),
                contexte_.atelier.base.Rapports[static_cast<std::size_t>(choix.indice())],
                contexte_.atelier.configuration.reglages);
        }
    }
    tables_->setCurrentWidget(choix.rapportsSecond() ? second_ : premier_);
}

void PanneauRapports::montrerGains(bool second, const ComptesRangs& comptes) {
    premier_->setFacteurs(second ? ComptesRangs{} : comptes);
    second_->setFacteurs(second ? comptes : ComptesRangs{});
}

}  // namespace norvane::ui
