// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one aggregate of the program's state, above all calculation houses. Passed by reference;
// tests hold several side by side.
#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <vector>

#include "atelier/Cases.h"
#include "atelier/Selections.h"
#include "base/Base.h"
#include "base/Configuration.h"
#include "base/Travail.h"
#include "comb/EtatCombinaisons.h"
#include "comb/Selection.h"
#include "lists/Liste.h"
#include "lists/Tri.h"
#include "slips/EtatBulletins.h"
#include "stats/Occurrences.h"
#include "systems/Systeme.h"
#include "tickets/CombinaisonsNC.h"
#include "tickets/SaisieBillets.h"

namespace norvane {

/// Whether the base is being edited by hand.
enum class Edition { Aucune, MiseAJour, AjoutLibre };

/// Draws that the statistics of a page speak of, one-based, inclusive: other pages work over those
/// of "Numéros" too. `sup` below `inf`: not chosen yet, the whole base.
struct IntervalleStats {
    int inf = 1;
    int sup = 0;

    friend bool operator==(const IntervalleStats&, const IntervalleStats&) = default;
};

/// What the lists of the engine are used for.
enum class ModeListe { Extremes = 0, Bornes = 1, Manipulation = 2 };

/// The bounds that go with an interval, set aside while the other mode (all combinations, series)
/// is on. At first it fits no interval.
struct EtatMoteur {
    int IntervalleInf = 0;
    int IntervalleSup = 0;
    EtatCombinaisons combinaisons;
};

struct Atelier {  // NOLINT(clang-analyzer-optin.performance.Padding): one of it, for readers
    std::filesystem::path Repertoire;  ///< the program's directory; every file is relative to it
    Configuration configuration;
    Base base;
    Occurrences occurrences;
    IntervalleStats StatsNumeros, StatsChances;  ///< of the pages of the same names
    IntervalleStats Analyses;                    ///< of the page "Analyses N"

    EtatCombinaisons combinaisons;      ///< bounds in force, of the mode in force
    bool series = false;                ///< the engine looks at series of consecutive numbers alone
    EtatMoteur EtatNormal;              ///< set aside on entering the series mode
    EtatMoteur EtatSeries;              ///< set aside on leaving it
    GrilleSelection grilleSelection{};  ///< the numbers checked
    GrilleSelection SelectionGardee{};  ///< set aside on entering the series mode
    Selection selection;                ///< the selection in force, over the interval in force
    SaisieSelection saisieSelection;    ///< the grid while it is edited
    std::vector<Ensemble> ListeSelections;  ///< choices of 2 to 35 numbers

    ModeListe modeListe = ModeListe::Extremes;
    ModeStockage modeStockage = ModeStockage::PremierRang;  ///< of the next search by bounds
    Liste ListeExtremes;
    Liste ListeMemoire;
    std::array<Liste, 3> ListeTampon;
    bool GlisserVerrouille = false;  ///< lines cannot be dragged, and a click only selects them
    EtatTri TriVoulu{.TypeTriListe = TypeTri::Simple};  ///< that new main lists take; Sans: none
    TriEcartAvance triEcartAvance;  ///< switched off by a change of the interval

    Billets billets;                ///< tickets, and what is unsaved of them
    SaisieBillets saisie{billets};  ///< their entry and consultation
    EtatBulletins bulletins;        ///< the play slips that the working list fills
    CombinaisonsNC nc;              ///< what is looked at as tickets of numbers and chances
    Cases choixLibre;               ///< the free choice of numbers and chances
    int TirageActif = -1;           ///< record on show on the page of results, -1 for none

    int typeGarantie = 0;                 ///< which of TypesGarantie
    SystemeDisponible systemeDisponible;  ///< the line chosen of its list
    SelectionSysteme NumerosSysteme;      ///< the numbers checked for a system
    Systeme SystemeCourant;               ///< the system in memory

    Activite activite;  ///< the busy rule: what is under way
    Edition edition = Edition::Aucune;
    bool Relance = false;      ///< the program must start itself again after closing
    bool FiltreActif = false;  ///< the base in memory is a filtered one

    /// What the user must be told once the window stands: one French sentence each.
    std::vector<std::string> avertissements;

    /// Reads the configuration, the base and the engine's state in `repertoire`, and builds the
    /// occurrence structures. Cannot fail: what is damaged is replaced and told in avertissements.
    explicit Atelier(std::filesystem::path repertoire);

    /// Everything that hangs on the draws again after a change of the base: structures, the
    /// interval (the whole base), bounds, selection. The main list and the extremes are emptied,
    /// the list mode is the first one, the series mode is left and no draw is on show. An error is
    /// that of relireEtat; all else is done.
    Resultat<Rien> recalculer();

    /// The bounds of the whole base as the file holds them. On an error all are void.
    Resultat<Rien> relireEtat();

    /// Draws of the global interval.
    int tailleIntervalle() const {
        return occurrences.IntervalleSup - occurrences.IntervalleInf + 1;
    }
    bool intervalleEntier() const {
        return occurrences.IntervalleInf == 1 && occurrences.IntervalleSup == base.NbTirages;
    }

    /// Any but QuelleListe::Aucune.
    Liste& liste(QuelleListe laquelle);
    const Liste& liste(QuelleListe laquelle) const;

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
