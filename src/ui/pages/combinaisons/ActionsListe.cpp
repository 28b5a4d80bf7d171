// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/ActionsListe.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "combinaisons/LegendeLignes.h"
#include "combinaisons/PanneauDivision.h"
#include "combinaisons/PanneauTri.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

QString libelleTri(TypeTri type, ModeStockage mode) {
    switch (type) {
        case TypeTri::Simple:
            return u"Tri simple des combinaisons selon le premier rang"_s;
        case TypeTri::Profondeur:
            return mode == ModeStockage::RangsDeGain
                       ? u"Tri approfondi des combinaisons sur les rangs de gain uniquement"_s
                       : u"Tri approfondi des combinaisons sur tous les rangs"_s;
        case TypeTri::Gain:
            return u"Tri des combinaisons ayant le plus ou moins rapporté"_s;
        case TypeTri::Sans:
            break;
    }
    return {};
}

/// The sort that the list has, but for one that is asked for and not done yet.
TypeTri typeMontre(const EtatTri& voulu, const Liste& liste) {
    if (liste.vide()) return TypeTri::Sans;
    const bool autre =
        voulu.TypeTriListe == TypeTri::Profondeur || voulu.TypeTriListe == TypeTri::Gain;
    return autre || liste.tri.TypeTriListe != TypeTri::Sans ? voulu.TypeTriListe : TypeTri::Sans;
}

}  // namespace

ActionsListe::ActionsListe(Contexte& ctx, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      legende_(new LegendeLignes(this)),
      verrou_(new QCheckBox(u"&Glisser/Déplacer verrouillé"_s, this)),
      genre_(legende({}, this)),
      tri_(bouton(u"ButtonTri"_s, u"&Trier"_s, u"Trier la liste en mémoire"_s, this)),
      rangs_(bouton(u"ButtonTriProfondeur"_s, u"&Rangs"_s,
                    u"Calculer les rangs inférieurs des combinaisons de la liste"_s, this)),
      details_(bouton(u"BitBtnWithColor1"_s, u"&Détails"_s,
                      u"Ce que contient la liste en mémoire, ou arrêt du calcul en cours"_s, this)),
      division_(new PanneauDivision(ctx, this)) {
    verrou_->setObjectName(u"CheckBoxDrag"_s);
    poserIndice(verrou_,
                u"Un clic choisit des lignes sans les afficher ni les glisser d'une liste à "
                u"l'autre"_s);
    connect(verrou_, &QCheckBox::clicked, this, [this](bool verrouille) {
        contexte_.atelier.GlisserVerrouille = verrouille;
        contexte_.relais.annoncer({.listes = true});
    });
    genre_->setObjectName(u"Label25"_s);
    genre_->setWordWrap(true);
    // Two lines: the longest text of those that it shows.
    genre_->setMinimumHeight(2 * genre_->fontMetrics().height());
    genre_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto* boutons = new QHBoxLayout;
    boutons->setSpacing(Unite);
    for (QPushButton* b : {tri_, rangs_, details_}) {
        // Those that go leave their place.
        QSizePolicy taille(QSizePolicy::Expanding, QSizePolicy::Fixed);
        taille.setRetainSizeWhenHidden(true);
        b->setSizePolicy(taille);
        b->setMinimumWidth(1);
        boutons->addWidget(b, 1);
    }
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(legende_);
    pile->addWidget(verrou_);
    pile->addWidget(genre_);
    pile->addLayout(boutons);
    pile->addWidget(division_);
    connect(tri_, &QPushButton::clicked, this, &ActionsListe::ButtonTriClick);
    connect(rangs_, &QPushButton::clicked, this, &ActionsListe::ButtonTriProfondeurClick);
    connect(details_, &QPushButton::clicked, this, &ActionsListe::BitBtnWithColor1Click);
}

void ActionsListe::suivre(const VueTri& vue) {
    const bool manipulation = contexte_.atelier.modeListe == ModeListe::Manipulation;
    legende_->setVisible(!manipulation);
    verrou_->setVisible(manipulation);
    verrou_->setChecked(contexte_.atelier.GlisserVerrouille);
    tri_->setVisible(vue.plusieurs());
    rangs_->setVisible(vue.rangs ||
                       (vue.inferieurs() && vue.liste.NbCombRangs != vue.liste.nombre()));
    rangs_->setText(vue.rangs ? u"STOP"_s : u"&Rangs"_s);
    genre_->setText(vue.montree ? libelleTri(typeMontre(vue.voulu, vue.liste), vue.liste.mode())
                                : QString());
    division_->suivre();
}

QList<QWidget*> ActionsListe::ordreTabulation() const {
    return QList<QWidget*>{verrou_, tri_, rangs_, details_} + division_->ordreTabulation();
}

}  // namespace norvane::ui
