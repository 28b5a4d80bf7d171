// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a fuzz target gives: the entry point of libFuzzer, and seeds made by the program itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

/// Feeds one input to the reader; aborts when a promise of the reader does not hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille);

/// Sound inputs to start from, besides the files of the corpus.
std::vector<std::string> graines();

/// Ends the program on a broken promise, in every build.
inline void exiger(bool vrai) {
    if (!vrai) std::abort();
}
