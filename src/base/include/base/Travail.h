// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Long work, whatever it is: what it is called, how far it is, how it is stopped, and the one count
// of what is under way. A job knows no window; whoever starts one polls its progress.
#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <thread>

#include "base/Resultat.h"

namespace norvane {

/// Which work.
enum class GenreTravail : std::uint8_t {
    Extremes,       ///< the combinations that came out most and least
    Bornes,         ///< the combinations between two bounds
    Bilan,          ///< the balance of the tickets
    Rangs,          ///< the lower ranks of a list
    Adaptation,     ///< a list carried over to another interval
    Tri,            ///< the order of a list
    Fichier,        ///< a file read or written
    JamaisSorties,  ///< combinations with all Chances that never won
    Rapport,        ///< the analyses
    MiseAJour,      ///< draws fetched or merged
    Bulletins,      ///< slips printed
    Systeme,        ///< a reducing system made
    Garantie        ///< a reducing system checked
};

/// Which list of combinations a work writes into.
enum class QuelleListe : std::uint8_t { Aucune, Extremes, Memoire, Tampon1, Tampon2, Tampon3 };

struct DescriptionTravail {
    GenreTravail genre = GenreTravail::Extremes;
    int taille = 0;  ///< numbers of a combination, 0 where the work has no size
    QuelleListe liste = QuelleListe::Aucune;

    friend bool operator==(const DescriptionTravail&, const DescriptionTravail&) = default;
};

/// How far a work is: written by its threads, polled by whoever looks. Never goes back.
class Progres {
 public:
    /// A new end; the position goes to 0.
    void commencer(int total) {
        total_.store(total > 0 ? total : 1, std::memory_order_relaxed);
        fait_.store(0, std::memory_order_relaxed);
    }
    /// Position, 0..total(); a smaller one than before is passed over.
    void poser(int fait) {
        int avant = fait_.load(std::memory_order_relaxed);
        while (fait > avant && !fait_.compare_exchange_weak(avant, fait, std::memory_order_relaxed))
            ;
    }
    void avancer(int pas = 1) { fait_.fetch_add(pas, std::memory_order_relaxed); }

    int fait() const { return fait_.load(std::memory_order_relaxed); }
    int total() const { return total_.load(std::memory_order_relaxed); }

 private:
    std::atomic<int> fait_{0};
    std::atomic<int> total_{100};
};

/// What a routine that takes long is given.
struct Suivi {
    std::stop_token arret;
    Progres* progres = nullptr;  ///< null: nobody looks
    unsigned fils = 0;           ///< threads it may use; 0: as many as the machine has

    bool arrete() const { return arret.stop_requested(); }
    void poser(int fait) const {
        if (progres != nullptr) progres->poser(fait);
    }
    unsigned nombreFils() const;
};

/// What is under way: the busy rule of the whole program. Changed on the main thread only.
struct Activite {
    std::int32_t TraitementsEnCours = 0;  ///< workers alive
    bool Disponible = true;               ///< no long operation runs on the main thread
    bool QuitterEnAttente = false;        ///< the window was closed while a worker ran
    std::optional<DescriptionTravail> enCours;

    /// True while work runs: every other command is then refused.
    bool occupe() const { return TraitementsEnCours > 0 || !Disponible; }
};

/// One count in Activite::TraitementsEnCours, for as long as it lives. Nothing else counts.
class Occupation {
 public:
    Occupation() = default;
    Occupation(Activite& activite, const DescriptionTravail& description);
    Occupation(Occupation&& autre) noexcept : activite_(autre.activite_) {
        autre.activite_ = nullptr;
    }
    Occupation& operator=(Occupation&& autre) noexcept;
    ~Occupation() { liberer(); }

    void liberer();

 private:
    Activite* activite_ = nullptr;
};

/// A piece of long work on a thread of its own, created suspended. It must have ended before it is
/// destroyed: keep it in a PtrTravail.
class Travail {
 public:
    explicit Travail(const DescriptionTravail& d) : description(d) {}
    virtual ~Travail();
    Travail(const Travail&) = delete;
    Travail& operator=(const Travail&) = delete;

    const DescriptionTravail description;
    Progres progres;
    /// Called last on the worker, however it ended. It may not destroy the job.
    std::function<void()> surFin;

    /// Starts the worker, once. std::system_error when the machine has no thread left.
    void demarrer();
    /// Asks it to stop, which takes at most 100 ms.
    void arreter() { arret_.request_stop(); }
    bool arrete() const { return arret_.stop_requested(); }
    /// Waits for its end; at once when it was never started.
    void attendre();

    /// One French sentence when the work refused or failed; empty otherwise. After attendre().
    const std::string& erreur() const { return erreur_; }

 protected:
    /// The work, on the worker. What it throws becomes erreur().
    virtual void executer() = 0;

    std::stop_token arret() const { return arret_.get_token(); }
    /// Ends the work with this sentence for the user.
    void refuser(std::string phrase) { erreur_ = std::move(phrase); }

 private:
    void mener();

    std::stop_source arret_;
    std::thread fil_;
    std::string erreur_;
};

struct ArretPuisDestruction {
    void operator()(Travail* travail) const;
};
template <typename T>
using PtrFil = std::unique_ptr<T, ArretPuisDestruction>;
using PtrTravail = PtrFil<Travail>;

/// A job from a routine. `corps` runs on the worker; what it leaves for the main thread it puts
/// where both can reach it (a shared_ptr of its own).
PtrTravail FaireTravail(const DescriptionTravail& description,
                        std::function<Resultat<Rien>(const Suivi&)> corps);

/// Cores of this machine, at least 1.
unsigned NombreCoeurs();

}  // namespace norvane
