// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Résultats": the panels of the draw, its prizes and the ticket, the board and the row of
// commands. The page joins them; what they show is the state of draw, tickets and free choice.
#pragma once

#include <memory>

#include "pages/Page.h"
#include "resultats/EtatsCommandes.h"

class QPushButton;

namespace norvane::ui {

class CalculGains;
class CommandesBillets;
class CommandesEdition;
class FicheGrille;
class PanneauAleatoire;
class PanneauInternet;
class PanneauJoker;
class PanneauRapports;
class PanneauTirage;
class PlancheNumeros;
class RangeeCommandes;

class PageResultats final : public Page {
    Q_OBJECT

 public:
    explicit PageResultats(Contexte& ctx, QWidget* parent = nullptr);

    void premierAffichage() override;
    void surChange(const Changement& changement) override;
    bool ouvrir(const Destination& destination) override;

 private:
    void construire();
    void relierTirage();
    void relierFiche();
    void relierCommandes();
    void relierJoker();
    void relierEdition();

    // What the board serves besides the tickets.
    void presser(GenreStats genre, int valeur);
    void appuyer(const Element& element);
    void lever(Cases cases);
    void ReInitClick();
    void DeSelectClick();
    void quitterChoix();

    // What is on show, as the state makes it.
    EtatPage etat() const;
    EtatPage etatTickets() const;
    Situation situation() const;
    Cases eclairees() const;
    Cases tenues() const;
    void montrerTirage();
    void montrer();
    void montrerSaisie();
    void montrerFiche();
    void montrerTexteEdition();
    void montrerGrille();

    SaisieBillets& saisie_;
    bool choixEnCours_ = false;  ///< "&OK!" stands on ReInit
    Cases marques_;              ///< what of the free choice goes up with its light
    EtatTickets etatMontre_ = EtatTickets::Normal;

    PanneauInternet* internet_ = nullptr;
    PanneauTirage* tirage_ = nullptr;
    PlancheNumeros* planche_ = nullptr;
    PanneauRapports* rapports_ = nullptr;
    PanneauAleatoire* aleatoire_ = nullptr;
    PanneauJoker* joker_ = nullptr;
    FicheGrille* fiche_ = nullptr;
    RangeeCommandes* rangee_ = nullptr;
    CommandesBillets* billets_ = nullptr;
    CalculGains* gains_ = nullptr;
    QPushButton* filtre_ = nullptr;
    CommandesEdition* edition_ = nullptr;
    std::unique_ptr<EtatsCommandes> commandes_;
};

}  // namespace norvane::ui
