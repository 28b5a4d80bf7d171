// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The files of lists of combinations: *.lst, a ZIP of one text that holds the records, and the
// plain text of the lines.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "base/Resultat.h"
#include "base/Travail.h"
#include "lists/Liste.h"

namespace norvane {

inline constexpr const char* ExtensionListe = "lst";

/// Reads a *.lst: the records in the order of the file, without marks or sort, DebutListe and
/// FinListe as they stand there, whatever the base holds. `gains` is the shape of the prizes now in
/// force: it gives the length of a record of ModeStockage::RangsDeGain. A list of no record is read
/// with its size, mode and interval, and is still empty.
/// Refused with one sentence that says what, where and what to do: a file that is no ZIP or not of
/// one plain member, one that unpacks beyond the memory at hand, words for numbers, a size, a mode
/// or an interval out of range, more or fewer words than its records take (the count lies, the file
/// is cut short, or the prizes were others when it was made), numbers that are not 1..49 ascending,
/// a stop. Nothing is allocated on the word of a count alone. Progress runs 0..200: the file
/// unpacked, then read.
Resultat<Liste> OuvrirListe(const std::filesystem::path& fichier, FormeGains gains,
                            const Suivi& suivi = {});

/// Writes a *.lst: the records in the order of the lines, marks and sort left out. Its one member
/// bears the name of the file with the extension "tmp". A stop leaves what stood there. Progress
/// runs 0..100.
Resultat<Rien> SauverListe(const Liste& liste, const std::filesystem::path& fichier,
                           const Suivi& suivi = {});

/// Bytes of the text that SauverListe compresses.
std::uint64_t TailleTexteListe(const Liste& liste);

/// Writes the lines of the list as plain text, all of them, in their order and as a list box shows
/// them (LigneCombinaison), one a line.
Resultat<Rien> ExporterListe(const Liste& liste, const std::filesystem::path& fichier,
                             const Suivi& suivi = {});

}  // namespace norvane
