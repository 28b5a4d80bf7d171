// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The entry and the consultation of tickets as a state machine. Whoever shows it calls an event,
// then reads what stands; where the user must be asked first, the event comes in two: what tells
// whether there is something to ask, and what follows the answer.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Base.h"
#include "base/Resultat.h"
#include "stats/TableauStats.h"
#include "tickets/Billets.h"
#include "tickets/GrillesHasard.h"
#include "tickets/Refus.h"
#include "tickets/Verification.h"

namespace norvane {

/// Where the tickets stand.
enum class EtatTickets : std::uint8_t {
    Normal,
    Grilles,  ///< entry of grids au choix
    Recu,     ///< entry of the grids of a receipt
    Joker,    ///< its Joker+ numbers and its date, see EtapeJoker
    Consultation
};

/// What follows the grids of a receipt.
enum class EtapeJoker : std::uint8_t { Compte, Numeros, Date };

/// What the end of the entry of grids leads to, were it asked now.
enum class SuiteSaisie : std::uint8_t { ModeNormal, NumerosJoker, DateParticipation };

/// The ticket on show as its card tells it.
struct CarteGrille {
    Grille grille;            ///< in the order of ticking; its stake is the one to show
    int numero = 0;           ///< its place, one-based; 0 in an empty list
    int nombre = 0;           ///< places in the list
    bool avecMise = false;    ///< the stake means something
    bool incomplete = false;  ///< something is ticked, but not enough for a ticket
    std::optional<ResultatGrille> resultat{};  ///< in consultation, with a draw
};

/// What a copy from a list of combinations did.
struct Copie {
    std::size_t copiees = 0;
    bool remplis = false;  ///< the stock was full before the end
    std::string phrase() const;
};

/// Draws take place on Monday, Wednesday and Saturday; `date` is a day of the calendar, yyyymmdd.
bool EstJourDeTirage(int date);
/// The first day of draws from `date` on.
int ProchainJourDeTirage(int date);

class SaisieBillets {
 public:
    explicit SaisieBillets(Billets& billets) : billets_(billets) {}
    SaisieBillets(const SaisieBillets&) = delete;
    SaisieBillets& operator=(const SaisieBillets&) = delete;

    /// The start of the tickets drawn at random.
    void semer(std::uint32_t graine) { hasard_ = GenerateurHasard(graine); }

    // ---- What stands ----
    EtatTickets etat() const { return etat_; }
    /// In EtatTickets::Joker.
    EtapeJoker etape() const { return etape_; }
    /// The ticket in hand is being ticked.
    bool surPlanche() const { return etat_ == EtatTickets::Grilles || etat_ == EtatTickets::Recu; }
    /// An entry is under way, Joker+ numbers and date included.
    bool enSelection() const { return surPlanche() || etat_ == EtatTickets::Joker; }
    bool enConsultation() const { return etat_ == EtatTickets::Consultation; }
    /// The grids au choix are worked on, not the receipt.
    bool ModeGrilles() const { return !modeRecu_; }
    /// The list that the next consultation takes when both hold something.
    bool recuVoulu() const { return recuVoulu_; }
    /// That list can be chosen now.
    bool listeOfferte(bool recu) const;
    /// The reports on the tickets are the balance, not the verification of one date.
    bool bilan() const { return bilan_; }
    /// The ticket on show, in the order of ticking; its stake is that of its place in the list.
    const Grille& grilleEnMain() const { return enMain_; }
    /// Its place in ListeGrilles, one-based; 0 in an empty list.
    int grille() const { return grille_; }
    int nombre() const { return static_cast<int>(billets_.ListeGrilles.size()); }
    /// How many tickets may still be asked of the program, 10000 less the places of the list.
    int reste() const { return NbGrillesMax + 1 - nombre(); }
    /// How many of them find a place behind the tickets of the list.
    int libres() const { return NbGrillesMax - stockees(); }
    /// The ticket in hand is whole and has no place in the list yet: a batch drawn at random would
    /// drop it.
    bool enMainPerdue() const { return surPlanche() && enMain_.complete() && surCaseOuverte(); }
    bool option2nd() const { return option2nd_; }
    SuiteSaisie suite() const;
    /// Joker+ numbers to enter in all, and those that are still missing.
    int compteJoker() const { return compteJoker_; }
    int jokersRestants() const;
    /// The number taken back by reprendreJoker(), to be entered again; nothing for a fresh one.
    const std::optional<LigneJoker>& jokerRepris() const { return jokerRepris_; }
    /// The date of the receipt in memory, yyyymmdd; 0 when none was given to it.
    int dateRecu() const { return dateRecu_; }
    /// The receipt was just dated, and nothing was verified since.
    bool tirageAProposer() const { return tirageAProposer_; }
    /// `tirage`: the record on show, -1 for none.
    CarteGrille carte(const Base& base, int tirage) const;

    // ---- Start of an entry ----
    /// Normal only, which both questions of the start have left: opens the entry of grids au choix
    /// behind the stock, or of a receipt in place of the one in memory.
    void commencer(bool recu);

    // ---- The ticket in hand ----
    /// Ticks or unticks; refused when no such ticket is sold.
    Reponse basculer(GenreStats genre, int valeur);
    /// Unticks everything.
    void decocherTout();
    void poserOption(bool option2nd);
    /// Goes to another ticket, the nearest to `numero`; the one in hand goes to its place first,
    /// and is refused while incomplete.
    Reponse deplacer(int numero);
    /// Before the question of ajouter().
    Reponse peutAjouter() const;
    /// Puts the ticket in hand into its place and opens a new one.
    Reponse ajouter();
    /// One ticket in hand in the order of its drawing when `nombre` is 1, else a sorted batch of
    /// that many behind the list, or of libres() where that is fewer. A batch drops a ticket that
    /// has no place yet, see enMainPerdue().
    void tirerAuHasard(TypeGrille type, int nombre);

    // ---- Deletion, also in consultation, where what it copies loses the tickets too ----
    /// The ticket on show.
    void supprimer();
    /// Before the question of supprimerTout(): puts a complete ticket in hand into its place.
    Reponse preparerSuppressionTotale();
    /// The stock to be deleted holds what no file holds: to be asked, and sauver() called on Yes.
    bool suppressionPerdrait() const;
    void supprimerTout();

    // ---- End ----
    /// Before the question whether this entry is over (not by terminer()).
    Reponse peutArreter() const;
    /// Stock or receipt take the entry over; a receipt too ends without Joker+ and file.
    void arreter();
    /// Leaves the state: Consultation and the grids for Normal, the grids of a receipt for Joker
    /// unless there are none, Joker (to be asked first) for Normal, the receipt staying in memory
    /// alone.
    void terminer();

    // ---- The rest of a receipt ----
    /// 0 or more; the user was asked whether that is right.
    void choisirCompteJoker(int compte);
    /// `chiffres`: the seven digits, nothing else; `mises` 1 or 2.
    Reponse validerJoker(std::string_view chiffres, int mises, bool plusOuMoins);
    /// One step back: to the last number entered, which is taken out to be entered again, or to
    /// the count when there is none.
    void reprendreJoker();
    /// Before the question of enregistrerRecu(): a day of draws, yyyymmdd; what is no date is
    /// refused too.
    Reponse peutDater(int date) const;
    /// Writes the receipt below `repertoire`, behind the one that its date has already when
    /// `ajouterAExistant`, in its place otherwise; both are then the receipt in memory. Normal
    /// when it is written; else nothing changes.
    Resultat<Rien> enregistrerRecu(const std::filesystem::path& repertoire, int date,
                                   bool ajouterAExistant);

    // ---- Consultation ----
    Reponse consulter();
    /// In consultation, shows that list; in Normal, has the reports take it, and the next
    /// consultation.
    void choisirListe(bool recu);
    /// Before a copy is prepared.
    Reponse peutCopier() const;
    /// Changes stakes in the working list, and nothing else: what it copies and the ticket on show
    /// follow. Nothing happens where peutCopier() refuses.
    void changerMises(const std::function<void(std::span<Grille>)>& changer);
    /// Appends to the stock as far as it has room, and shows it in consultation.
    Copie CopierversBulletins(std::span<const Grille> grilles);
    /// Before a single grid goes to the stock by itself: during an entry, or with the stock full.
    Reponse peutAjouterAuStock() const;
    /// Puts it behind the stock, which is then the list worked on; a consultation goes on with it.
    /// Nothing happens where peutAjouterAuStock() refuses.
    void ajouterAuStock(const Grille& grille);
    /// Place in the stock, one-based, of the first grid of these numbers and chances, in whatever
    /// order and at whatever stake; 0 for none.
    int placeDansStock(const Grille& grille) const;
    /// The stock in consultation, on the grid nearest to `numero`; nothing during an entry.
    void consulterStock(int numero);
    /// Before RedigerVerification.
    Reponse peutVerifier(bool avecTirage) const;
    /// The draw of the receipt's date was proposed, whatever the answer.
    void tirageEstPropose() { tirageAProposer_ = false; }

    // ---- Files ----
    /// Writes the stock, during an entry of grids the entry as it stands; nothing is unsaved then.
    Resultat<Rien> sauver(const std::filesystem::path& fichier);
    /// The stock would be dropped for a file's: to be asked, and sauver() called on Yes.
    bool ouverturePerdrait() const;
    /// Takes the place of the stock, or of the receipt, and shows it in consultation. Normal and
    /// Consultation only; nothing changes when the file is refused.
    Resultat<Rien> ouvrirGrilles(const std::filesystem::path& fichier);
    Resultat<Rien> ouvrirRecu(const std::filesystem::path& fichier);

    // ---- Closing ----
    /// What the safety copy takes were the program to end now: all that no file of the user's
    /// holds, NbGrillesMax at most; empty: no copy. The stock when it is unsaved, then the grids of
    /// an entry under way that the stock does not hold, or those of a receipt that has no file.
    /// Grids entered behind a stock that a file holds are copied with it, as they would stand at
    /// the end of the entry. Of an entry, a ticket in hand with three numbers or more as it stands,
    /// in its place; one with fewer is left out if it is the last, and so is every empty place.
    std::vector<Grille> grillesSecours() const;

 private:
    std::vector<Grille>& liste() { return billets_.ListeGrilles; }
    const std::vector<Grille>& liste() const { return billets_.ListeGrilles; }
    std::vector<Grille>& source();
    int stockees() const;
    bool surCaseOuverte() const;

    void passer(EtatTickets etat);
    void ouvrirCase();
    Grille grilleARanger() const;
    int EnregistrerGrille(std::vector<Grille>& grilles, int indice) const;
    void ranger() { grille_ = EnregistrerGrille(liste(), grille_ - 1); }
    std::vector<Grille> grillesEnCours() const;
    void prendreListe(bool recu);
    void AfficherGrille(int numero);
    Reponse cocher(GenreStats genre, int valeur);
    void tirerLot(TypeGrille type, int nombre);
    void terminerGrilles();
    void entrerConsultation(bool recu);

    Billets& billets_;
    EtatTickets etat_ = EtatTickets::Normal;
    EtapeJoker etape_ = EtapeJoker::Compte;
    bool modeRecu_ = false;
    bool recuVoulu_ = false;
    bool recuEntame_ = false;  ///< the receipt in entry holds a grid
    bool bilan_ = false;
    bool option2nd_ = false;
    int grille_ = 0;
    int compteJoker_ = 0;
    std::optional<LigneJoker> jokerRepris_;
    int dateRecu_ = 0;
    bool recuSansFichier_ = false;
    bool tirageAProposer_ = false;
    Grille enMain_;
    GenerateurHasard hasard_{0};
};

}  // namespace norvane
