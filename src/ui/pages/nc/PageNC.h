// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Combinaisons N + C": one ticket of numbers and chances as a whole, all the tickets of
// its type, and those that never came out. It joins its panels to the state of the atelier.
#pragma once

#include "nc/PanneauListeNC.h"
#include "pages/Page.h"
#include "tickets/GrillesHasard.h"

namespace norvane {
class Travail;
}

namespace norvane::ui {

class PanneauCategories;
class PanneauSelectionNC;

class PageNC final : public Page {
    Q_OBJECT

 public:
    explicit PageNC(Contexte& ctx, QWidget* parent = nullptr);

    void surChange(const Changement& changement) override;
    void surDepart() override;

 private:
    void construire();
    void relier();

    // The ticket.
    void RxCheckListBox3StateChange(GenreStats genre, int valeur);
    void Button61Click();
    void Button62Click();
    void Button63Click(TypeGrille type);
    void ListBox4Click(int ligne);
    void Button60Click();
    void historique(int categorie);
    void allerAuTirage(int tirage);

    // The list.
    void ComboBox6Change(TypeGrille type);
    void faire(PanneauListeNC::Geste geste);
    void filtrer(void (CombinaisonsNC::*filtre)(const SortiesNC&));
    void Button67Click();
    void finirRecherche(Trouvees& trouvees, const Travail& travail);
    void Button68Click();
    void Button69Click();

    bool lancer(PtrTravail travail, const QString& texte, std::function<void(Travail&)> fin);
    bool rechercheEnCours() const;
    bool accepte(const Reponse& reponse);
    void dire(const QString& phrase, const QString& detail = {});

    // The controls follow the state.
    void montrerTicket();
    void montrerTout();

    CombinaisonsNC& nc_;
    GenerateurHasard hasard_;
    PanneauSelectionNC* selection_ = nullptr;
    PanneauCategories* categories_ = nullptr;
    PanneauListeNC* liste_ = nullptr;
};

}  // namespace norvane::ui
