// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The conduct of the page "Combinaisons N" without its looks: what a click on a size button does,
// what the end of a worker leaves behind, and the values of the bound controls.
#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "comb/Collecte.h"
#include "comb/LigneCombinaison.h"
#include "comb/VaroFonc2.h"

namespace norvane {

/// Items of ComboBox1, in order.
enum class ModeListe { Extremes = 0, Bornes = 1, Manipulation = 2 };

/// What the controls of one size show.
struct BornesAffichees {
    std::string texteInf, texteSup;  ///< of the edits: a number, or "NC"
    int min = 0, max = 0;            ///< limits of both up-downs; their positions are these too
    std::string indiceInf, indiceSup;
};

/// Answer to a click on a size button.
struct ReponseClic {
    enum class Genre {
        Lance,    ///< a worker runs: the caption is "STOP", the gauge 0..jauge
        Arrete,   ///< the running worker was asked to stop
        Affiche,  ///< the list changed at once: lignes (mode 0) or ListeMemoire (mode 1)
        Refuse    ///< nothing changed; message tells why
    };
    Genre genre;
    std::string message;  ///< one sentence for the user, empty when there is nothing to say
    int jauge = 0;
};

/// What the end of a worker leaves.
struct FinTraitement {
    int taille = 0;       ///< its size: the button whose caption was "STOP"
    bool arrete = false;  ///< stopped: nothing was stored
    std::string message;  ///< refusal or failure, one sentence; the former list still stands then
    std::string temps;    ///< text of LabelTemps
    /// Extremes: the list had more lines than the box holds; nombreLignes tells how many.
    bool debordement = false;
};

class TCombNewSearch;

/// All calls come from the main thread. The references must outlive the object and nothing of them
/// may change while a worker runs.
class Moteur {
 public:
    Moteur(const Base& base, const Occurrences& occurrences, EtatCombinaisons& etat,
           std::filesystem::path repertoire, int& TraitementsEnCours, const bool& Disponible);
    ~Moteur();
    Moteur(const Moteur&) = delete;
    Moteur& operator=(const Moteur&) = delete;

    // What the controls of the page set; read at the click.
    ModeListe modeListe = ModeListe::Extremes;              ///< ComboBox1
    ModeStockage modeStockage = ModeStockage::PremierRang;  ///< RadioGroup1
    bool series = false;                                    ///< CheckBoxSeries
    Selection selection;
    unsigned threads = 0;         ///< cores for a search; 0: all
    std::uint64_t octetsMax = 0;  ///< see ContexteComb

    /// Progress of a worker, called on its threads.
    std::function<void(int)> surProgression;
    /// The worker is through, called on it (while it is destroyed with the Moteur as well): have
    /// the main thread call TraitementTermine.
    std::function<void()> surFin;

    // What the page shows.
    std::vector<std::string> lignes;  ///< list mode 0: lines of the list box
    std::uint64_t nombreLignes = 0;   ///< the true number, where the box could not hold all
    Arene ListeMemoire;               ///< list mode 1
    int TailleCombListe = 0;          ///< size of the combinations in ListeMemoire, 0: none yet
    int DebutListe = 0;               ///< interval of ListeMemoire, one-based
    int FinListe = 0;

    std::int32_t NbTiragesCombSauve = 0;
    std::int32_t NbLignesAvant = 0;

    /// Size whose button reads "STOP", 0 when none does.
    int enCours() const { return taille_; }

    /// A click on a size button. `inf`, `sup` are read in list mode 1 alone. While a worker runs
    /// the button of its size stops it and every other one is refused.
    ReponseClic Cliquer(int taille, int inf = 0, int sup = 0);

    /// The end handler, once for each worker started.
    FinTraitement TraitementTermine();

    /// Brings the stored list of extremes of `taille` forward to the last draw of the base, draw by
    /// draw, on a worker. Cliquer comes here when the interval is shorter than the stored one.
    ReponseClic AvancerExtremes(int taille);

    /// Values of the controls of one size, and of all of them (element 0 for size 2).
    BornesAffichees AfficherBornes(int taille) const;
    std::array<BornesAffichees, 9> RafraichirBornes() const;

    /// COMBCALC.INI again: after series mode, a change of interval, of the base.
    Resultat<Rien> RelireEtat();

    /// Clears ListeMemoire and what goes with it.
    void ViderListeMemoire();

    int tailleIntervalle() const;
    bool intervalleEntier() const;

 private:
    ContexteComb contexte() const;
    std::filesystem::path fichierListe(int taille) const;
    bool listeDepassee(int taille) const;
    ReponseClic arreter();
    ReponseClic lancer(int taille, PtrComb fil, int jauge);
    ReponseClic cliquerExtremes(int taille);
    ReponseClic calculerExtremes(int taille);
    ReponseClic cliquerBornes(int taille, int inf, int sup);
    ReponseClic oublierAutreBase(int taille);
    void finirExtremes(const TRechercheExtremes& fil, FinTraitement& fin);
    void finirAvance(TCombNewSearch& fil, FinTraitement& fin);
    void finirBornes(const TRechercheBornes& fil, FinTraitement& fin);
    void stocker(FinTraitement& fin);

    const Base& base_;
    const Occurrences& occ_;
    EtatCombinaisons& etat_;
    std::filesystem::path repertoire_;
    int& traitements_;
    const bool& disponible_;

    // The run under way.
    int taille_ = 0;
    bool extremes_ = false;  // NbTiragesComb goes back to NbTiragesCombSauve on STOP
    Collecte collecte_;
    std::vector<std::string> lignesAvant_;
    std::uint64_t nombreAvant_ = 0;
    std::function<void(FinTraitement&)> terminer_;
    std::chrono::steady_clock::time_point debut_;
    PtrComb fil_;
};

}  // namespace norvane
