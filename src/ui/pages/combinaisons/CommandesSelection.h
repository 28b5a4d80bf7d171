// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user asks of the selection of numbers and of the list of selections. The state follows,
// and whoever shows it is told through the relay.
#pragma once

#include <QObject>

#include "atelier/Selections.h"

namespace norvane::ui {

struct Contexte;

class CommandesSelection final : public QObject {
    Q_OBJECT

 public:
    /// Its dialogs open over `fenetre`.
    CommandesSelection(Contexte& ctx, QWidget* fenetre);

    // The grid.
    void ButtonSelectClick();
    void ButtonDecocherClick();
    void ButtonOuvrirSltClick();
    void ButtonSauverSltClick();
    void BitBtnWithColor14Click();
    void BitBtnWithColor15Click();
    void AdvGlowButton8Click(int absolus, int secondaires);
    /// A cell of the grid, while it is edited.
    void cocher(int numero, Priorite priorite);
    /// The numbers of a line of the list, absolute ones of a grid that is being edited.
    void reprendre(Ensemble numeros);

    // The list of selections.
    void Button71Click();
    void Button76Click(int nombre);
    void Button77Click();
    void Button78Click();
    void Button83Click();
    void AdvGlowButton1Click(int ligne);

 private:
    bool refuserEnSeries();
    void dire(const QString& instruction, const QString& detail = {});
    void annoncer();
    void editer(const GrilleSelection& grille);
    void ajouterAbsolus(Ensemble numeros);
    bool valider(const GrilleSelection& grille);
    bool sauver();
    void ajouter(const NumerosAjoutes& numeros);

    Contexte& contexte_;
    QWidget* fenetre_;
};

}  // namespace norvane::ui
