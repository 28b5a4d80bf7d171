// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a search by bounds goes through: the four kinds of sets of combinations.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <stop_token>
#include <vector>

#include "comb/Noyaux.h"
#include "Prevision.h"
#include "Recherche.h"

namespace norvane {

/// What is searched for.
struct DemandeBornes {
    int inf;
    int sup;
    std::uint64_t limite;  ///< records asked for, the first ones
};

/// Takes whole records, at least one; false ends the search.
using Recevoir = std::function<bool(std::span<const Mot>)>;

class TravailBornes {
 public:
    TravailBornes(const ContexteComb& c, Disposition d, Puits& p, std::stop_token a)
        : contexte(c), disposition(d), puits(p), arret(std::move(a)) {}
    virtual ~TravailBornes() = default;
    TravailBornes(const TravailBornes&) = delete;
    TravailBornes& operator=(const TravailBornes&) = delete;

    /// How many combinations have a count of inf..sup, in far less time than `lister` takes. Void
    /// when stopped.
    virtual Prevision prevoir(int inf, int sup) = 0;
    /// The same, exact, however long it takes.
    virtual std::uint64_t compter(int inf, int sup) { return prevoir(inf, sup).nombre; }
    /// Gives their records in lexicographic order, one call at a time. False when it ended before
    /// the last of them.
    virtual bool lister(const DemandeBornes& demande, const Recevoir& recevoir) = 0;

 protected:
    const ContexteComb& contexte;
    const Disposition disposition;
    Puits& puits;
    const std::stop_token arret;
};

/// The whole set of `taille` numbers: all combinations, or series.
std::unique_ptr<TravailBornes> TravailTout(const ContexteComb& c, Disposition d, bool series,
                                           Puits& puits, std::stop_token arret);

/// Sizes 6 to 10: `fixes` and every choice among `reserve` (both ascending, without a common
/// number).
std::unique_ptr<TravailBornes> TravailGrandeTaille(const ContexteComb& c, Disposition d,
                                                   const std::vector<int>& fixes,
                                                   const std::vector<int>& reserve, Puits& puits,
                                                   std::stop_token arret);

/// The same for every size.
std::unique_ptr<TravailBornes> TravailReserve(const ContexteComb& c, Disposition d,
                                              std::vector<int> fixes, std::vector<int> reserve,
                                              Puits& puits, std::stop_token arret);

/// Appends the record of a combination: `numeros` ascending, `liste` its draws as zero-based
/// record indices.
class Redacteur {
 public:
    Redacteur(const ContexteComb& c, Disposition d);
    void ajouter(std::vector<Mot>& mots, std::span<const Mot> numeros, ListeTirages liste) const;
    /// A record whose first-rank block has its count alone.
    std::vector<Mot> sansStatistiques(std::span<const Mot> numeros, int nbFois) const;

 private:
    Disposition disposition_;
    std::vector<Mot> modele_;  // unset blocks, numbers 0
    int inf_;
    int sup_;
    StatsBreves jamais_;
};

}  // namespace norvane
