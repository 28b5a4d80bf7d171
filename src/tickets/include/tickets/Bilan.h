// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a list of tickets would have won, and cost, had it been played on every draw of an
// interval: the text report Bilan.dat.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/Base.h"
#include "base/Travail.h"
#include "tickets/Grille.h"
#include "tickets/Verification.h"

namespace norvane {

inline constexpr const char* NomBilan = "Bilan.dat";

/// Wins of one rank over the interval.
struct Cumul {
    std::int64_t fois = 0;
    double gain = 0;  ///< euros, added in the order of the draws

    friend bool operator==(const Cumul&, const Cumul&) = default;
};
struct BilanGrille {
    std::array<Cumul, NbRangsLoto> BilanRangs;
    std::array<Cumul, NbRangs2nd> Bilan2nd;  ///< all 0 for a ticket without the option

    friend bool operator==(const BilanGrille&, const BilanGrille&) = default;
};

/// The balance of each ticket over the draws `premier` to `dernier`, one-based, both included,
/// 1 <= premier <= dernier <= NbTirages. Nothing when stopped. The progress goes from 0 to 100,
/// which only a whole balance reaches.
std::optional<std::vector<BilanGrille>> CumulerGains(const Base& base, int premier, int dernier,
                                                     std::span<const Grille> grilles,
                                                     const Suivi& suivi = {});

/// The whole text of Bilan.dat for these draws, the same to the byte whatever the number of
/// threads. Each record counts as one play, so that a date with two draws costs two stakes. Nothing
/// when stopped, which is heeded within a few milliseconds.
std::optional<std::string> RedigerBilan(const Base& base, int premier, int dernier,
                                        std::span<const Grille> grilles, const Monnaie& monnaie,
                                        const Suivi& suivi = {});

}  // namespace norvane
