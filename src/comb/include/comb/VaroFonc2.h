// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The workers of the combination engine: the combinations that came out most and least often
// (extremes), and those whose count lies between two bounds.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <stop_token>
#include <string>
#include <thread>

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
    unsigned threads = 0;  ///< cores that one search may use; 0: all of them
    /// Most bytes that the records of a search by bounds may take; 0: half of the free memory.
    std::uint64_t octetsMax = 0;

    int taille() const { return IntervalleSup - (IntervalleInf - 1); }
};

/// A worker of the engine: a job under the engine's own names, created suspended.
class TCombThread : public Travail {
 public:
    TCombThread(Puits& puits, const DescriptionTravail& d) : Travail(d), puits_(puits) {}

    void Resume() { demarrer(); }
    void Terminate() { arreter(); }
    bool Terminated() const { return arrete(); }
    void WaitFor() { attendre(); }

 protected:
    virtual void Execute() = 0;
    void executer() final { Execute(); }

    Puits& puits() const { return puits_; }

 private:
    Puits& puits_;
};
using PtrComb = PtrFil<TCombThread>;

// --- Extremes -----------------------------------------------------------------------------------

/// At or below this many draws a search gives text lines and tracks the maximum alone; above, it
/// gives records. From size 5 on there are text lines only.
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

/// What the searches for extremes share. They give every candidate that reaches the running
/// maximum, ties included, and, where it is tracked, the running minimum: one that is both goes out
/// twice. What was overtaken later stays in the output for the reduction to drop. The gauge runs
/// from 0 to JaugeExtremes.
class TRechercheExtremes : public TCombThread {
 public:
    int taille() const { return taille_; }
    /// After WaitFor.
    const Extremes& resultat() const { return resultat_; }

 protected:
    enum class Sortie { Enregistrements, Lignes };
    TRechercheExtremes(const ContexteComb& contexte, Puits& puits, int taille, Sortie sortie,
                       bool series);
    void Execute() override;

 private:
    ContexteComb contexte_;
    int taille_;
    Sortie sortie_;
    Extremes resultat_;
};

/// Pairs, extremes to records.
class TComb2Search : public TRechercheExtremes {
 public:
    TComb2Search(const ContexteComb& c, Puits& p)
        : TRechercheExtremes(c, p, 2, Sortie::Enregistrements, false) {}
};
/// Pairs, maximum only, to text lines.
class TComb2MaxOnlySearch : public TRechercheExtremes {
 public:
    TComb2MaxOnlySearch(const ContexteComb& c, Puits& p)
        : TRechercheExtremes(c, p, 2, Sortie::Lignes, false) {}
};
/// Pairs (i, i+1), extremes to records.
class TComb2SuccSearch : public TRechercheExtremes {
 public:
    TComb2SuccSearch(const ContexteComb& c, Puits& p)
        : TRechercheExtremes(c, p, 2, Sortie::Enregistrements, true) {}
};
/// Pairs (i, i+1), maximum only, to text lines.
class TComb2SuccMaxOnlySearch : public TRechercheExtremes {
 public:
    TComb2SuccMaxOnlySearch(const ContexteComb& c, Puits& p)
        : TRechercheExtremes(c, p, 2, Sortie::Lignes, true) {}
};

// The same for the sizes 3 to 10. Sizes 6 to 10 have text lines only: CapaciteListe of them at
// most, with the true number in Extremes::nombre.
class TCombNSearch : public TRechercheExtremes {
 public:
    TCombNSearch(const ContexteComb& c, Puits& p, int taille)
        : TRechercheExtremes(c, p, taille, Sortie::Enregistrements, false) {}
};
class TCombNMaxOnlySearch : public TRechercheExtremes {
 public:
    TCombNMaxOnlySearch(const ContexteComb& c, Puits& p, int taille)
        : TRechercheExtremes(c, p, taille, Sortie::Lignes, false) {}
};
class TCombNSuccSearch : public TRechercheExtremes {
 public:
    TCombNSuccSearch(const ContexteComb& c, Puits& p, int taille)
        : TRechercheExtremes(c, p, taille, Sortie::Enregistrements, true) {}
};
class TCombNSuccMaxOnlySearch : public TRechercheExtremes {
 public:
    TCombNSuccMaxOnlySearch(const ContexteComb& c, Puits& p, int taille)
        : TRechercheExtremes(c, p, taille, Sortie::Lignes, true) {}
};

/// The class that the size, the interval and the series mode ask for.
PtrFil<TRechercheExtremes> CreerRechercheExtremes(const ContexteComb& contexte, Puits& puits,
                                                  int taille);
/// Maximum of its gauge.
int JaugeExtremes(int taille, bool series);

// --- Bounds -------------------------------------------------------------------------------------

class TravailBornes;

/// What the searches by bounds share: every combination of the search whose count lies in Inf..Sup
/// (both inclusive) becomes a record, in lexicographic order of its numbers, first-rank block
/// filled, lower ranks unset: all words 0 but word 1 of the block, RangNonCalcule. Before the first
/// record the combinations are counted; a list that would not fit in memory is refused. A stopped
/// search has given a leading part of its records.
class TRechercheBornes : public TCombThread {
 public:
    Disposition disposition() const { return disposition_; }
    /// Records given out. After WaitFor.
    std::uint64_t nombre() const { return nombre_; }
    /// True when the records are to be counted and not given. Set before Resume.
    bool compterSeulement = false;
    /// Most records to give, the first ones; 0: all of them. Set before Resume.
    std::uint64_t limite = 0;

 protected:
    TRechercheBornes(const ContexteComb& contexte, Puits& puits, int taille, int inf, int sup);
    void Execute() override { Rechercher(inf_, sup_); }
    virtual void Rechercher(int inf, int sup) = 0;

    /// Counts, checks the memory, gives.
    void mener(TravailBornes& travail);

    ContexteComb contexte_;
    Disposition disposition_;

 private:
    int inf_;
    int sup_;
    std::uint64_t nombre_ = 0;
};

/// All numbers.
class TCombBornesNewThread : public TRechercheBornes {
 public:
    TCombBornesNewThread(const ContexteComb& c, Puits& p, int taille, int inf, int sup, bool series)
        : TRechercheBornes(c, p, taille, inf, sup), series_(series) {}

 protected:
    void Rechercher(int inf, int sup) override;

 private:
    bool series_;
};
class TComb2BornesNewSearch : public TCombBornesNewThread {
 public:
    TComb2BornesNewSearch(const ContexteComb& c, Puits& p, int inf, int sup)
        : TCombBornesNewThread(c, p, 2, inf, sup, false) {}
};
class TComb2SuccBornesNewSearch : public TCombBornesNewThread {
 public:
    TComb2SuccBornesNewSearch(const ContexteComb& c, Puits& p, int inf, int sup)
        : TCombBornesNewThread(c, p, 2, inf, sup, true) {}
};
class TCombNBornesNewSearch : public TCombBornesNewThread {
 public:
    TCombNBornesNewSearch(const ContexteComb& c, Puits& p, int taille, int inf, int sup)
        : TCombBornesNewThread(c, p, taille, inf, sup, false) {}
};
class TCombNSuccBornesNewSearch : public TCombBornesNewThread {
 public:
    TCombNSuccBornesNewSearch(const ContexteComb& c, Puits& p, int taille, int inf, int sup)
        : TCombBornesNewThread(c, p, taille, inf, sup, true) {}
};

/// Within a selection of numbers.
class TSelectBornesThread : public TRechercheBornes {
 protected:
    enum class Reserve { Complement, Secondaire, Selection };
    TSelectBornesThread(const ContexteComb& c, Puits& p, int taille, int inf, int sup,
                        Reserve reserve)
        : TRechercheBornes(c, p, taille, inf, sup), reserve_(reserve) {}
    void Rechercher(int inf, int sup) override;

 private:
    Reserve reserve_;
};
/// The selection and `ajout` numbers of its complement.
class TSelectNBornesSearch : public TSelectBornesThread {
 public:
    TSelectNBornesSearch(const ContexteComb& c, Puits& p, int ajout, int inf, int sup)
        : TSelectBornesThread(c, p, c.selection.NbSelAbsolue + ajout, inf, sup,
                              Reserve::Complement) {}
};
/// The selection and `ajout` secondary numbers.
class TSelectNComplementaireBornesSearch : public TSelectBornesThread {
 public:
    TSelectNComplementaireBornesSearch(const ContexteComb& c, Puits& p, int ajout, int inf, int sup)
        : TSelectBornesThread(c, p, c.selection.NbSelAbsolue + ajout, inf, sup,
                              Reserve::Secondaire) {}
};
/// The combinations of `taille` numbers of the selection.
class TCombinaisonNBornesSearch : public TSelectBornesThread {
 public:
    TCombinaisonNBornesSearch(const ContexteComb& c, Puits& p, int taille, int inf, int sup)
        : TSelectBornesThread(c, p, taille, inf, sup, Reserve::Selection) {}
};
class TSelect1BornesSearch : public TSelectNBornesSearch {
 public:
    TSelect1BornesSearch(const ContexteComb& c, Puits& p, int inf, int sup)
        : TSelectNBornesSearch(c, p, 1, inf, sup) {}
};
class TSelect1ComplementaireBornesSearch : public TSelectNComplementaireBornesSearch {
 public:
    TSelect1ComplementaireBornesSearch(const ContexteComb& c, Puits& p, int inf, int sup)
        : TSelectNComplementaireBornesSearch(c, p, 1, inf, sup) {}
};
class TCombinaison2BornesSearch : public TCombinaisonNBornesSearch {
 public:
    TCombinaison2BornesSearch(const ContexteComb& c, Puits& p, int inf, int sup)
        : TCombinaisonNBornesSearch(c, p, 2, inf, sup) {}
};

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
