// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The text of a combination: "07 23  (112)", in list boxes, files and reports.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"
#include "comb/Enregistrement.h"

namespace norvane {

/// Most lines that a list box shows and most records that a buffer list holds.
inline constexpr std::size_t CapaciteListe = 32736;

/// Numbers with the mask "00" and one blank between them, two blanks, the count with the mask "00"
/// between parentheses; `marque` adds " N", the mark of a line that a new draw brought.
std::string LigneCombinaison(std::span<const Mot> numeros, int nbFois, bool marque = false);
/// The line of a record: its count is that of the first-rank block.
std::string LigneEnregistrement(std::span<const Mot> enregistrement, Disposition disposition);

struct CombinaisonLue {
    std::vector<Mot> numeros;  ///< 2 to 10 of them, ascending, 1..49
    int nbFois = 0;            ///< 0..65535
    bool marque = false;
};
/// Nothing for a text of another form. Blanks at the end are passed over.
std::optional<CombinaisonLue> LireLigneCombinaison(std::string_view ligne);

/// The lines of a list file of `taille` numbers, as they stand but for the line ends. A missing
/// file is an empty list. An error names the first line of another form or size.
Resultat<std::vector<std::string>> LireListe(const std::filesystem::path& fichier, int taille);
Resultat<Rien> EcrireListe(const std::filesystem::path& fichier,
                           std::span<const std::string> lignes);

/// The zero-based index of the record with these numbers, ascending.
std::optional<std::size_t> ChercherCombinaison(const Arene& liste, std::span<const Mot> numeros);

}  // namespace norvane
