// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "combinaisons/SelectionsPanel.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

#include "combinaisons/BoutonEtroit.h"
#include "combinaisons/CommandesSelection.h"
#include "common/Contexte.h"
#include "common/Theme.h"
#include "lists/FichiersSelections.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

SelectionsPanel::SelectionsPanel(Contexte& ctx, CommandesSelection& commandes, QWidget* parent)
    : QDialog(parent),
      contexte_(ctx),
      commandes_(commandes),
      liste_(new QListWidget(this)),
      nombre_(valeur(u"Label218"_s, u"Nombre de sélections"_s, this)),
      indice_(valeur(u"Label216"_s, u"Indice de la sélection active"_s, this)),
      mode_(legende({}, this)) {
    setObjectName(u"SelectionsPanel"_s);
    setWindowTitle(u"S É L E C T I O N S"_s);
    liste_->setObjectName(u"ListBox7"_s);
    liste_->setAccessibleName(u"Liste de sélections"_s);
    liste_->setUniformItemSizes(true);
    poserIndice(liste_, u"Sélections ajoutées ou chargées"_s);
    auto* compte =
        rangee({legende(u"Sélections :"_s, this), nombre_, legende(u"Indice :"_s, this), indice_});
    compte->setSpacing(Unite);
    compte->insertSpacing(2, 2 * Unite);
    compte->addStretch(1);
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(3 * Unite, 2 * Unite, 3 * Unite, 2 * Unite);
    pile->setSpacing(Unite);
    pile->addLayout(compte);
    pile->addWidget(liste_, 1);
    pile->addWidget(mode_);
    pile->addLayout(creerAjouts());
    pile->addLayout(creerFichiers());
    // In the lower left of the window: what a line is shown in stands on its right.
    const QSize taille(parent->width() * 45 / 100, 24 * fontMetrics().height());
    resize(taille.expandedTo(minimumSizeHint()));
    move(parent->mapToGlobal(QPoint(2 * Unite, parent->height() - height() - 6 * Unite)));

    connect(liste_, &QListWidget::currentRowChanged, this, &SelectionsPanel::montrerLigne);
    // A line that is the active one already can be asked for again.
    connect(liste_, &QListWidget::itemActivated, this,
            [this] { montrerLigne(liste_->currentRow()); });
    direMode();
    suivre();
}

QLayout* SelectionsPanel::creerAjouts() {
    auto* enCours = boutonEtroit(u"Button71"_s, u"Ajouter la sélection en cours"_s,
                                 u"Ajouter à la liste les numéros absolus de la grille"_s, this);
    auto* memoire =
        boutonEtroit(u"Button76"_s, u"Ajout de la sélection"_s,
                     u"Ajouter à la liste les premiers numéros de la liste en mémoire"_s, this);
    auto* taille = new QSpinBox(this);
    taille->setObjectName(u"RxSpinEditSelection"_s);
    taille->setAccessibleName(u"Nombre de numéros à prendre dans la liste en mémoire"_s);
    taille->setRange(NumerosSelectionMin, NumerosSelectionMax);
    taille->setValue(TailleCombMax);
    taille->setSuffix(u" numéros"_s);
    poserIndice(taille, u"Nombre de numéros à prendre dans la liste en mémoire"_s);
    connect(enCours, &QPushButton::clicked, &commandes_, &CommandesSelection::Button71Click);
    connect(memoire, &QPushButton::clicked, this,
            [this, taille] { commandes_.Button76Click(taille->value()); });
    auto* rang = rangee({enCours, memoire, taille});
    rang->addStretch(1);
    return rang;
}

QLayout* SelectionsPanel::creerFichiers() {
    const auto creer = [this](const QString& nom, const QString& libelle, const QString& indice,
                              void (CommandesSelection::*geste)()) {
        auto* b = boutonEtroit(nom, libelle, indice, this);
        connect(b, &QPushButton::clicked, &commandes_, geste);
        return b;
    };
    auto* supprimer = boutonEtroit(u"AdvGlowButton1"_s, u"Supprimer"_s,
                                   u"Supprimer la sélection active de la liste"_s, this);
    connect(supprimer, &QPushButton::clicked, this,
            [this] { commandes_.AdvGlowButton1Click(liste_->currentRow()); });
    auto* mode =
        boutonEtroit(u"Button87"_s, u"Mode"_s,
                     u"Montrer la ligne choisie dans la grille ou dans les statistiques"_s, this);
    stats_ = boutonEtroit(u"SpeedButton5"_s, u"Stats"_s, mode->toolTip(), this);
    stats_->setCheckable(true);
    for (const QPushButton* b : {mode, stats_})
        connect(b, &QPushButton::clicked, this, &SelectionsPanel::basculer);
    auto* rang =
        rangee({creer(u"Button78"_s, u"Ouvrir Liste"_s, u"Charger une liste de sélections"_s,
                      &CommandesSelection::Button78Click),
                creer(u"Button83"_s, u"Sauver Liste"_s, u"Enregistrer la liste de sélections"_s,
                      &CommandesSelection::Button83Click),
                creer(u"Button77"_s, u"Vider Liste"_s, u"Vider la liste de sélections"_s,
                      &CommandesSelection::Button77Click),
                supprimer});
    rang->addStretch(1);
    rang->addWidget(mode);
    rang->addWidget(stats_);
    return rang;
}

void SelectionsPanel::basculer() {
    enStats_ = !enStats_;
    direMode();
    montrerLigne(liste_->currentRow());
}

void SelectionsPanel::direMode() {
    stats_->setChecked(enStats_);
    mode_->setText(enStats_ ? u"Une ligne choisie montre ses statistiques (2 à 10 numéros)."_s
                            : u"Une ligne choisie remplit la grille de sélection."_s);
}

void SelectionsPanel::suivre() {
    const auto& selections = contexte_.atelier.ListeSelections;
    if (selections == montrees_) return;
    const int ligne = liste_->currentRow();
    montrees_ = selections;
    {
        const QSignalBlocker silence(liste_);
        liste_->clear();
        QStringList lignes;
        for (const Ensemble numeros : montrees_) lignes << versQt(LigneSelection(numeros));
        liste_->addItems(lignes);
        liste_->setCurrentRow(std::min(ligne, liste_->count() - 1));
    }
    nombre_->setText(montrees_.empty() ? QString() : QString::number(montrees_.size()));
    const int active = liste_->currentRow();
    indice_->setText(active < 0 ? QString() : QString::number(active + 1));
}

void SelectionsPanel::montrerLigne(int ligne) {
    indice_->setText(ligne < 0 ? QString() : QString::number(ligne + 1));
    if (ligne < 0) return;
    const Ensemble numeros = montrees_.at(static_cast<std::size_t>(ligne));
    if (!enStats_) {
        commandes_.reprendre(numeros);
    } else if (numeros.taille() <= TailleCombMax) {
        Q_EMIT statistiquesDemandees(numeros);
    }
}

}  // namespace norvane::ui
