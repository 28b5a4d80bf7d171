// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one aggregate of the program's state, above all calculation houses. Passed by reference;
// tests hold several side by side.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "atelier/Cases.h"
#include "base/Base.h"
#include "base/Configuration.h"
#include "base/Travail.h"
#include "comb/EtatCombinaisons.h"
#include "stats/Occurrences.h"
#include "tickets/SaisieBillets.h"

namespace norvane {

/// Whether the base is being edited by hand.
enum class Edition { Aucune, MiseAJour, AjoutLibre };

/// Draws that the statistics of the page "Numéros" speak of, one-based, inclusive: other pages work
/// over them too. `sup` below `inf`: not chosen yet, the whole base.
struct IntervalleStats {
    int inf = 1;
    int sup = 0;

    friend bool operator==(const IntervalleStats&, const IntervalleStats&) = default;
};

struct Atelier {
    std::filesystem::path Repertoire;  ///< the program's directory; every file is relative to it
    Configuration configuration;
    Base base;
    Occurrences occurrences;
    EtatCombinaisons combinaisons;
    IntervalleStats StatsNumeros;

    Billets billets;                ///< tickets, and what is unsaved of them
    SaisieBillets saisie{billets};  ///< their entry and consultation
    Cases choixLibre;               ///< the free choice of numbers and chances

    Activite activite;  ///< the busy rule: what is under way
    Edition edition = Edition::Aucune;
    bool Relance = false;      ///< the program must start itself again after closing
    bool FiltreActif = false;  ///< the base in memory is a filtered one

    /// What the user must be told once the window stands: one French sentence each.
    std::vector<std::string> avertissements;

    /// Reads the configuration, the base and the engine's state in `repertoire`, and builds the
    /// occurrence structures. Cannot fail: what is damaged is replaced and told in avertissements.
    explicit Atelier(std::filesystem::path repertoire);

    /// Structures and state again after a change of the base.
    void recalculer();

    /// Saves the base to norvane.db when it differs from what was loaded or last saved, or when
    /// there is no such file yet. Does nothing while the base in memory is a filtered one; refuses
    /// to replace a file that could not be read at the start.
    Resultat<Rien> sauverBase();

    std::filesystem::path fichier(const char* nom) const { return Repertoire / nom; }

 private:
    Base baseSauvee_;  // as on the disk, or built-in
    bool surDisque_ = false;
    bool stockageIllisible_ = false;  // norvane.db stands there and could not be read
};

}  // namespace norvane
