// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The numbers that the engine's combinations are restricted to, and the way to the list of such
// selections.
#pragma once

#include <array>
#include <QList>
#include <QWidget>

#include "base/Ensemble.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QSpinBox;

namespace norvane::ui {

class CasesNumeros;
class CommandesSelection;
class SelectionsPanel;
struct Contexte;

class PanneauSelections final : public QWidget {
    Q_OBJECT

 public:
    PanneauSelections(Contexte& ctx, QWidget* parent);

    /// The selection, its list or the interval changed.
    void suivre();
    /// Closes SelectionsPanel where it is open.
    void fermerListe();

    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    /// The statistics of a line of the list of selections: 2 to 10 numbers.
    void statistiquesDemandees(norvane::Ensemble numeros);

 protected:
    void hideEvent(QHideEvent* evenement) override;

 private:
    QHBoxLayout* creerEntete();
    void creerBoutons();
    QSpinBox* creerNombre(const char16_t* nom, const QString& indice);
    void poserBoutons();
    void relier();
    void bornerNombres();
    void ouvrirListe();

    Contexte& contexte_;
    CommandesSelection* commandes_;
    std::array<QLabel*, 2> comptes_{};  ///< absolute, secondary
    QLabel* intervalle_ = nullptr;
    CasesNumeros* cases_;
    QPushButton *selectionner_, *vider_, *tirage_, *choixLibre_, *aleatoire_, *ouvrir_, *sauver_,
        *liste_;
    QSpinBox *absolus_, *secondaires_;
    SelectionsPanel* panneau_ = nullptr;
};

}  // namespace norvane::ui
