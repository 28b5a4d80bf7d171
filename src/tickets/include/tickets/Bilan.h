// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a list of tickets would have won, and cost, had it been played on every draw of an
// interval: the text report Bilan.dat.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "base/Base.h"
#include "base/Travail.h"
#include "tickets/Grille.h"
#include "tickets/Verification.h"

namespace norvane {

inline constexpr const char* NomBilan = "Bilan.dat";

/// The whole text of Bilan.dat over the draws `premier` to `dernier`, one-based, both included,
/// 1 <= premier <= dernier <= NbTirages, the same to the byte whatever the number of threads. Each
/// record counts as one play, so that a date with two draws costs two stakes. Nothing when stopped,
/// which is heeded within a few milliseconds. The progress goes from 0 to 100, which only a whole
/// report reaches.
std::optional<std::string> RedigerBilan(const Base& base, int premier, int dernier,
                                        std::span<const Grille> grilles, const Monnaie& monnaie,
                                        const Suivi& suivi = {});

}  // namespace norvane
