// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The workers that write into the records of a list: the ranks that a search by bounds leaves
// unset, and all of them again over another interval. The block for k good numbers tells of the
// draws that hold exactly k numbers of the combination; one that no draw reaches has the size of
// the interval as Ecart and EcartMax, the rest 0.
#pragma once

#include <cstddef>

#include "comb/VaroFonc2.h"

namespace norvane {

/// Steps of the progress of such a worker: every record counts below 100 of them.
constexpr int PasRangs(std::size_t enregistrements) {
    return enregistrements < 100 ? static_cast<int>(enregistrements) : 100;
}

/// What both share. The worker writes into the arena, in place: nobody else may read what it
/// writes until its end, nor change the arena. Of the context it reads the base, the interval and
/// the threads; mode and prizes are those of the arena. Stops within 100 ms, each record either
/// done or untouched.
class TTravailRangs : public TCombThread {
 public:
    /// Records written. After WaitFor.
    std::size_t nombre() const { return nombre_; }
    /// None was left out for a stop. After WaitFor.
    bool complet() const { return complet_; }

 protected:
    enum class Quoi : std::uint8_t { RangsVides, Tout };
    TTravailRangs(const ContexteComb& contexte, Puits& puits, Arene& arene,
                  const DescriptionTravail& d);
    /// Tells `avance` the steps done, each once and rising.
    void ecrire(Quoi quoi, const std::function<void(int)>& avance);

 private:
    ContexteComb contexte_;
    Arene& arene_;
    std::size_t nombre_ = 0;
    bool complet_ = false;
};

/// The lower ranks. Told to the gauge.
class TRangsThread : public TTravailRangs {
 public:
    TRangsThread(const ContexteComb& contexte, Puits& puits, Arene& arene, QuelleListe liste);

    const Mot TailleComb;

 protected:
    void Execute() override { Rechercher(); }
    virtual void Rechercher() = 0;
};

/// Fills every rank but the first of the records whose word 1 is RangNonCalcule, and leaves the
/// others as they are: a run that was stopped is gone on with by a new one. Words of the first rank
/// are not touched, so that lines may be shown meanwhile. ModeStockage::PremierRang: nothing to do.
class TRemplirRangsSearch final : public TRangsThread {
 public:
    using TRangsThread::TRangsThread;

 protected:
    void Rechercher() override;
};

/// A list carried over to the interval of the context. Told to the progress of the status bar.
class TRangsAdaptationThread : public TTravailRangs {
 public:
    TRangsAdaptationThread(const ContexteComb& contexte, Puits& puits, Arene& arene,
                           QuelleListe liste);

    const Mot TailleComb;

 protected:
    void Execute() override { Rechercher(); }
    virtual void Rechercher() = 0;
};

/// Computes every block of every record again, the first rank included; the numbers stay. A run
/// that was stopped leaves records of both intervals.
class TRemplirRangsAdaptationSearch final : public TRangsAdaptationThread {
 public:
    using TRangsAdaptationThread::TRangsAdaptationThread;

 protected:
    void Rechercher() override;
};

}  // namespace norvane
