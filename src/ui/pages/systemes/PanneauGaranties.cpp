// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemes/PanneauGaranties.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "systemes/ListeLignes.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {
constexpr int TypesParRangee = 3;
}  // namespace

PanneauGaranties::PanneauGaranties(Contexte& ctx, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      cadre_(new QGroupBox(u"&Type de garantie :"_s, this)),
      types_(new QButtonGroup(this)),
      nombre_(valeur(u"Label83"_s, u"Systèmes disponibles"_s, this)),
      titre_(valeur(u"RxLabel22"_s, u"Système choisi"_s, this)),
      promesse_(new QLabel(this)),
      liste_(new ListeLignes(u"ListBox5"_s, u"Systèmes disponibles"_s, this)),
      generer_(bouton(u"Button82"_s, u"&Générer le système selon les paramètres choisis"_s,
                      u"Générer les grilles du système choisi|Les grilles du système choisi sur "
                      u"les numéros de votre sélection, la garantie étant prouvée"_s,
                      this)) {
    promesse_->setObjectName(u"RxLabel21"_s);
    promesse_->setWordWrap(true);
    creerTypes();
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(cadre_);
    pile->addWidget(nombre_);
    pile->addWidget(liste_, 1);
    pile->addWidget(titre_);
    pile->addWidget(promesse_);
    pile->addWidget(generer_);
    connect(liste_, &ListeLignes::ligneChoisie, this, &PanneauGaranties::reprendre);
    connect(generer_, &QPushButton::clicked, this, &PanneauGaranties::generationDemandee);
}

void PanneauGaranties::creerTypes() {
    cadre_->setObjectName(u"RadioGroup2"_s);
    auto* grille = new QGridLayout(cadre_);
    grille->setSpacing(Unite / 2);
    for (int i = 0; const TypeGarantie& type : TypesGarantie) {
        auto* choix = new QRadioButton(QString::fromUtf8(type.legende), cadre_);
        poserIndice(
            choix,
            u"%1 numéros sur 5 si %2 numéros sortent parmi votre sélection"_s.arg(type.X).arg(
                type.Y));
        types_->addButton(choix, i);
        grille->addWidget(choix, i / TypesParRangee, i % TypesParRangee);
        ++i;
    }
    types_->button(0)->setChecked(true);
    connect(types_, &QButtonGroup::idClicked, this, &PanneauGaranties::charger);
}

void PanneauGaranties::charger(int type) {
    const TypeGarantie& garantie = TypesGarantie.at(static_cast<std::size_t>(type));
    auto lues = ChargerCatalogue(contexte_.atelier.Repertoire, garantie);
    if (!lues) {
        types_->button(contexte_.atelier.typeGarantie)->setChecked(true);
        contexte_.services.messages->MessageErreur(versQt(lues.erreur()), u"Erreur"_s);
        return;
    }
    contexte_.atelier.typeGarantie = type;
    entrees_ = *std::move(lues);
    liste_->montrer(static_cast<int>(entrees_.size()), [this](int ligne) {
        return versQt(entrees_[static_cast<std::size_t>(ligne)].ligne);
    });
    nombre_->setText(QString::fromUtf8(garantie.tete) +
                     u"%1 systèmes disponibles"_s.arg(entrees_.size()));
    viserListe();
    reprendre(0);
}

void PanneauGaranties::viserListe() {
    liste_->setFocus();
}

void PanneauGaranties::reprendre(int ligne) {
    SystemeDisponible& s = contexte_.atelier.systemeDisponible;
    s = entrees_[static_cast<std::size_t>(ligne)].systeme;
    titre_->setText(u"Système de %1 combinaisons à %2 numéros (Base %3) :"_s.arg(s.Grilles)
                        .arg(s.NumerosParGrille)
                        .arg(s.Base));
    titre_->setToolTip(u"Clé du système : "_s + versQt(CleSysteme(s)));
    promesse_->setText(
        u"Vous êtes assuré d'obtenir %1 numéros sur %2\nsi %3 numéros sortent parmi "
        u"votre sélection de %4"_s.arg(s.GarantieX)
            .arg(s.NumerosParGrille)
            .arg(s.GarantieY)
            .arg(s.Selection));
}

QList<QWidget*> PanneauGaranties::ordreTabulation() const {
    QList<QWidget*> ordre;
    for (QAbstractButton* choix : types_->buttons()) ordre << choix;
    return ordre << liste_ << generer_;
}

}  // namespace norvane::ui
