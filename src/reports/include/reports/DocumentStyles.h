// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the twelve styles of a document look, on a dark ground and on a light one.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "reports/Document.h"

namespace norvane {

/// RVStyle1 is for a dark ground, RVStyle2 for a light one.
enum class JeuStyles : std::uint8_t { RVStyle1, RVStyle2 };

enum class Fonte : std::uint8_t { Courier, Affiche, Arial, Times, Terminal };

/// 0xRRGGBB.
using Rvb = std::uint32_t;

struct FormatStyle {
    Fonte fonte;
    int corps;  ///< points
    bool gras, italique, souligne;
    Rvb couleur;          ///< for the colour of the system, the one that it has on white paper
    bool couleurSysteme;  ///< whoever has a colour for text of its own takes that one
};

const FormatStyle& FormatDe(JeuStyles jeu, Style style);
Rvb FondDe(JeuStyles jeu);

/// Names of a family, the wanted one first, then what may stand for it.
std::span<const char* const> FamillesDe(Fonte fonte);
/// The generic family of CSS that it belongs to.
const char* FamilleGenerique(Fonte fonte);

/// A picture (not Image::Aucune) as a whole SVG file, square.
std::string_view ImageSvg(Image image);
/// What stands for it where it cannot be seen.
std::string_view ImageEnTexte(Image image);

}  // namespace norvane
