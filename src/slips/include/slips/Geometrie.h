// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where the boxes of a play slip lie: on paper, in millimetres, and on the preview of one grid, in
// pixels of its picture. Both have one structure. x runs to the right and y down, from the top left
// corner; the place of a box is its own top left corner.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"

namespace norvane {

inline constexpr int GrillesParBulletin = 6;

struct Place {
    double x = 0;
    double y = 0;

    friend constexpr bool operator==(const Place&, const Place&) = default;
};

/// The boxes of one grid, from the grid's own corner.
struct GeometrieGrille {
    double cote;                   ///< side of a box
    Place numeros;                 ///< box of number 1; five columns
    Place pasNumeros;              ///< from a column to the next, from a row to the next
    std::array<Place, 2> chances;  ///< boxes of Chance 1 and of Chance 6; five in a row
    double pasChances;

    /// 1..49.
    Place numero(int n) const;
    /// 1..10.
    Place chance(int c) const;

    friend constexpr bool operator==(const GeometrieGrille&, const GeometrieGrille&) = default;
};

/// The preview: pixels of the picture of a grid, and the size of that picture.
inline constexpr GeometrieGrille GeometrieApercu{
    26, {33, 55}, {26 + 12, 26 + 11}, {{{52, 459}, {14, 496}}}, 26 + 12};
inline constexpr int LargeurApercu = 244;
inline constexpr int HauteurApercu = 536;

/// Boxes of one option, item k (from 0) at origine + k x pas.
struct RangeeCases {
    Place origine;
    Place pas;

    Place operator[](int k) const { return {origine.x + k * pas.x, origine.y + k * pas.y}; }
    friend constexpr bool operator==(const RangeeCases&, const RangeeCases&) = default;
};

/// What a box stands for.
enum class BlocBulletin : std::uint8_t {
    Numero,    ///< value 1..49
    Chance,    ///< value 1..10
    Second,    ///< 2nd Tirage of a grid; value 1
    Semaines,  ///< value 2..5
    Joker1,    ///< value 1 or 2: that many euros; 3: + ou -1
    Joker2,    ///< the same
    Jour       ///< value 1 Monday, 2 Wednesday, 3 Saturday
};
/// "numero", "chance", "2nd", "semaines", "joker1", "joker2", "jour".
const char* NomBloc(BlocBulletin bloc);
/// What a person calls the box: "numéro 12", "2 semaines", "JOKER+ 1, + ou -1".
std::string LibelleCase(BlocBulletin bloc, int valeur);

/// One box: on paper, or of another unit where said.
struct CaseBulletin {
    int grille;  ///< place on the slip, 1..6; 0: a box of the whole slip
    BlocBulletin bloc;
    int valeur;
    Place place;
    double cote;
};

/// A slip on paper, in millimetres.
struct GeometrieBulletin {
    Place papier;                                   ///< its width and its height
    std::array<Place, GrillesParBulletin> grilles;  ///< corner of each grid
    GeometrieGrille grille;
    Place second;  ///< box 2ND TIRAGE, from the corner of its grid
    RangeeCases semaines, joker1, joker2, jours;

    /// The box of an item. `grille`: 1..6; not looked at for what the whole slip has.
    Place place(BlocBulletin bloc, int valeur, int grille = 0) const;
    /// Every box of the slip: the six grids in order, each with its numbers, chances and 2nd
    /// Tirage, then weeks, Joker+ and days.
    std::vector<CaseBulletin> cases() const;

    friend constexpr bool operator==(const GeometrieBulletin&, const GeometrieBulletin&) = default;
};

/// The geometry that holds without a file: that of data/bulletin.ini.
extern const GeometrieBulletin GeometrieIntegree;

inline constexpr const char* NomGeometrie = "bulletin.ini";

/// The geometry of a text in the form of data/bulletin.ini: sections, keys, millimetres with a
/// comma or a point; every key must be there. Refused with a sentence that names the line or the
/// key: a file cut short, words for numbers, a box or a pitch of zero, boxes that overlap in their
/// row or lie off the paper. `nom` names the file in it.
Resultat<GeometrieBulletin> LireGeometrie(std::string_view texte, std::string_view nom);

struct GeometrieChargee {
    GeometrieBulletin geometrie;
    std::string avertissement;  ///< one sentence where a file was there and could not serve
};
/// From bulletin.ini in `repertoire`, else in its folder data; without either, or where the file
/// cannot serve, the built-in geometry.
GeometrieChargee ChargerGeometrie(const std::filesystem::path& repertoire);

}  // namespace norvane
