// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/PanneauCombinaison.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "comb/StatsCombinaison.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "stats/TableauStats.h"
#include "widgets/ColonnesStats.h"
#include "widgets/Fiche.h"
#include "widgets/TableauCombinaison.h"
#include "widgets/VueTableau.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

PanneauCombinaison::PanneauCombinaison(Contexte& ctx, const NomsCombinaison& noms, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      libelle_(creerLibelle(noms.libelle)),
      // Room for the six rows of the larger sizes from the start.
      table_(new TableauCombinaison(QString::fromUtf16(noms.table), colonnesCombinaison(),
                                    NbBoules + 1, ctx.Echelle, this)),
      tirages_(legende({}, this)),
      barres_(new QCheckBox(u"Ratio graphique"_s, this)),
      boutonPosition_(bouton(QString::fromUtf16(noms.position), u"&Position"_s,
                             u"Position de cette combinaison dans la liste en mémoire"_s, this)) {
    tirages_->setObjectName(QString::fromUtf16(noms.tirages));
    barres_->setObjectName(QString::fromUtf16(noms.barres));
    poserIndice(barres_, u"Afficher le ratio sous forme de barre"_s);
    auto* pied = new QHBoxLayout;
    pied->setSpacing(3 * Unite);
    pied->addWidget(tirages_);
    pied->addStretch(1);
    pied->addWidget(barres_);
    pied->addWidget(boutonPosition_);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(libelle_);
    pile->addWidget(table_->vue);
    pile->addLayout(pied);

    connect(table_, &TableauCombinaison::tirageDemande, this, [this](int numero) {
        contexte_.relais.aller(VersTirage{numero, {}});
    });
    connect(table_, &TableauCombinaison::rangDemande, this, [this](int bons) {
        contexte_.relais.aller(VersHistorique{RangCombinaison{numeros_, bons}, inf_, sup_});
    });
    connect(barres_, &QCheckBox::toggled, this, &PanneauCombinaison::rafraichir);
    connect(boutonPosition_, &QPushButton::clicked, this, &PanneauCombinaison::positionDemandee);
}

QLabel* PanneauCombinaison::creerLibelle(const char16_t* nom) {
    auto* libelle = valeur(QString::fromUtf16(nom), {}, this);
    libelle->setTextInteractionFlags(Qt::TextSelectableByMouse);
    libelle->setMinimumHeight(libelle->fontMetrics().height());
    libelle->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    poserIndice(libelle, u"Combinaison de la ligne choisie"_s);
    return libelle;
}

void PanneauCombinaison::poserIntervalle(int inf, int sup) {
    inf_ = inf;
    sup_ = sup;
    tirages_->setText(sup < inf ? QString()
                                : versQt(LibelleIntervalleCourt(contexte_.atelier.base, inf, sup)));
    if (!numeros_.vide()) rafraichir();
}

void PanneauCombinaison::montrer(Ensemble numeros) {
    if (numeros.vide() && numeros_.vide()) return;
    numeros_ = numeros;
    rafraichir();
}

void PanneauCombinaison::rafraichir() {
    if (numeros_.vide() || sup_ < inf_) {
        libelle_->clear();
        table_->montrer({}, false);
        return;
    }
    const Atelier& a = contexte_.atelier;
    const NumerosTries numeros(numeros_);
    libelle_->setText(versQt(LibelleCombinaison(numeros)));
    table_->montrer(lignesTableau(StatsCombinaison(a.base, a.occurrences, numeros, inf_, sup_)),
                    barres_->isChecked());
}

void PanneauCombinaison::cacherBulle() {
    table_->vue->cacherBulle();
}

QList<QWidget*> PanneauCombinaison::ordreTabulation() const {
    return {table_->vue, barres_, boutonPosition_};
}

}  // namespace norvane::ui
