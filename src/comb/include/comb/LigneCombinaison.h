// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The text of a combination: "07 23  (112)", in list boxes, files and reports.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"
#include "comb/Combinaison.h"
#include "comb/Enregistrement.h"

namespace norvane {

/// Numbers with the mask "00" and one blank between them, two blanks, the count with the mask "00"
/// between parentheses; `marque` adds " N", the mark of a line that a new draw brought.
std::string LigneCombinaison(std::span<const Mot> numeros, int nbFois, bool marque = false);
inline std::string LigneCombinaison(const Combinaison& c) {
    return LigneCombinaison(NumerosTries(c.numeros), c.NbFois, c.marque);
}
/// The line of a record: its count is that of the first-rank block.
std::string LigneEnregistrement(std::span<const Mot> enregistrement, Disposition disposition);

/// Nothing for a text of another form. Blanks at the end are passed over.
std::optional<Combinaison> LireLigneCombinaison(std::string_view ligne);

/// The lines of a list file of `taille` numbers. A missing file is an empty list. An error names
/// the first line of another form or size.
Resultat<std::vector<Combinaison>> LireListe(const std::filesystem::path& fichier, int taille);
Resultat<Rien> EcrireListe(const std::filesystem::path& fichier,
                           std::span<const Combinaison> lignes);

}  // namespace norvane
