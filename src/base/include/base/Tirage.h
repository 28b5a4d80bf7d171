// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// One draw and its prizes, as the whole program reads them.
#pragma once

#include <array>
#include <cstdint>

namespace norvane {

inline constexpr int NumeroMax = 49;        ///< numbers run from 1 to NumeroMax
inline constexpr int ChanceMax = 10;        ///< chances run from 1 to ChanceMax
inline constexpr int NbBoules = 5;          ///< numbers in a draw
inline constexpr int NbRangsLoto = 9;       ///< prize ranks of a 1er Tirage
inline constexpr int NbRangs2nd = 4;        ///< prize ranks of a 2nd Tirage since DateSecondTirage
inline constexpr int JokerAbsent = -1;      ///< the Joker+ of that date was never published
inline constexpr int NbTiragesMax = 65534;  ///< record indices are 16-bit and 65535 means "none"

// Eras of the game, as yyyymmdd, compared with Tirage::DateTirage.
inline constexpr int DatePremierTirage = 19760519;  ///< first draw of the old game
inline constexpr int DateNouveauLoto = 20081006;    ///< first draw with a Chance number
inline constexpr int DateNouveauxRangs = 20170306;  ///< nine ranks instead of six
inline constexpr int DateSecondTirage = 20191104;   ///< 2nd Tirage with prizes of its own

/// One record of the base. A date with a 1er and a 2nd Tirage takes two consecutive records.
/// Kept as eleven plain 32-bit integers: the searches walk the table with that stride.
struct Tirage {
    std::int32_t Numeros[NbBoules];  ///< 1..49, ascending
    std::int32_t Chance;             ///< 1..10, 0 when the record has none
    std::int32_t
        DateForclusion;  ///< last day to claim, yyyymmdd in the shipped table; never read back
    std::int32_t AnneeNumero;  ///< yyyy + one digit + nnn (8 digits) or yyyy + nnn (7 digits)
    std::int32_t DateTirage;   ///< yyyymmdd
    std::int32_t SousTirage;   ///< 1: 1er Tirage, 2: 2nd Tirage of the date
    std::int32_t Joker;        ///< seven digits, or JokerAbsent

    friend bool operator==(const Tirage&, const Tirage&) = default;
};
static_assert(sizeof(Tirage) == 11 * sizeof(std::int32_t));

/// Prize of one rank: a whole count of winners and an amount in euros; both 0 without winners.
struct Rapport {
    double Gagnants;
    double Gain;

    friend bool operator==(const Rapport&, const Rapport&) = default;
};

/// The nine ranks of a record, rank 1 first. A 2nd Tirage since DateSecondTirage fills the
/// first four and leaves the rest at zero. The six ranks of 2008-2017 stand at 0, 1, 3, 5, 7, 8.
using RapportsTirage = std::array<Rapport, NbRangsLoto>;
static_assert(sizeof(RapportsTirage) == 144);

/// True for a record that has the four-rank prize table (a 2nd Tirage since DateSecondTirage).
constexpr bool EstSecondTirage(const Tirage& t) {
    return t.SousTirage == 2 && t.DateTirage >= DateSecondTirage;
}

/// The seven decimal digits of a Joker+ number, most significant first; all -1, which match
/// no digit, for JokerAbsent.
std::array<int, 7> ChiffresJoker(std::int32_t joker);

/// "N°" and "Année" of a draw, as the decimal text of AnneeNumero gives them.
struct NumeroAnnee {
    int annee;   ///< first four digits
    int numero;  ///< three digits from position 6 (8-digit form) or 5 (7-digit form)
};
NumeroAnnee LireNumeroAnnee(std::int32_t anneeNumero);

}  // namespace norvane
