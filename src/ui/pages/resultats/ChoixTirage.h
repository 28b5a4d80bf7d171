// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which draw is on show: chosen by its date, by its number, or beside the present one. No window
// here; a base without records leaves everything as it is.
#pragma once

#include "atelier/EditionBase.h"

namespace norvane::ui {

class ChoixTirage {
 public:
    explicit ChoixTirage(const Base& base) : base_(base) {}

    /// Record on show; -1 when the date chosen has none.
    int indice() const { return indice_; }
    /// The same; null for none.
    const Tirage* tirage() const { return indice_ < 0 ? nullptr : &record(indice_); }
    /// The record before it in the base; null for none.
    const Tirage* precedent() const { return indice_ < 1 ? nullptr : &record(indice_ - 1); }
    /// Date chosen, yyyymmdd.
    int date() const { return date_; }
    /// The 2nd Tirage of a date is asked for.
    bool second() const { return SousTirage_ == 2; }
    /// The draw has a Chance.
    bool avecChance() const { return !second() && date_ >= DateNouveauLoto; }
    /// The draw has the prizes of a 2nd Tirage.
    bool rapportsSecond() const { return second() && date_ >= DateSecondTirage; }

    /// Where a record of this date and Tirage stands, or would stand.
    PlaceTirage place() const;
    /// Whether a Tirage that a date does not have can be chosen: it is about to be entered.
    void permettreAbsents(bool permis) { absents_ = permis; }

    void ChoisirParDate(int date);
    /// One-based; out of range: the nearest. After a date without a draw: the draw before that
    /// date, whatever the number.
    void ChoisirParNumero(int numero);
    /// 1 or 2: that record of the date, if there is one; where it may be missing: none.
    void ChoisirSousTirage(int sousTirage);
    /// Draw `numero`, also after a date without a draw.
    void montrer(int numero);
    void deplacer(int pas);
    /// The base is another one: its last draw.
    void reprendre();

 private:
    const Tirage& record(int i) const { return base_.Tirages[static_cast<std::size_t>(i)]; }
    void reglerSelecteur();
    int selonSelecteur(int indice);
    void afficher(int indice);

    const Base& base_;
    int indice_ = -1;
    int TirageAvant = -1;  ///< when the date has no record: the last one before it
    bool DateSansTirage = false;
    int date_ = 0;
    int SousTirage_ = 1;
    bool absents_ = false;
};

}  // namespace norvane::ui
