// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The files of tickets: *.grl, a list of grids, and *.rdj, a receipt (grids and Joker+ lines).
// One stream of tokens separated by white space; nothing but its stake tells that a grid takes the
// option 2nd Tirage, so a stake is kept as it stands in the file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"
#include "tickets/Grille.h"
#include "tickets/Rangs.h"

namespace norvane {

inline constexpr const char* DossierGrilles = "Grilles&Reçus";
inline constexpr const char* NomGrillesSecours = "Grlbak.grl";

/// What the extension of a name tells, in exact lower case.
enum class GenreBillets : std::uint8_t { Autre, Grilles, Recu };
GenreBillets GenreDuFichier(const std::filesystem::path& fichier);

struct RecuDeJeu {
    std::vector<Grille> grilles;
    std::vector<LigneJoker> jokers;
};

/// The text of a list of grids: the count on a line, then one grid a line, fields behind one
/// blank, numbers as the default conversion of a stream writes them (six significant digits).
std::string TexteGrilles(std::span<const Grille> grilles);
/// The text of a receipt: its grids, the count of Joker+ lines, then one line each, a blank behind
/// every field.
std::string TexteRecu(const RecuDeJeu& recu);

/// Reads the two forms. Refused with one sentence that says what and where: words for numbers, a
/// text cut short, counts above NbGrillesMax or that do not fit the text, numbers or chances out of
/// range or repeated, NaN and infinities, a stake below 0 or above a billion, something behind the
/// end. The last line may lack its end; a stake may have a decimal comma. A grid that is not sold
/// (four numbers, no chance, ...) is taken: it is for the prize rules to say that it wins nothing.
/// Nothing is allocated on the word of a count alone.
Resultat<std::vector<Grille>> LireGrilles(std::string_view texte);
Resultat<RecuDeJeu> LireRecu(std::string_view texte);

/// The same from a file; the sentence names it.
Resultat<std::vector<Grille>> ChargerGrilles(const std::filesystem::path& fichier);
Resultat<RecuDeJeu> ChargerRecu(const std::filesystem::path& fichier);

Resultat<Rien> EnregistrerGrilles(std::span<const Grille> grilles,
                                  const std::filesystem::path& fichier);
/// Writes the safety copy "Grilles&Reçus/Grlbak.grl" below `repertoire`, folder made if missing.
/// The one that it replaces becomes "Grlbak.grl~", unless it says the same.
Resultat<Rien> SauverGrillesSecours(std::span<const Grille> grilles,
                                    const std::filesystem::path& repertoire);

/// "Grilles&Reçus/<yyyymmdd>.rdj" below `repertoire`.
std::filesystem::path FichierRecu(const std::filesystem::path& repertoire, int date);
/// The date that the name of a receipt tells; nothing when its base name is no date.
std::optional<int> DateRecu(const std::filesystem::path& fichier);
/// Writes a receipt to FichierRecu, folder made if missing. With `ajouter` the receipt that stands
/// there comes first and this one behind it; refused, and nothing written, when it cannot be read
/// or when both hold more than NbGrillesMax grids. Refused too: what the reader would refuse for
/// its size.
Resultat<Rien> EnregistrerRecu(const RecuDeJeu& recu, const std::filesystem::path& repertoire,
                               int date, bool ajouter);

}  // namespace norvane
