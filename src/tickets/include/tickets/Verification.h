// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What tickets won on one date: the text report Lotoveri.dat, and one ticket at a time for the
// page of results. Line ends are LF. Draw numbers are one-based.
#pragma once

#include <array>
#include <iosfwd>
#include <span>
#include <string>

#include "base/Base.h"
#include "tickets/Grille.h"
#include "tickets/Rangs.h"

namespace norvane {

inline constexpr const char* NomVerification = "Lotoveri.dat";

/// How amounts are told.
struct Monnaie {
    std::string symbole = "€";  ///< one that begins with the euro sign is told by the word
    double taux = 6.55957;      ///< francs for one euro
};

/// Sums over all tickets of a verification, euros, not rounded.
struct TotauxVerification {
    double gain = 0;
    double mise = 0;  ///< a ticket counts once for each draw that it takes part in
};

/// One line for each ticket: its number in the list, its numbers and chances, its stake.
void EcrireListeGrilles(std::span<const Grille> grilles, const Monnaie& monnaie,
                        std::ostream& flux);

/// One line for each Joker+ number; nothing without any.
void EcrireListeJoker(std::span<const LigneJoker> lignes, const Monnaie& monnaie,
                      std::ostream& flux);

/// The tickets against draw `numero` (1..NbTirages), dated before DateSecondTirage: head, result
/// of each ticket, sums.
TotauxVerification VerifierTirage(const Base& base, std::span<const Grille> grilles, int numero,
                                  const std::string& date, const Monnaie& monnaie,
                                  std::ostream& flux);

/// The same since DateSecondTirage: against both draws of the date, whichever of them `numero`
/// is, or against the one that the base has.
TotauxVerification VerifierDeuxTirages(const Base& base, std::span<const Grille> grilles,
                                       int numero, const std::string& date, const Monnaie& monnaie,
                                       std::ostream& flux);

/// The Joker+ lines (one at least) against the seven digits drawn, -1 where they were never
/// published; gives back what they won, euros.
double VerifierJoker(std::span<const LigneJoker> lignes, const std::array<int, 7>& tire,
                     const Monnaie& monnaie, std::ostream& flux);

/// The whole text of Lotoveri.dat for draw `numero`, 1..NbTirages, and its date.
std::string RedigerVerification(const Base& base, int numero, std::span<const Grille> grilles,
                                std::span<const LigneJoker> jokers, const Monnaie& monnaie);

/// What one ticket won on one record, as the page of results shows it beside the prizes.
struct ResultatGrille {
    Bons bons{};
    bool second = false;     ///< the record has the four ranks of a 2nd Tirage
    ComptesRangs comptes{};  ///< wins per rank; the first four for a 2nd Tirage
    double gain = 0;         ///< euros, not rounded
};
/// All wins are 0 on a 2nd Tirage that the ticket does not take part in.
ResultatGrille VerifierGrille(const Grille& grille, const Tirage& tirage,
                              const RapportsTirage& rapports);

}  // namespace norvane
