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
/// and the temporary is gone.
Resultat<Rien> EcrireFichier(const std::filesystem::path& chemin, std::string_view contenu);

/// The whole file. A missing file, a directory, or a file above `tailleMax` bytes is an error.
Resultat<std::string> LireFichier(const std::filesystem::path& chemin,
                                  std::uint64_t tailleMax = std::uint64_t{1} << 30);

/// The text without a UTF-8 byte order mark at its start.
std::string_view SansMarqueOctets(std::string_view texte);

}  // namespace norvane
