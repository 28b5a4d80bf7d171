// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The cipher of *.syr files: Blowfish in blocks of 8 bytes, each on its own. The end is filled up
// to a whole block with 1 to 8 bytes that hold how many they are.
#pragma once

#include <string>
#include <string_view>

#include "base/Resultat.h"

namespace norvane {

/// Refused when the machine's OpenSSL comes without its old ciphers.
Resultat<std::string> Chiffrer(std::string_view clair);

/// Refused the same way, and for bytes that were not enciphered with our key.
Resultat<std::string> Dechiffrer(std::string_view chiffre);

}  // namespace norvane
