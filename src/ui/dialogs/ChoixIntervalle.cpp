// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "dialogs/ChoixIntervalle.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "atelier/Intervalle.h"
#include "base/Dates.h"
#include "common/Theme.h"
#include "widgets/Fiche.h"
#include "widgets/PaireIntervalle.h"
#include "widgets/SpinTirage.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

TChoixIntervalle::TChoixIntervalle(Contexte& ctx, QWidget* parent)
    : QDialog(parent),
      contexte_(ctx),
      intervalle_(new PaireIntervalle(u"RxSpinEditStats"_s, u"RxSpinEditStats2"_s,
                                      u"Tirages sur lesquels portent les combinaisons"_s, this)),
      libelle_(new QLabel(this)) {
    setObjectName(u"TChoixIntervalle"_s);
    setWindowTitle(u"Choix d'un Intervalle de calcul "_s);
    libelle_->setObjectName(u"LabelTirages"_s);
    auto* rappel = new QLabel(u"Rappel"_s, this);
    QFont gras = rappel->font();
    gras.setBold(true);
    rappel->setFont(gras);
    auto* regle = rangee({rappel, new QLabel(u":  L'intervalle n'est pas limité !"_s, this)});
    regle->addStretch(1);
    auto* boutons = new QDialogButtonBox(this);
    boutons->addButton(u"&OK"_s, QDialogButtonBox::AcceptRole)->setDefault(true);
    boutons->addButton(u"&Annuler"_s, QDialogButtonBox::RejectRole);
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(intervalle_, &PaireIntervalle::intervalleChange, this, &TChoixIntervalle::montrer);

    auto* pile = new QVBoxLayout(this);
    pile->setContentsMargins(4 * Unite, 3 * Unite, 4 * Unite, 3 * Unite);
    pile->setSpacing(2 * Unite);
    pile->addWidget(intervalle_);
    pile->addWidget(libelle_);
    pile->addLayout(regle);
    pile->addWidget(boutons);
    pile->setSizeConstraint(QLayout::SetFixedSize);

    const Atelier& a = contexte_.atelier;
    intervalle_->poser(a.base.NbTirages, a.occurrences.IntervalleInf, a.occurrences.IntervalleSup);
    montrer();
    intervalle_->controleInf().setFocus();
    intervalle_->controleInf().selectAll();
}

int TChoixIntervalle::inf() const {
    return intervalle_->controleInf().value();
}

int TChoixIntervalle::sup() const {
    return intervalle_->controleSup().value();
}

void TChoixIntervalle::montrer() {
    const Base& base = contexte_.atelier.base;
    if (!VerifierIntervalle(base, inf(), sup())) return;
    const auto date = [&](int numero) {
        return versQt(DateLongue(base.Tirages[static_cast<std::size_t>(numero - 1)].DateTirage));
    };
    libelle_->setText(u"Statistiques sur %1 Tirage(s)\ndu %2\nau %3"_s.arg(sup() - inf() + 1)
                          .arg(date(inf()), date(sup())));
}

void TChoixIntervalle::accept() {
    const Occurrences& occ = contexte_.atelier.occurrences;
    if (const auto juste = VerifierIntervalle(contexte_.atelier.base, inf(), sup()); !juste) {
        contexte_.services.messages->MessageAvertissement(versQt(juste.erreur()), u"Attention"_s);
        return;
    }
    done(inf() == occ.IntervalleInf && sup() == occ.IntervalleSup ? IntervalleInchange
                                                                  : IntervalleChange);
}

}  // namespace norvane::ui
