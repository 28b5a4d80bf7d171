// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The engine's files of the whole base while a filtered one is in memory: COMBCALC.INI and
// comb2.dat to comb5.dat bear other names. A note beside them tells which of them there were, so
// that a program that died at any moment leaves what the next one can put back.
#pragma once

#include <filesystem>

#include "base/Resultat.h"

namespace norvane {

inline constexpr const char* NomNoteFiltre = "filtre.etat";

/// Sets the files aside. On an error they are where they were.
Resultat<Rien> EcarterFichiersFiltre(const std::filesystem::path& repertoire);

/// True when files of the whole base are set aside.
bool FichiersEcartes(const std::filesystem::path& repertoire);

/// The files come back, byte for byte, and those of the filtered base go; what was missing is
/// missing again. May be called again after an error. Files set aside without a note come back by
/// RestaurerFichiersFiltre.
Resultat<Rien> RendreFichiersFiltre(const std::filesystem::path& repertoire);

}  // namespace norvane
