// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Where a worker of the engine puts what it finds. The engine knows neither windows nor list boxes.
#pragma once

#include <cstddef>
#include <span>

#include "base/Travail.h"
#include "comb/Combinaison.h"
#include "comb/Enregistrement.h"

namespace norvane {

/// Everything is called from the threads of one worker, one call at a time and in the order of the
/// results. Implementations must not wait for the main thread: it may be waiting for the worker.
class Puits {
 public:
    virtual ~Puits() = default;

    /// Position of the gauge, 0 to the maximum that belongs to the search.
    virtual void SetProgress(int valeur) = 0;
    /// Lines of a list of extremes, thousands at a time.
    virtual void AddLine(std::span<const Combinaison> lignes) = 0;
    /// Whole records one behind the other, thousands at a time. Extremes: 1 + N words, the count
    /// and the N numbers. Bounds: the words of the Disposition of the search.
    virtual void AddRecord(std::span<const Mot> mots) = 0;
    /// Position of the progress bar of the status bar.
    virtual void SetStatusProgress(int valeur) = 0;

    /// Told once before the first record, where it is known: no more words than these will follow.
    virtual void Reserver(std::size_t /*mots*/) {}
};

/// Takes nothing; a base for those that want only some of the calls.
class PuitsMuet : public Puits {
 public:
    void SetProgress(int /*valeur*/) override {}
    void AddLine(std::span<const Combinaison> /*lignes*/) override {}
    void AddRecord(std::span<const Mot> /*mots*/) override {}
    void SetStatusProgress(int /*valeur*/) override {}
};

/// Hands gauge and status bar on to whoever polls a progress.
class PuitsProgres : public PuitsMuet {
 public:
    Progres* progres = nullptr;  ///< null: nobody looks

    void SetProgress(int valeur) override {
        if (progres != nullptr) progres->poser(valeur);
    }
    void SetStatusProgress(int valeur) override { SetProgress(valeur); }
};

}  // namespace norvane
