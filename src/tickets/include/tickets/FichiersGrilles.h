// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The files of tickets: *.grl, a list of grids, and *.rdj, a receipt (grids and Joker+ lines).
// One stream of tokens separated by white space.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"
#include "tickets/Grille.h"
#include "tickets/Rangs.h"

namespace norvane {

struct Recu {
    std::vector<Grille> grilles;
    std::vector<LigneJoker> jokers;
};

/// Text of a receipt.
std::string TexteRecu(const Recu& recu);

/// Reads the two forms. Refused with one sentence that says what and where: words for numbers, a
/// text cut short, counts that do not fit the text, N or C of no ticket, numbers or chances out of
/// range or repeated, NaN and infinities, something behind the end. Nothing is allocated on the
/// word of a count alone.
Resultat<std::vector<Grille>> LireGrilles(std::string_view texte);
Resultat<Recu> LireRecu(std::string_view texte);

Resultat<Rien> EnregistrerGrilles(std::span<const Grille> grilles,
                                  const std::filesystem::path& fichier);

/// "Grilles&Reçus/<yyyymmdd>.rdj" below `repertoire`.
std::filesystem::path FichierRecu(const std::filesystem::path& repertoire, int date);
/// Writes a receipt there, folder made if missing. With `ajouter` the receipt that stands there
/// comes first and this one behind it; refused, and nothing written, when it cannot be read.
Resultat<Rien> EnregistrerRecu(const Recu& recu, const std::filesystem::path& repertoire, int date,
                               bool ajouter);

}  // namespace norvane
