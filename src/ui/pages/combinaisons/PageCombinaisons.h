// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Combinaisons N": which combinations of 2 to 10 numbers came out most and least often,
// those whose count lies between two bounds, and the statistics of the one that is clicked. It
// assembles its panels and carries between them, the engine and the state.
#pragma once

#include "atelier/Moteur.h"
#include "pages/Page.h"

namespace norvane::ui {

class ActionsListe;
class Cahier;
class CommandesIntervalle;
class ConduiteMoteur;
class ManipulationListes;
class PanneauCombinaison;
class PanneauListe;
class PanneauTailles;

class PageCombinaisons final : public Page {
    Q_OBJECT

 public:
    explicit PageCombinaisons(Contexte& ctx, QWidget* parent = nullptr);

    /// First showing of the window: with bounds for the sizes 2 to 5 the selector moves on to the
    /// bounds.
    void premierAffichage() override;
    void surChange(const Changement& changement) override;
    void surDepart() override;
    bool ouvrir(const Destination& destination) override;

    Moteur& moteur() { return moteur_; }

 private:
    void construire();
    void relier();
    void poserOrdreTabulation();

    // What the user asks for.
    void ComboBox1Change(ModeListe mode);
    void RadioGroup1Click(ModeStockage mode);
    void CombSearchClick(int taille);
    void ButtonPositionClick();

    // The controls follow the state.
    void suivreBase();
    void suivreIntervalle();
    void suivreMode();
    void suivreBornes();
    void suivreListes();
    void suivreTravail();
    void colorer();
    void AfficherListe();

    Moteur moteur_;
    CommandesIntervalle* commandesIntervalle_;
    PanneauTailles* tailles_ = nullptr;
    PanneauListe* liste_ = nullptr;
    ActionsListe* actions_ = nullptr;
    PanneauCombinaison* combinaison_ = nullptr;
    Cahier* cahier_ = nullptr;
    ConduiteMoteur* conduite_ = nullptr;
    ManipulationListes* manipulation_ = nullptr;
};

}  // namespace norvane::ui
