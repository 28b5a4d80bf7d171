// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The draw on show: how it is chosen, and how it is displayed.

#include <algorithm>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTextCharFormat>

#include "base/Dates.h"
#include "common/Theme.h"
#include "resultats/PageResultats.h"
#include "resultats/SaisieGrilles.h"
#include "stats/TableauStats.h"
#include "widgets/BandeTirage.h"
#include "widgets/ChampNumero.h"
#include "widgets/PlancheNumeros.h"
#include "widgets/TableRapports.h"

namespace norvane::ui {

using namespace Qt::StringLiterals;

namespace {

// Places in ComboBox3, by SousTirage.
constexpr int placeSelecteur(int sousTirage) {
    return sousTirage == 2 ? 1 : 0;
}

QDate enQDate(int date) {
    return QDate(date / 10000, date / 100 % 100, date % 100);
}

}  // namespace

bool PageResultats::selecteur2nd() const {
    return ComboBox3->currentIndex() == 1;
}

int PageResultats::dateChoisie() const {
    const QDate d = DateTimePicker->date();
    return d.year() * 10000 + d.month() * 100 + d.day();
}

void PageResultats::premierAffichage() {
    if (base().NbTirages < 1) return;
    const Tirage& dernier = base().enUsage().back();
    {
        const QScopedValueRollback garde(garde_, true);
        ComboBox3->setCurrentIndex(placeSelecteur(dernier.SousTirage));
        DateTimePicker->setDate(enQDate(dernier.DateTirage));
    }
    ChoisirParDate();
    ChoisirParNumero();
}

void PageResultats::surChange(const Changement& changement) {
    if (!changement.base) return;
    poserLimites();
    // Records have other indices now: nothing of the old draw may stay.
    afficherAbsence();
    premierAffichage();
    majFicheGrille();
}

void PageResultats::montrerTirage(int numero) {
    DateSansTirage = false;
    const QString texte = QString::number(std::clamp(numero, 1, std::max(1, base().NbTirages)));
    if (EditTirGlob->text() == texte) {
        ChoisirParNumero();
    } else {
        EditTirGlob->setText(texte);
    }
}

void PageResultats::deplacer(int pas) {
    if (!EditTirGlob->isEnabled()) return;
    if (DateSansTirage) {
        ChoisirParNumero();  // back to the draw before the date, whichever way
    } else {
        montrerTirage(indice_ + 1 + pas);
    }
    EditTirGlob->selectAll();
}

void PageResultats::ChoisirParDate() {
    if (garde_ || base().NbTirages < 1) return;
    const QScopedValueRollback garde(garde_, true);
    const int date = dateChoisie();
    const RechercheDate r = TirageParDate(base().Tirages, date, base().NbTirages);
    reglerSelecteur(date);
    if (r.indice < 0) {
        TirageAvant = r.precedent;
        DateSansTirage = true;
        afficherAbsence();
        disposer(date);
        return;
    }
    DateSansTirage = false;
    afficher(selonSelecteur(r.indice));
}

/// A 2nd Tirage stays chosen only on dates that can have one with a table of its own, and on dates
/// of the old game that this base does not carry.
void PageResultats::reglerSelecteur(int date) {
    const bool garder =
        date >= DateSecondTirage || (!base().AnciensTirages && date < DateNouveauLoto);
    if (selecteur2nd() && !garder) ComboBox3->setCurrentIndex(placeSelecteur(1));
}

/// From the first record of a date to the one that the selector asks for; the selector follows
/// when the date has no such record.
int PageResultats::selonSelecteur(int indice) {
    const auto tirages = base().enUsage();
    const auto t = [&tirages](int i) -> const Tirage& {
        return tirages[static_cast<std::size_t>(i)];
    };
    if (selecteur2nd() && t(indice).SousTirage != 2) {
        const bool suivi =
            indice + 1 < base().NbTirages && t(indice + 1).DateTirage == t(indice).DateTirage;
        if (suivi) return indice + 1;
        ComboBox3->setCurrentIndex(placeSelecteur(1));
    } else if (!selecteur2nd() && t(indice).SousTirage != 1) {
        ComboBox3->setCurrentIndex(placeSelecteur(2));
    }
    return indice;
}

/// The user chose "1er" or "2nd": that record of the date shows if there is one.
void PageResultats::ChoisirSousTirage() {
    if (garde_) return;
    if (indice_ < 0) {
        ChoisirParDate();
        return;
    }
    const auto tirages = base().enUsage();
    const Tirage& courant = tirages[static_cast<std::size_t>(indice_)];
    const int voulu = selecteur2nd() ? 2 : 1;
    const QScopedValueRollback garde(garde_, true);
    for (int i = std::max(0, indice_ - 1); i <= std::min(indice_ + 1, base().NbTirages - 1); ++i) {
        const Tirage& autre = tirages[static_cast<std::size_t>(i)];
        if (autre.DateTirage == courant.DateTirage && autre.SousTirage == voulu) {
            afficher(i);
            return;
        }
    }
    ComboBox3->setCurrentIndex(placeSelecteur(courant.SousTirage));
}

void PageResultats::ChoisirParNumero() {
    if (garde_ || base().NbTirages < 1) return;
    int numero = 0;
    if (DateSansTirage) {
        numero = TirageAvant + 1;
        DateSansTirage = false;
    } else if (EditTirGlob->text().isEmpty()) {
        return;
    } else {
        numero = EditTirGlob->text().toInt();
    }
    const int indice = std::clamp(numero, 1, base().NbTirages) - 1;
    const Tirage& t = base().Tirages[static_cast<std::size_t>(indice)];
    const QScopedValueRollback garde(garde_, true);
    DateTimePicker->setDate(enQDate(t.DateTirage));
    ComboBox3->setCurrentIndex(placeSelecteur(t.SousTirage));
    afficher(indice);
}

void PageResultats::afficher(int indice) {
    indice_ = indice;
    contexte.modes.AucunTirageChoisi = false;
    const QString numero = QString::number(indice + 1);
    // Text that is right already keeps its cursor: the user may be typing in it.
    if (EditTirGlob->text() != numero) EditTirGlob->setText(numero);
    disposer(base().Tirages[static_cast<std::size_t>(indice)].DateTirage);
    AfficherRapports();
    AfficherNumeroAnnee();
    afficherCellules();
    eclairer();
    AfficherStatsBoutons();
    saisie_->poserTirage(indice);
}

void PageResultats::afficherAbsence() {
    if (contexte.modes.AucunTirageChoisi) return;
    contexte.modes.AucunTirageChoisi = true;
    indice_ = -1;
    const QScopedValueRollback garde(garde_, true);
    EditTirGlob->clear();
    AfficherNumeroAnnee();
    AfficherRapports();
    bande_->vider();
    eclairer();
    AfficherStatsBoutons();
    saisie_->poserTirage(-1);
}

/// A date that may lie ahead: the receipt of a draw to come.
void PageResultats::choisirDate(int date) {
    const QDate voulue = enQDate(date);
    if (voulue > DateTimePicker->maximumDate()) DateTimePicker->setMaximumDate(voulue);
    DateTimePicker->setDate(voulue);
    ChoisirParDate();
}

/// Cells and prize table in the form that date and selector ask for.
void PageResultats::disposer(int date) {
    bande_->disposer(!selecteur2nd() && date >= DateNouveauLoto);
    rapports_->setCurrentWidget(selecteur2nd() && date >= DateSecondTirage ? AdvStringGrid8
                                                                           : AdvStringGrid6);
    majVolet();
}

void PageResultats::AfficherRapports() {
    for (TableRapports* table : {AdvStringGrid6, AdvStringGrid8}) {
        if (indice_ < 0) {
            table->vider();
        } else {
            table->afficher(base().Rapports[static_cast<std::size_t>(indice_)],
                            contexte.atelier.configuration.reglages);
        }
    }
}

/// Number in the year, year and Joker+.
void PageResultats::AfficherNumeroAnnee() {
    QString annee, numero, joker;
    if (indice_ >= 0) {
        const Tirage& t = base().Tirages[static_cast<std::size_t>(indice_)];
        const NumeroAnnee na = LireNumeroAnnee(t.AnneeNumero);
        annee = QString::number(na.annee);
        numero = QString::number(na.numero);
        if (t.Joker != JokerAbsent) {
            QStringList chiffres;
            for (const int chiffre : ChiffresJoker(t.Joker)) chiffres << QString::number(chiffre);
            joker = chiffres.join(u'.');
        }
    }
    LabelTirageFixeAn->setText(annee);
    LabelTirageFixeNum->setText(numero);
    // The field may be lent to the entry of a receipt.
    if (MaskEdit1->inputMask().isEmpty()) MaskEdit1->setText(joker);
}

void PageResultats::afficherCellules() {
    if (indice_ < 0) return;
    const Tirage& t = base().Tirages[static_cast<std::size_t>(indice_)];
    BandeTirage::Communs communs{};
    if (CommunsButton->isChecked() && indice_ > 0) {
        const Tirage& avant = base().Tirages[static_cast<std::size_t>(indice_ - 1)];
        std::size_t j = 0;
        for (std::size_t i = 0; i < NbBoules; ++i) {  // both lists ascend
            while (j < NbBoules && avant.Numeros[j] < t.Numeros[i]) ++j;
            communs[i] = j < NbBoules && avant.Numeros[j] == t.Numeros[i];
        }
        communs[NbBoules] = t.Chance != 0 && t.Chance == avant.Chance;
    }
    bande_->afficher(t, communs);
}

/// The board belongs to the draw unless numbers are being chosen on it.
bool PageResultats::plancheLibre() const {
    return !choixEnCours_ &&
           (saisie_->etat() == EtatTickets::Normal || saisie_->etat() == EtatTickets::Consultation);
}

void PageResultats::eclairer() {
    PlancheNumeros::Eclairage nouveau{};
    if (indice_ >= 0 && plancheLibre()) {
        const Tirage& t = base().Tirages[static_cast<std::size_t>(indice_)];
        std::copy(std::begin(t.Numeros), std::end(t.Numeros), nouveau.begin());
        nouveau[NbBoules] = t.Chance;
    }
    planche_->eclairer(nouveau);
}

void PageResultats::AfficherStatsBoutons() {
    planche_->poserIndices(
        IndicesBoutons(contexte.atelier.occurrences, indice_, planche_->allumes()));
}

/// Days with a draw stand out in the calendar.
void PageResultats::marquerCalendrier(int annee, int mois) {
    QCalendarWidget* calendrier = DateTimePicker->calendarWidget();
    calendrier->setDateTextFormat(QDate(), {});
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    format.setForeground(teintes(palette()).accent);
    const int debut = annee * 10000 + mois * 100;
    const auto tirages = base().enUsage();
    auto t = std::ranges::lower_bound(tirages, debut, {}, &Tirage::DateTirage);
    for (; t != tirages.end() && t->DateTirage < debut + 100; ++t) {
        calendrier->setDateTextFormat(enQDate(t->DateTirage), format);
    }
}

}  // namespace norvane::ui
