// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "resultats/ChoixTirage.h"

#include <algorithm>

namespace norvane::ui {

void ChoixTirage::reprendre() {
    indice_ = -1;
    montrer(base_.NbTirages);
}

void ChoixTirage::montrer(int numero) {
    DateSansTirage = false;
    ChoisirParNumero(numero);
}

void ChoixTirage::deplacer(int pas) {
    if (DateSansTirage) {
        ChoisirParNumero(0);  // back to the draw before the date, whichever way
    } else {
        montrer(indice_ + 1 + pas);
    }
}

void ChoixTirage::ChoisirParNumero(int numero) {
    if (base_.NbTirages < 1) return;
    const int voulu = DateSansTirage ? TirageAvant + 1 : numero;
    DateSansTirage = false;
    afficher(std::clamp(voulu, 1, base_.NbTirages) - 1);
}

void ChoixTirage::afficher(int indice) {
    indice_ = indice;
    date_ = record(indice).DateTirage;
    SousTirage_ = record(indice).SousTirage;
}

void ChoixTirage::ChoisirParDate(int date) {
    if (base_.NbTirages < 1) return;
    date_ = date;
    const RechercheDate r = TirageParDate(base_.Tirages, date, base_.NbTirages);
    reglerSelecteur();
    DateSansTirage = r.indice < 0;
    if (DateSansTirage) {
        TirageAvant = r.precedent;
        indice_ = -1;
    } else {
        indice_ = selonSelecteur(r.indice);
    }
}

/// A 2nd Tirage stays chosen only on dates that can have one with a table of its own, and on dates
/// of the old game that this base does not carry.
void ChoixTirage::reglerSelecteur() {
    const bool garder =
        date_ >= DateSecondTirage || (!base_.AnciensTirages && date_ < DateNouveauLoto);
    if (!garder) SousTirage_ = 1;
}

/// From the first record of a date to the one that the selector asks for; the selector follows
/// when the date has no such record.
int ChoixTirage::selonSelecteur(int indice) {
    if (second() && record(indice).SousTirage != 2) {
        const bool suivi = indice + 1 < base_.NbTirages && record(indice + 1).DateTirage == date_;
        if (suivi) return indice + 1;
        SousTirage_ = 1;
    } else if (!second() && record(indice).SousTirage != 1) {
        SousTirage_ = 2;
    }
    return indice;
}

void ChoixTirage::ChoisirSousTirage(int sousTirage) {
    if (indice_ < 0) {
        SousTirage_ = sousTirage;
        ChoisirParDate(date_);
        return;
    }
    for (int i = std::max(0, indice_ - 1); i <= std::min(indice_ + 1, base_.NbTirages - 1); ++i) {
        if (record(i).DateTirage == date_ && record(i).SousTirage == sousTirage) {
            afficher(i);
            return;
        }
    }
    const bool possible = sousTirage == 1 || date_ >= DateSecondTirage || date_ < DateNouveauLoto;
    if (!absents_ || !possible) return;
    TirageAvant = sousTirage == 2 ? indice_ : indice_ - 1;
    SousTirage_ = sousTirage;
    DateSansTirage = true;
    indice_ = -1;
}

PlaceTirage ChoixTirage::place() const {
    return {indice_, indice_ < 0 ? TirageAvant : indice_ - 1, date_, SousTirage_};
}

}  // namespace norvane::ui
