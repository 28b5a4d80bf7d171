// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The base of draws in memory: the single source of facts of the program.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "base/Tirage.h"

namespace norvane {

/// Members are read directly by everyone. Only the main thread writes, and only while no worker
/// runs. Both tables have at least NbTirages entries and stay parallel by position.
struct Base {
    std::vector<Tirage> Tirages;           ///< by DateTirage, then SousTirage, oldest first
    std::vector<RapportsTirage> Rapports;  ///< prizes of the record with the same index
    std::int32_t NbTirages = 0;            ///< records in use
    std::int32_t NbTiragesTotal = 0;       ///< size of the whole base while a filter is active
    std::int32_t NbAnciensTirages = 0;     ///< leading records without a valid Chance
    bool AnciensTirages = false;           ///< the base carries the old game's draws as well

    /// The records in use.
    std::span<const Tirage> enUsage() const {
        return {Tirages.data(), static_cast<std::size_t>(NbTirages)};
    }
};

/// Answer of TirageParDate.
struct RechercheDate {
    int indice;     ///< zero-based index of the first record of that date, or -1
    int precedent;  ///< when indice is -1: last record older than the date (-1 if there is none);
                    ///< otherwise equal to indice
};

/// Looks `date` (yyyymmdd) up among the first `nombre` records of `table`.
RechercheDate TirageParDate(std::span<const Tirage> table, int date, int nombre);

/// Makes room for one record at position p (0..NbTirages) and puts `tirage` and `rapports` there.
/// Records from p on move up by one through successive exchanges in which only the first six
/// prize pairs travel: pairs seven to nine of the moved entries stay at their positions.
/// NbAnciensTirages follows when AnciensTirages is clear and p lies below it.
/// Precondition: NbTirages < NbTiragesMax.
void InsererTirage(Base& base, int p, const Tirage& tirage, const RapportsTirage& rapports);

/// Removes the record at position p (0..NbTirages-1); all that follow move down whole.
void SupprimerTirage(Base& base, int p);

/// Count of leading records dated before DateNouveauLoto, the value of NbAnciensTirages for a
/// freshly loaded base.
int CompterAnciensTirages(std::span<const Tirage> tirages);

}  // namespace norvane
