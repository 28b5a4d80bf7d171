// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// ZIP containers: whole in memory, read with limits, written as one file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "base/Resultat.h"
#include "base/Travail.h"

namespace norvane {

struct MembreArchive {
    std::string nom;  ///< a plain file name, or one with `/` for formats that have folders
    std::string contenu;
    bool comprime = true;  ///< deflated; else stored as it is
};

/// The one member of an archive of one file. Refused with a sentence: bytes that are no ZIP, none
/// or several members, a name with a path, an encrypted member, one that would unpack to more than
/// `octetsMax`, a wrong checksum, a stop. `nom` names the file in the sentences. Progress runs
/// 0..100 over the bytes unpacked.
Resultat<MembreArchive> LireArchive(std::string_view octets, std::string_view nom,
                                    std::uint64_t octetsMax, const Suivi& suivi = {});

/// The same from a file of at most `octetsMax` bytes itself.
Resultat<MembreArchive> LireFichierArchive(const std::filesystem::path& chemin,
                                           std::uint64_t octetsMax, const Suivi& suivi = {});

/// The bytes of an archive that holds these members, in this order. `niveau`: 1 (fast) to 9
/// (small). The same members give the same bytes. Progress runs 0..100.
Resultat<std::string> FaireArchive(std::span<const MembreArchive> membres, int niveau = 6,
                                   const Suivi& suivi = {});

}  // namespace norvane
