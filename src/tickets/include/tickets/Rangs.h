// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The prize rules: which rank a result falls in, how a multiple ticket breaks down into simple
// grids, how the Joker+ pays, and how amounts are told. Pure, without allocation.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/Tirage.h"
#include "tickets/Grille.h"

namespace norvane {

/// Labels of the ranks as the reports print them, trailing blanks included; indices 9 to 11 are
/// spare entries that no loop reaches.
extern const std::array<const char*, 12> LibellesRangLoto;
extern const std::array<const char*, NbRangs2nd> LibellesRang2nd;

using ComptesRangs = std::array<int, NbRangsLoto>;  ///< wins per rank of a 1er Tirage
using ComptesRangs2nd = std::array<int, NbRangs2nd>;

/// True when the game had rank `rang` (0..8) on the day of that draw: its first four for a 2nd
/// Tirage with prizes of its own; six of nine before DateNouveauxRangs; none whose prizes the base
/// knows before DateNouveauLoto.
bool RangExiste(const Tirage& tirage, int rang);

struct Bons {
    int numeros;  ///< of the ticket among the five drawn
    int chances;  ///< 0 or 1
};
Bons CompterBons(const Grille& grille, const Tirage& tirage);

/// Key of one result of a multiple ticket: n x 1000 + g x 100 + c x 10 + gc for c below 10,
/// n x 10000 + g x 1000 + c x 10 + gc for c of 10.
int CleRang(int n, int g, int c, int gc);

/// One row of a rank table, sorted by key: 312 rows for the 32 playable tickets.
struct LigneRangs {
    int cle;
    ComptesRangs comptes;
};
struct LigneRangs2nd {
    int cle;  ///< n x 10 + g
    ComptesRangs2nd comptes;
};
std::span<const LigneRangs> TableRangs2017();
std::span<const LigneRangs> TableRangsAvant2017();
std::span<const LigneRangs2nd> TableRangs2nd();  ///< 20 rows

/// RangLoto index of one simple result; 9 or more means no win. g 0..5, gc 0..1.
int RangSimple(int g, int gc);

/// Wins of a result by key, in the table that `date` (yyyymmdd) selects; nothing for no win.
std::optional<ComptesRangs> ChercherRangs(int cle, int date);
std::optional<ComptesRangs2nd> ChercherRangs2nd(int n, int g);

/// Wins of a result of any ticket: by key, but one of four numbers without a chance is read from
/// RangSimple. g 0..5, gc 0..1; nothing for no win.
std::optional<ComptesRangs> RangsResultat(int n, int g, int c, int gc, int date);

/// Wins of a ticket on a draw; all zero for none.
ComptesRangs RangsGagnes(const Grille& grille, const Tirage& tirage);
/// Wins on a 2nd Tirage record; all zero when the ticket does not take part.
ComptesRangs2nd Rangs2ndGagnes(const Grille& grille, const Tirage& tirage);

/// One Joker+ number: seven digits, first digit first, then the stake code 1 to 4.
struct LigneJoker {
    std::array<std::int32_t, 7> chiffres;
    std::int32_t code;  ///< 1, 2: one or two stakes; 3, 4: the same with the option +OU-1

    friend bool operator==(const LigneJoker&, const LigneJoker&) = default;
};
/// The seven digits of a text that holds nothing else.
std::optional<std::array<std::int32_t, 7>> LireChiffresJoker(std::string_view texte);

extern const std::array<int, 8> GainJoker;  ///< euros by digits matched
extern const std::array<double, 8> GainJokerOption;
/// Price of a line in euros: the code below 3, else 2 x code - 4.
int PrixJoker(int code);

/// What a line wins: lengths and tolerances as they stand after the last step of the rule.
struct ResultatJoker {
    int gauche = 0;            ///< digits matched from the left
    int droite = 0;            ///< from the right
    int toleranceGauche = -1;  ///< position of the tolerated digit, -1 for none
    int toleranceDroite = -1;
    double gainGauche = 0;  ///< euros
    double gainDroite = 0;
    double gain() const { return gainGauche + gainDroite; }
};
/// `tire`: the seven digits drawn; digits of -1 (never published) match nothing, near included.
ResultatJoker GainJokerLigne(const LigneJoker& ligne, const std::array<int, 7>& tire);

/// Euros and francs in whole ten-thousandths, rounded to nearest.
struct Conversion {
    std::int64_t euros;   ///< ten-thousandths of a euro
    std::int64_t francs;  ///< ten-thousandths of a franc, at `taux` francs for one euro
    double enEuros() const { return static_cast<double>(euros) / 10000.0; }
    double enFrancs() const { return static_cast<double>(francs) / 10000.0; }
};
Conversion Convertir(double euros, double taux);

/// The word behind an amount: " Euros", " Euro" where `singulier`, or a blank and the symbol when
/// it does not begin with the euro sign.
std::string LibelleMonnaie(const std::string& symbole, bool singulier = false);
/// The amount (mask "#,##0.00", after Convertir) and its word; with francs " (12,34 F)" behind.
std::string LibelleMontant(double montant, const std::string& symbole, double taux,
                           bool avecFrancs);

/// Nominal prize of a combination of `taille` numbers (2..10) with k good ones, from the nominal
/// prizes G(2)..G(5) of one simple grid: G(k) up to size 5, above it the sum over j of
/// C(k,j) x C(taille-k,5-j) x G(j); 0 for k below 2 and above 5.
double GainNominal(int taille, int k, const std::array<double, 4>& gains);

}  // namespace norvane
