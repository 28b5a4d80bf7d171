// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/PanneauRapports.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <utility>

#include "common/Contexte.h"
#include "common/Theme.h"
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
    premier_ = new TableRapports(u"AdvStringGrid6"_s, NbRangsLoto, ctx.Echelle, fiche);
    second_ = new TableRapports(u"AdvStringGrid8"_s, NbRangs2nd, ctx.Echelle, fiche);
    tables_ = new QStackedWidget(fiche);
    tables_->setObjectName(u"Rapports"_s);
    tables_->addWidget(premier_);
    tables_->addWidget(second_);
    tables_->setFixedHeight(premier_->sizeHint().height());
    volet_ = new QStackedWidget(fiche);
    volet_->addWidget(tables_);
    fiche->pile->addLayout(creerTete(fiche));
    fiche->pile->addWidget(volet_);
    for (const TableRapports* table : {premier_, second_}) {
        connect(table, &TableRapports::celluleSaisie, this, &PanneauRapports::celluleSaisie);
    }
}

QHBoxLayout* PanneauRapports::creerTete(QWidget* fiche) {
    auto* titre = legende({}, fiche);
    titre->setObjectName(u"TitreVolet"_s);
    auto* vider = new QToolButton(fiche);
    vider->setObjectName(u"VideRapports"_s);
    vider->setText(u"Vider"_s);
    vider->setAccessibleName(u"Vider les rapports"_s);
    poserIndice(vider, u"Vider tous les champs du tableau des rapports et les passer à zéro"_s);
    connect(vider, &QToolButton::clicked, this, &PanneauRapports::VideRapportsClick);
    // It comes and goes without moving the table.
    QSizePolicy garde = vider->sizePolicy();
    garde.setRetainSizeWhenHidden(true);
    vider->setSizePolicy(garde);
    vider->setFixedHeight(titre->fontMetrics().height() + Unite / 2);
    auto* tete = new QHBoxLayout;
    tete->addWidget(titre, 1);
    tete->addWidget(vider);
    return tete;
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

void PanneauRapports::saisir(const SaisieTirage* saisie, const ChoixTirage& choix) {
    if (std::exchange(saisie_, saisie != nullptr) && saisie == nullptr) montrer(choix);
    if (saisie == nullptr) return;
    TableRapports* table = saisie->rangs() == NbRangs2nd ? second_ : premier_;
    table->editer(saisie->rapports, contexte_.atelier.configuration.reglages);
    tables_->setCurrentWidget(table);
}

void PanneauRapports::montrerGains(bool second, const ComptesRangs& comptes) {
    premier_->setFacteurs(second ? ComptesRangs{} : comptes);
    second_->setFacteurs(second ? comptes : ComptesRangs{});
}

}  // namespace norvane::ui
