// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Inside a ticket.
#pragma once

#include <cstddef>
#include <span>

#include "tickets/Grille.h"

namespace norvane {

/// The numbers and the chances of a ticket, which must outlive them.
struct Contenu {
    std::span<const double> numeros;
    std::span<const double> chances;

    int n() const { return static_cast<int>(numeros.size()); }
    int c() const { return static_cast<int>(chances.size()); }
};

inline Contenu Ouvrir(const Grille& grille) {
    const std::span<const double> tout(grille);
    const auto n = static_cast<std::size_t>(grille[1]);
    return {tout.subspan(2, n), tout.subspan(n + 3)};
}

}  // namespace norvane
