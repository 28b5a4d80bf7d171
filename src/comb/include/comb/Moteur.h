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
    /// The worker is through, called on it: have the main thread call TraitementTermine.
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

    /// A click on a size button. `inf`, `sup` are read in list mode 1 alone.
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
    class Collecte;
    class Avance;

    ContexteComb contexte() const;
    std::filesystem::path fichierListe(int taille) const;
    ReponseClic charger(int taille);
    ReponseClic lancer(int taille, PtrComb fil, int jauge);
    ReponseClic cliquerExtremes(int taille);
    ReponseClic cliquerBornes(int taille, int inf, int sup);
    void finirExtremes(FinTraitement& fin);
    void finirAvance(FinTraitement& fin);
    void finirBornes(FinTraitement& fin);
    void stocker(FinTraitement& fin);

    const Base& base_;
    const Occurrences& occ_;
    EtatCombinaisons& etat_;
    std::filesystem::path repertoire_;
    int& traitements_;
    const bool& disponible_;

    int taille_ = 0;
    std::unique_ptr<Collecte> collecte_;
    PtrComb fil_;
    std::function<void(FinTraitement&)> terminer_;
    std::chrono::steady_clock::time_point debut_;
};

/// The list of extremes cleaned up after a new draw: of lines with the same numbers the one with
/// the highest count stays (a marked one before another). `min` becomes the smallest count left,
/// unless it is 0, `max` the largest. The lines end up in the order of their numbers.
void NettoyerDoublons(std::vector<std::string>& lignes, int& min, int& max);
/// Cuts every line behind its ")".
void EffacerMarques(std::vector<std::string>& lignes);
/// Keeps the lines with the mark.
void GarderMarques(std::vector<std::string>& lignes);
/// The lines of the records (1 + taille words) whose count is BorneInf or BorneSup; a record that
/// was given twice in a row becomes one line.
std::vector<std::string> FiltrerExtremes(std::span<const Mot> ListeExtremes, int taille,
                                         int BorneInf, int BorneSup);
/// Keeps the lines whose count is BorneInf or BorneSup.
void FiltrerLignes(std::vector<std::string>& lignes, int BorneInf, int BorneSup);

}  // namespace norvane
