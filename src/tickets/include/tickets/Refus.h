// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Why an event on tickets was refused, and the rule of ticking that every board keeps.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "stats/Cellule.h"

namespace norvane {

/// As a box tells it. The state is as it was.
struct Refus {
    enum class Titre : std::uint8_t { Attention, Avertissement, Message };
    Titre titre = Titre::Attention;
    std::string phrase;
    std::string detail;  ///< second paragraph; most have none
};
/// Nothing when the event went through.
using Reponse = std::optional<Refus>;

/// Whether a ticket of n numbers and c chances takes one more number, or one more Chance.
Reponse PeutCocher(GenreStats genre, int n, int c);

}  // namespace norvane
