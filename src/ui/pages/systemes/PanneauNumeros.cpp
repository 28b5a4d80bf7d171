// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemes/PanneauNumeros.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "common/Contexte.h"
#include "common/Theme.h"
#include "systemes/CommandesSysteme.h"
#include "widgets/CasesNumeros.h"
#include "widgets/Fiche.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

constexpr int Colonnes = 8;
constexpr int BoutonsParRangee = 3;

/// By SelectionSysteme::etat.
constexpr AspectsCases Aspects = {{
    {Qt::Unchecked, u"hors de la sélection", 0, 0},
    {Qt::Checked, u"numéro de base", qRgb(0x1F, 0x8A, 0x4C), qRgb(0xFF, 0xFF, 0xFF)},
    {Qt::PartiallyChecked, u"sélectionné", qRgb(0x8C, 0x94, 0xA0), qRgb(0xFF, 0xFF, 0xFF)},
}};

struct Commande {
    const char16_t *nom, *libelle, *indice;
    void (CommandesSysteme::*faire)();
};
constexpr std::array<Commande, 6> Commandes = {{
    {u"Button81", u"&Aléatoire", u"Tirer au hasard la sélection du système choisi",
     &CommandesSysteme::Button81Click},
    {u"BitBtnWithColor20", u"Tirage", u"Prendre les numéros du tirage de la page Résultats",
     &CommandesSysteme::BitBtnWithColor20Click},
    {u"BitBtnWithColor21", u"Choix Libre", u"Prendre le choix libre de la page Résultats",
     &CommandesSysteme::BitBtnWithColor21Click},
    {u"Button80", u"&Vider", u"Vider la sélection", &CommandesSysteme::Button80Click},
    {u"BitBtn6", u"&Ouvrir", u"Ouvrir une sélection *.slt", &CommandesSysteme::BitBtn6Click},
    {u"BitBtn7", u"&Sauver", u"Enregistrer la sélection dans un fichier *.slt",
     &CommandesSysteme::BitBtn7Click},
}};

}  // namespace

PanneauNumeros::PanneauNumeros(Contexte& ctx, CommandesSysteme& commandes, QWidget* parent)
    : QWidget(parent),
      contexte_(ctx),
      comptes_(valeur(u"Label88"_s, u"Numéros de la sélection"_s, this)),
      cases_(new CasesNumeros(u"RxCheckListBox6"_s, u"Numéros du système"_s, Aspects, Colonnes,
                              this)) {
    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(0, 0, 0, 0);
    pile->setSpacing(Unite);
    pile->addWidget(comptes_);
    auto* cle = legende(
        u"Gris : sélectionné. Vert : de base, dans toutes les grilles (deux au "
        u"plus)."_s,
        this);
    cle->setWordWrap(true);
    pile->addWidget(cle);
    pile->addWidget(cases_, 1);
    auto* boutons = new QGridLayout;
    boutons->setSpacing(Unite);
    ordre_ << cases_;
    for (int i = 0; const Commande& c : Commandes) {
        QPushButton* b = bouton(QString::fromUtf16(c.nom), QString::fromUtf16(c.libelle),
                                QString::fromUtf16(c.indice), this);
        connect(b, &QPushButton::clicked, &commandes, c.faire);
        boutons->addWidget(b, i / BoutonsParRangee, i % BoutonsParRangee);
        ordre_ << b;
        ++i;
    }
    pile->addLayout(boutons);
    connect(cases_, &CasesNumeros::avanceDemandee, &commandes, &CommandesSysteme::avancer);
    connect(cases_, &CasesNumeros::retraitDemande, &commandes, &CommandesSysteme::retirer);
    montrer();
}

void PanneauNumeros::montrer() {
    const SelectionSysteme& selection = contexte_.atelier.NumerosSysteme;
    EtatsCases etats{};
    for (int n = 1; n <= NumeroMax; ++n)
        etats[static_cast<std::size_t>(n - 1)] = static_cast<std::uint8_t>(selection.etat(n));
    cases_->montrer(etats);
    comptes_->setText(u"Sélection: %1     Base: %2"_s.arg(selection.SelectionCourante())
                          .arg(selection.BaseCourante()));
}

}  // namespace norvane::ui
