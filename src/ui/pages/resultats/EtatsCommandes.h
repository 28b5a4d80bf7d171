// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What every state of the page lets the user see and do: one table, one routine.
#pragma once

#include <vector>

class QWidget;

namespace norvane::ui {

/// The states of the page, as bits.
enum EtatPage : unsigned {
    EtatNormal = 1U << 0U,
    EtatChoix = 1U << 1U,  ///< a free choice is in progress
    EtatGrilles = 1U << 2U,
    EtatRecu = 1U << 3U,
    EtatJokerCompte = 1U << 4U,
    EtatJokerNumeros = 1U << 5U,
    EtatJokerDate = 1U << 6U,
    EtatConsultationGrilles = 1U << 7U,
    EtatConsultationRecu = 1U << 8U,
    EtatMiseAJour = 1U << 9U,     ///< the base is edited: a record is looked for
    EtatModification = 1U << 10U  ///< one is open
};

/// The state, and what else the commands hang on.
struct Situation {
    EtatPage etat = EtatNormal;
    bool bilanEnCours = false;
    bool bilan = false;      ///< the reports on tickets are the balance
    bool sansGrille = true;  ///< the working list is empty
    bool aSauver = false;
    bool tenus = false;                        ///< a button of the board is held down
    bool sansRecu = false, sansChoix = false;  ///< that list cannot be chosen now
    bool versJoker = false, versDate = false;  ///< what the end of a receipt's grids leads to
    bool second = false;                       ///< the 2nd Tirage of a date is asked for
    bool sansTirage = false;                   ///< no draw is on show
    bool filtre = false;                       ///< the base is filtered
};

/// One line of the table: how a control is in some states.
struct RegleCommande;

class EtatsCommandes {
 public:
    /// The controls of `page`, by their names; all of them stand there.
    explicit EtatsCommandes(const QWidget& page);

    /// Brings every control in line; one that is so already is not touched.
    void appliquer(const Situation& situation);

 private:
    struct Commande {
        QWidget* widget;
        const RegleCommande* debut;  ///< its lines
        const RegleCommande* fin;
        const RegleCommande* appliquee = nullptr;
    };
    std::vector<Commande> commandes_;
};

}  // namespace norvane::ui
