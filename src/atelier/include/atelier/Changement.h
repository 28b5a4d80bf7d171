// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A change of the state, told once to everyone who shows some of it.
#pragma once

namespace norvane {

struct Changement {
    bool base = false;        ///< the draws: records have other indices, limits are others
    bool intervalle = false;  ///< an interval of draws: the global one, or that of the statistics
    bool listes = false;      ///< a list of combinations or the selection of numbers
    bool tickets = false;     ///< grids, receipt, Joker+ numbers, or what is unsaved of them
    bool reglages = false;    ///< a setting of the configuration
    bool mode = false;        ///< what the user is doing

    /// Everything.
    static constexpr Changement tout() { return {true, true, true, true, true, true}; }

    friend constexpr bool operator==(const Changement&, const Changement&) = default;
};

}  // namespace norvane
