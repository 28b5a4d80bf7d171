// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The base kept across runs: norvane.db, an SQLite file in the program's directory.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "base/Base.h"
#include "base/Resultat.h"

namespace norvane {

inline constexpr const char* NomStockage = "norvane.db";

/// Outcome of opening the stored base.
struct BaseChargee {
    Base base;
    /// One French sentence for the user when something had to be put right (a damaged or foreign
    /// file set aside, an unreadable one passed over); empty when all was well.
    std::string avertissement;
    bool depuisFichier = false;  ///< false: the built-in base is in use
    /// A file, or something else of that name, still stands there unread (made by a later version,
    /// out of reach, a link that leads nowhere): not to be replaced by the built-in base.
    bool laissee = false;
};

/// Loads `repertoire`/norvane.db; the built-in base when there is none. Never fails: a damaged,
/// empty or foreign file (one whose tables are not ours to the letter is foreign) is moved to
/// "norvane.db.abimee-<yyyymmdd-hhmmss>" beside it and the built-in base is used; when the file
/// cannot be moved or read, or is a link that leads nowhere, it is left alone and told.
/// `globale` asks for the old game's draws as well. When the file holds the present game alone,
/// the built-in old draws are put in front of its records; when it holds both and `globale` is
/// false, the records before DateNouveauLoto stay in the file and out of memory.
BaseChargee ChargerBase(const std::filesystem::path& repertoire, bool globale);

/// Reads one storage file, with full checks (size, version, text of the schema, integrity, every
/// record).
Resultat<Base> LireStockage(const std::filesystem::path& fichier);

/// Writes the base in use (NbTirages records) in one transaction; makes the file when missing.
/// A base with AnciensTirages clear written over a file that holds the old game as well replaces
/// the records since DateNouveauLoto only: the older ones stay.
/// A kill at any moment leaves the old or the new base whole. A file written by a later version is
/// refused and left alone, as is a link that leads nowhere; a damaged or foreign one is set aside
/// first, as by ChargerBase. Refused too: a record that would not be read back (numbers not
/// ascending, wrong order, ...). Precondition: no filter is active, as the records that it left out
/// would be lost.
Resultat<Rien> SauverBase(const Base& base, const std::filesystem::path& fichier);

}  // namespace norvane
