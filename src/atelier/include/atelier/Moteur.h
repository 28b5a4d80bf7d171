// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The conduct of the combination engine: what a click on a size does, what the end of a worker
// leaves in the lists, the bounds and the files.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "atelier/Atelier.h"
#include "base/Travail.h"
#include "comb/Avance.h"
#include "comb/TravauxRangs.h"
#include "comb/VaroFonc2.h"

namespace norvane {

/// The bounds of one size.
struct BornesAffichees {
    bool calculee = false;  ///< for the interval in force; where not, the values are former ones
    int BorneInf = 0;       ///< limits of both ends; the ends themselves are these too
    int BorneSup = 0;
    int NbTirages = 0;  ///< draws they were really computed on

    friend bool operator==(const BornesAffichees&, const BornesAffichees&) = default;
};

/// Answer to a click on a size.
struct ReponseClic {
    enum class Genre : std::uint8_t {
        Lance,    ///< start `travail`; at its end call TraitementTermine
        Affiche,  ///< the list of the mode changed at once
        Refuse    ///< nothing changed; `message` tells why
    };
    Genre genre;
    std::string message;  ///< one sentence for the user, empty when there is nothing to say
    PtrTravail travail;   ///< not started; its progress has the total already
};

/// What the end of a worker leaves.
struct FinTraitement {
    bool arrete = false;             ///< stopped: nothing was stored
    std::string message;             ///< refusal or failure, one sentence; empty when there is none
    std::optional<double> secondes;  ///< from the click on; none after a recount by the way
    bool debordement = false;        ///< extremes: only the first could be kept (Liste::total)
    std::optional<std::size_t> gardees;  ///< records that the advanced sort by gap left
};

/// All calls come from the main thread. The atelier must outlive every job that was given out;
/// nothing that a search reads may change while it runs.
class Moteur {
 public:
    explicit Moteur(Atelier& atelier);
    ~Moteur();
    Moteur(const Moteur&) = delete;
    Moteur& operator=(const Moteur&) = delete;

    unsigned threads = 0;         ///< see ContexteComb
    std::uint64_t octetsMax = 0;  ///< see ContexteComb

    /// A click on a size while none runs: refused while work is under way. `inf`, `sup` are looked
    /// at in ModeListe::Bornes alone. A list of extremes is counted, brought forward draw by draw
    /// where the interval is shorter than the stored one, or read from its file where that can be
    /// read. Its lines show the most frequent first. The list in memory is emptied at once; its
    /// records come back when the new search refuses before its first one.
    ReponseClic Cliquer(int taille, int inf = 0, int sup = 0);

    /// The lower ranks of the records of a list that are not filled yet; a run that was stopped is
    /// gone on with. Refused, without a message, where there is nothing to fill. The lines of the
    /// list may be shown while the job runs; nothing else may use it.
    ReponseClic RemplirRangs(QuelleListe laquelle);

    /// A list computed again over the interval in force, its numbers kept, its lines in their
    /// order but no longer sorted. While the job runs the list of the atelier is empty: show it
    /// anew at once, and at the end. A stop leaves records of both intervals, and the list says so
    /// (Liste::melangee). Refused, without a message, for an empty list.
    ReponseClic Adapter(QuelleListe laquelle);

    /// Where Atelier::triEcartAvance is active for the size of the list: Adapter, and at its end,
    /// unless stopped, only the records whose gap is long enough stay (FinTraitement::gardees).
    /// Refused, without a message, where it is not; with one where the list does not keep that
    /// rank.
    ReponseClic TrierEcart(QuelleListe laquelle);

    /// Sorts the lines of a list (lists/Tri.h): a short one at once, a long one by a job, whose
    /// stop leaves the order as it was. `tri` tells what is asked for, Liste::tri then what was
    /// done. Refused, without a message, where nothing is to be sorted.
    ReponseClic Trier(QuelleListe laquelle, const EtatTri& tri);

    /// Records in hand while an adaptation keeps its list; those of the list otherwise.
    std::size_t nombreEnCours(QuelleListe laquelle) const;

    /// The end handler, once for each job that was given out; it waits for the job. One that was
    /// never started leaves everything as it was before.
    FinTraitement TraitementTermine(Travail& travail);

    BornesAffichees AfficherBornes(int taille) const;
    /// Element 0 for size 2.
    std::array<BornesAffichees, TailleCombMax - TailleCombMin + 1> RafraichirBornes() const;

 private:
    struct Passage;  // one run
    class TravailTri;

    ContexteComb contexte() const;
    std::filesystem::path fichierListe(int taille) const;
    bool etatDepasse(int taille) const;
    ReponseClic cliquerExtremes(int taille);
    ReponseClic calculerExtremes(int taille);
    ReponseClic avancerExtremes(int taille);
    ReponseClic oublierAutreBase(int taille);
    ReponseClic cliquerBornes(int taille, int inf, int sup);
    ReponseClic adapter(QuelleListe laquelle, bool trierEcart);
    template <typename Fil>
    ReponseClic lancer(PtrFil<Fil> fil, void (Moteur::*finir)(Fil&, FinTraitement&));
    void montrer(Liste liste, int de, int a);
    void finirExtremes(TRechercheExtremes& fil, FinTraitement& fin);
    void stocker(std::span<const Combinaison> lignes, FinTraitement& fin, int taille);
    void finirAvance(TCombNewSearch& fil, FinTraitement& fin);
    void finirBornes(TRechercheBornes& fil, FinTraitement& fin);
    void finirRangs(TRemplirRangsSearch& fil, FinTraitement& fin);
    void finirAdaptation(TRemplirRangsAdaptationSearch& fil, FinTraitement& fin);
    void finirTri(TravailTri& fil, FinTraitement& fin);

    Atelier& atelier_;
    std::unique_ptr<Passage> passage_;
};

}  // namespace norvane
