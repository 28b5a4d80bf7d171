// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The tickets of the page "Résultats": their entry on the board, their consultation, their files.
#pragma once

#include <QObject>

#include "pages/Page.h"
#include "resultats/FicheGrille.h"
#include "tickets/GrillesHasard.h"

namespace norvane::ui {

class PanneauAleatoire;
class PlancheNumeros;
class SaisieJoker;

/// Where the tickets stand; the mode flags of the program follow.
enum class EtatTickets {
    Normal,
    Grilles,  ///< entry of grids au choix
    Recu,     ///< entry of the grids of a receipt
    Joker,    ///< its Joker+ numbers and its date, see SaisieJoker::Etape
    Consultation
};

class SaisieGrilles final : public QObject {
    Q_OBJECT

 public:
    /// Wins per rank for the table of a 1er or of a 2nd Tirage.
    struct Gains {
        bool second = false;
        ComptesRangs comptes{};
    };

    SaisieGrilles(Contexte& ctx, PlancheNumeros& planche, FicheGrille& fiche,
                  PanneauAleatoire& aleatoire, SaisieJoker& joker);

    EtatTickets etat() const { return etat_; }
    /// The board holds the ticket in hand.
    bool surPlanche() const { return etat_ == EtatTickets::Grilles || etat_ == EtatTickets::Recu; }
    /// The stock holds what no file holds.
    bool aSauver() const { return aSauver_; }
    /// The grids au choix are worked on, not the receipt.
    bool modeGrilles() const { return !contexte_.modes.ModeRecu; }
    QString indiceTerminer() const;

    // The handlers.
    void SelectGrillesClick();
    void Button1Click(int place);
    void AddGrilleClick();
    void SupprGrilleClick();
    void SupprAllGrillesClick();
    void NormalModeClick();
    void ConsultationClick();
    void ButtonSauverGrillesClick();
    void ChargerGrillesClick();
    void ButtonAleatoireClick();
    /// Appends copies of list lines to the stock and shows it in the consultation.
    void CopierversBulletins(const std::vector<Grille>& grilles);

    /// The record on show changed; -1 for none.
    void poserTirage(int indice);
    /// Nothing on the board is complete without five numbers and a chance.
    bool grilleComplete() const;
    /// The window closes during an entry: a ticket in hand with three numbers or more goes to its
    /// place as it stands, one with fewer is dropped if it is the last; no empty place stays.
    void rangerGrilleEnMain();
    void terminerConsultation();
    /// The card again, after a change of the board. Not in the normal state.
    void majFiche();

 Q_SIGNALS:
    /// The state or what it allows changed.
    void etatChange();
    /// The board belongs to the page again.
    void plancheRendue();
    /// The date of an opened receipt.
    void dateDemandee(int date);
    /// The result of the ticket on show changed.
    void gainsChange(const norvane::ui::SaisieGrilles::Gains& gains);

 private:
    std::vector<Grille>& liste() { return contexte_.atelier.ListeGrilles; }
    int nombre() const { return static_cast<int>(contexte_.atelier.ListeGrilles.size()); }
    int stockees() const;
    /// The list that the working list is a copy of.
    std::vector<Grille>& source();
    Messages& messages() { return *contexte_.services.messages; }

    void relier();
    bool commencer();
    void ouvrirCase();
    void EnregistrerGrille(std::vector<Grille>& liste, int indice);
    void AfficherGrille(int numero);
    void deplacer(int numero);
    void cocher(int place);
    Grille grilleEnMain() const;
    void direIncomplete();
    void direCapacite();
    void terminerGrilles();
    void terminer();
    void recuDate(int date);
    void entrerConsultation();
    void choisirListe(bool recu);
    void poserModeRecu(bool recu);
    void changerEtat(EtatTickets etat);
    void majResultat(VueGrille& vue, const Grille& grille);
    void grilleAleatoire();
    void lotAleatoire(int nombre);
    bool sauver(const std::vector<Grille>& grilles);
    void ouvrirRecu(const QString& fichier);
    void ouvrirGrilles(const QString& fichier);
    QString dossierGrilles() const;

    Contexte& contexte_;
    PlancheNumeros& planche_;
    FicheGrille& fiche_;
    PanneauAleatoire& aleatoire_;
    SaisieJoker& joker_;
    GenerateurHasard hasard_;
    EtatTickets etat_ = EtatTickets::Normal;
    bool aSauver_ = false;
    bool recuEntame_ = false;  ///< the receipt in entry holds a grid
    int grille_ = 0;           ///< one-based place of the ticket on show, 0 in an empty list
    int tirage_ = -1;
};

}  // namespace norvane::ui
