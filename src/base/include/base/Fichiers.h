// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reading and writing whole files so that nothing is ever half written.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/Resultat.h"

namespace norvane {

/// Writes `contenu` to a temporary beside `chemin`, flushes it to the disk and renames it: at any
/// moment the old file or the new one stands there whole. On failure the old file is untouched
/// and the temporary is gone. The new file takes the owner, the group and the permissions of the
/// one that it replaces, as far as the system lets us.
Resultat<Rien> EcrireFichier(const std::filesystem::path& chemin, std::string_view contenu);

/// The whole file. A missing file, a link that leads nowhere, a directory, or a file above
/// `tailleMax` bytes is an error; the size is looked at before anything is read.
Resultat<std::string> LireFichier(const std::filesystem::path& chemin, std::uint64_t tailleMax);

/// Something bears this name: a file that is worth reading, or a thing to complain about, such as a
/// link that leads nowhere or a name that the system will not look up.
bool NomPresent(const std::filesystem::path& chemin);

/// What keeps the file from being read, as a piece of a French sentence; empty when nothing does.
std::string ObstacleLecture(const std::filesystem::path& chemin);

/// Removes from `dossier` what EcrireFichier left there when it was killed, once a day old: files
/// with the names of its temporaries and nothing else. What cannot be removed stays.
void RetirerRestes(const std::filesystem::path& dossier);

/// From now on a write beyond the size allowed for a file fails and is told, instead of ending the
/// program. For the whole process, at its start.
void SurvivreAuxLimitesDeTaille();

/// The text without a UTF-8 byte order mark at its start.
std::string_view SansMarqueOctets(std::string_view texte);

}  // namespace norvane
