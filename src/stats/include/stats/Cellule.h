// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// One cell of a table as data: what is read in it, what its column is sorted by, and what a double
// click on it opens. Nothing is ever found out from the text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace norvane {

enum class GenreStats { Numeros, Chances };

/// A number, or a Chance.
struct Element {
    GenreStats genre;
    int valeur;  ///< from 1

    friend bool operator==(const Element&, const Element&) = default;
};

struct NumeroTirage {
    int numero;  ///< one-based

    friend bool operator==(const NumeroTirage&, const NumeroTirage&) = default;
};

/// A row of a table of ranks: its good numbers, or its category.
struct RangTable {
    int indice;

    friend bool operator==(const RangTable&, const RangTable&) = default;
};

/// The draw that a cell speaks of, or what it has a history of.
using Cible = std::variant<NumeroTirage, Element, RangTable>;

struct Cellule {
    std::string texte;           ///< UTF-8: shown, saved and printed
    std::int64_t cle = 0;        ///< place in an ascending sort of the column; equal keys tie
    std::optional<Cible> cible;  ///< none: a double click opens nothing

    friend bool operator==(const Cellule&, const Cellule&) = default;
};

Cellule CelluleEntier(std::int64_t valeur);

/// "07,35% ": `fois` times in `tirages` draws. The key is the graphic ratio, that is hundredths of
/// a percent, 0..10000.
Cellule CelluleRatio(int fois, int tirages);

/// The long date yyyymmdd of draw `numero`, which it leads to; for a `date` of 0 `jamais`, which
/// stands before every date and leads nowhere.
Cellule CelluleDate(int date, std::string_view jamais, int numero);

/// "12  (02 0045)": value and count with the mask "00", the position padded to as many digits as
/// the one-based last draw of the interval asks (1 up to 9, 2 up to 99, 3 up to 999, else 4).
/// Sorted by value, then count, then position (each below 65536). It leads to the draw `position`,
/// or nowhere when that lies before the interval, which starts at record `premier` (zero-based).
Cellule CelluleMaximum(int valeur, int nombre, int position, int premier, int dernierTirage);

/// "12  (02 24/07/2024)": the same with the short date yyyymmdd of that draw, to which it leads. A
/// `date` of 0: the position lies before the interval, "12  (02)" is all, and it leads nowhere.
Cellule CelluleMaximumDate(int valeur, int nombre, int position, int date);

}  // namespace norvane
