// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The workers of the combination engine: the combinations that came out most and least often
// (extremes), and those whose count lies between two bounds.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "base/Base.h"
#include "base/Travail.h"
#include "comb/Enregistrement.h"
#include "comb/EtatCombinaisons.h"
#include "comb/Puits.h"
#include "comb/Selection.h"
#include "stats/Occurrences.h"

namespace norvane {

/// What a search works on. Nothing of it may change while a worker runs.
struct ContexteComb {
    const Base& base;
    const Occurrences& occurrences;  ///< ListeNumeros and PositionNumero are read
    const EtatCombinaisons& etat;    ///< BorneSup is what a search for extremes starts from
    const Selection& selection;      ///< used by the selection searches alone
    int IntervalleInf;               ///< one-based, inclusive
    int IntervalleSup;
    bool series = false;  ///< N consecutive numbers only
    ModeStockage mode = ModeStockage::PremierRang;
    FormeGains gains{};    ///< which ranks a record of ModeStockage::RangsDeGain keeps
    unsigned threads = 0;  ///< cores that one search may use; 0: all of them
    /// Most bytes that the records of a search by bounds may take; 0: half of the free memory.
    std::uint64_t octetsMax = 0;

    int taille() const { return IntervalleSup - (IntervalleInf - 1); }
};

/// A worker of the engine: a job under the engine's own names, created suspended.
class TCombThread : public Travail {
 public:
    TCombThread(Puits& puits, const DescriptionTravail& d) : Travail(d), puits_(puits) {}

    /// What must live as long as the worker: its sink, where nobody else keeps it.
    std::shared_ptr<const void> garde;

    void Resume() { demarrer(); }
    void Terminate() { arreter(); }
    bool Terminated() const { return arrete(); }
    void WaitFor() { attendre(); }
    /// It was resumed, whatever came of it. After WaitFor.
    bool aTourne() const { return aTourne_; }

 protected:
    virtual void Execute() = 0;
    void executer() final {
        aTourne_ = true;
        Execute();
    }

    Puits& puits() const { return puits_; }

 private:
    Puits& puits_;
    bool aTourne_ = false;
};

// --- Extremes -----------------------------------------------------------------------------------

/// At or below this many draws a search gives lines and tracks the maximum alone; above, it
/// gives records. From size 5 on there are lines only.
constexpr int SeuilExtremes(int taille) {
    return taille == 2 ? 250 : taille == 3 ? 3000 : taille == 4 ? 10000 : NbTiragesMax + 1;
}
/// The minimum is tracked above the threshold, for sizes 2 and 3.
constexpr bool SuitMinimum(int taille, int tailleIntervalle) {
    return taille <= 3 && tailleIntervalle > SeuilExtremes(taille);
}

/// What a search for extremes ends with. The worker writes no shared state: whoever ends it copies
/// the bounds.
struct Extremes {
    bool complet = false;      ///< ran to its end; the rest is void otherwise
    int BorneInf = 0;          ///< 0 where the minimum is not tracked
    int BorneSup = 0;          ///< largest count
    std::uint64_t nombre = 0;  ///< combinations at BorneSup, or at BorneInf where it is tracked
};

enum class SortieExtremes : std::uint8_t {
    Enregistrements,  ///< minimum and maximum
    Lignes            ///< maximum only
};

/// What the searches for extremes share. They give every candidate that reaches the running
/// maximum, ties included, and, where it is tracked, the running minimum: one that is both goes out
/// twice. What was overtaken later stays in the output for the reduction to drop. The gauge runs
/// from 0 to JaugeExtremes. Sizes 6 to 10 have lines only: CapaciteListe of them at most, with the
/// true number in Extremes::nombre.
class TRechercheExtremes : public TCombThread {
 public:
    /// After WaitFor.
    const Extremes& resultat() const { return resultat_; }

 protected:
    TRechercheExtremes(const ContexteComb& contexte, Puits& puits, int taille,
                       SortieExtremes sortie, bool series);
    void Execute() override;

 private:
    ContexteComb contexte_;
    SortieExtremes sortie_;
    Extremes resultat_;
};

template <SortieExtremes Sortie, bool Series>
class TExtremes final : public TRechercheExtremes {
 public:
    TExtremes(const ContexteComb& c, Puits& p, int taille = TailleCombMin)
        : TRechercheExtremes(c, p, taille, Sortie, Series) {}
};

using TCombNSearch = TExtremes<SortieExtremes::Enregistrements, false>;
using TCombNMaxOnlySearch = TExtremes<SortieExtremes::Lignes, false>;
using TCombNSuccSearch = TExtremes<SortieExtremes::Enregistrements, true>;
using TCombNSuccMaxOnlySearch = TExtremes<SortieExtremes::Lignes, true>;
// Pairs, and pairs (i, i+1).
using TComb2Search = TCombNSearch;
using TComb2MaxOnlySearch = TCombNMaxOnlySearch;
using TComb2SuccSearch = TCombNSuccSearch;
using TComb2SuccMaxOnlySearch = TCombNSuccMaxOnlySearch;

/// The class that the size, the interval and the series mode ask for.
PtrFil<TRechercheExtremes> CreerRechercheExtremes(const ContexteComb& contexte, Puits& puits,
                                                  int taille);
/// Maximum of its gauge.
int JaugeExtremes(int taille, bool series);

// --- Bounds -------------------------------------------------------------------------------------

class TravailBornes;

/// What the combinations of a search by bounds are made of.
enum class DomaineBornes : std::uint8_t {
    Tout,        ///< all numbers
    Series,      ///< consecutive numbers
    Complement,  ///< the selection and numbers of its complement
    Secondaire,  ///< the selection and secondary numbers
    Selection    ///< numbers of the selection
};

/// What the searches by bounds share: every combination of the search whose count lies in Inf..Sup
/// (both inclusive) becomes a record, in lexicographic order of its numbers, first-rank block
/// filled, lower ranks unset: all words 0 but word 1 of the block, RangNonCalcule. A list that
/// would not fit in memory is refused before the first record, from the number of combinations:
/// counted for the sizes 2 to 5, estimated from a sample above. One that turns out longer is
/// refused on the way: its records are void. A stopped search has given a leading part of its
/// records. The gauge runs from 0 to JaugeBornes.
class TRechercheBornes : public TCombThread {
 public:
    Disposition disposition() const { return disposition_; }
    /// Records given out. After WaitFor.
    std::uint64_t nombre() const { return nombre_; }
    /// It gave all that was asked for. After WaitFor.
    bool complet() const { return complet_; }
    /// True when the records are to be counted and not given. Set before Resume.
    bool compterSeulement = false;
    /// Most records to give, the first ones; 0: all of them. Set before Resume.
    std::uint64_t limite = 0;

 protected:
    TRechercheBornes(const ContexteComb& contexte, Puits& puits, DomaineBornes domaine, int taille,
                     int inf, int sup);
    void Execute() override;

 private:
    /// Estimates, checks the memory, gives.
    void mener(TravailBornes& travail);
    std::string phraseTropLongue(const char* combien, std::uint64_t nombre,
                                 std::uint64_t octetsMax) const;

    ContexteComb contexte_;
    Disposition disposition_;
    DomaineBornes domaine_;
    int inf_;
    int sup_;
    std::uint64_t nombre_ = 0;
    bool complet_ = false;
};

template <DomaineBornes Domaine>
class TBornes final : public TRechercheBornes {
 public:
    TBornes(const ContexteComb& c, Puits& p, int taille, int inf, int sup)
        : TRechercheBornes(c, p, Domaine, taille, inf, sup) {}
};

using TCombBornesNewThread = TRechercheBornes;
using TCombNBornesNewSearch = TBornes<DomaineBornes::Tout>;
using TCombNSuccBornesNewSearch = TBornes<DomaineBornes::Series>;
using TComb2BornesNewSearch = TCombNBornesNewSearch;
using TComb2SuccBornesNewSearch = TCombNSuccBornesNewSearch;
using TSelectBornesThread = TRechercheBornes;
using TSelectNBornesSearch = TBornes<DomaineBornes::Complement>;
using TSelect1BornesSearch = TSelectNBornesSearch;
using TSelectNComplementaireBornesSearch = TBornes<DomaineBornes::Secondaire>;
using TSelect1ComplementaireBornesSearch = TSelectNComplementaireBornesSearch;
using TCombinaisonNBornesSearch = TBornes<DomaineBornes::Selection>;
using TCombinaison2BornesSearch = TCombinaisonNBornesSearch;

/// The class for the selection in force: none, fewer numbers than the size (with or without
/// secondary ones), or more. Null when the selection is the one combination: see CombinaisonUnique.
PtrFil<TRechercheBornes> CreerRechercheBornes(const ContexteComb& contexte, Puits& puits,
                                              int taille, int inf, int sup);
/// Maximum of its gauge.
int JaugeBornes(const ContexteComb& contexte, int taille);

/// The selection as a list of one record, its count alone filled in, or of none when the count lies
/// outside inf..sup.
Arene CombinaisonUnique(const ContexteComb& contexte, int inf, int sup);

/// Bytes that programs may still take without swapping; 0 when the system does not tell.
std::uint64_t MemoireDisponible();

}  // namespace norvane
