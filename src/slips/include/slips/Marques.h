// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The marks of slips: squares centred in the boxes, on paper and on the preview.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "slips/Bulletins.h"
#include "slips/Geometrie.h"

namespace norvane {

/// Sizes of a mark, 1 to 4.
inline constexpr int MarqueMax = 4;
/// Parts of the side of a box.
struct ProportionsMarque {
    double marge;  ///< a: from the box to the mark
    double cote;   ///< b: side of the mark
};
/// That of size 4 for what is none of 1..3.
ProportionsMarque Proportions(int marque);

/// A mark of the preview of a grid: edges in pixels of its picture, rounded.
struct MarqueApercu {
    BlocBulletin bloc;  ///< Numero or Chance
    int valeur;
    int gauche, haut, droite, bas;

    friend bool operator==(const MarqueApercu&, const MarqueApercu&) = default;
};
/// Numbers, then chances, in the order in which they were ticked.
std::vector<MarqueApercu> MarquesApercu(const Grille& grille, int marque);

/// How marks go to the paper.
struct MiseEnPlace {
    GeometrieBulletin geometrie = GeometrieIntegree;
    int marque = MarqueMax;
    double DecalageImprimanteBordHaut = 0;    ///< millimetres down
    double DecalageImprimanteBordGauche = 0;  ///< millimetres to the right
};

/// The marks of slip `bulletin` (from 1), in millimetres, offsets included, not rounded: its grids
/// in order, each with its numbers, its chances and its 2nd Tirage, then the options of the slip:
/// weeks, Joker+ 1 and 2, days.
std::vector<CaseBulletin> MarquesBulletin(const MiseEnPlace& mise, std::span<const Grille> grilles,
                                          const OptionsBulletin& options, int bulletin);

/// Whether a part of the mark lies off the paper.
bool HorsPapier(const CaseBulletin& marque, const GeometrieBulletin& geometrie);

/// One sentence that counts the marks of slips `du`..`au` that would fall off the paper and names
/// the first of them; empty when there are none.
std::string AvertissementHorsPapier(const MiseEnPlace& mise, std::span<const Grille> grilles,
                                    const OptionsBulletins& options, int du, int au);

}  // namespace norvane
