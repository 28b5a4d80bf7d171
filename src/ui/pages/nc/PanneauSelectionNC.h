// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The ticking of a ticket: the board, what is ticked on it, and the draw of one at random.
#pragma once

#include <QList>
#include <QWidget>

#include "tickets/Grille.h"
#include "tickets/ListesNC.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace norvane::ui {

class PlancheNumeros;

/// A choice among the types of tickets sold, in their order.
QComboBox* choixTypes(const QString& nom, const QString& sens, const QString& indice,
                      QWidget* parent);
/// The type chosen there, and the choice of one.
TypeGrille typeChoisi(const QComboBox& choix);
void montrerType(QComboBox& choix, TypeGrille type);

class PanneauSelectionNC final : public QWidget {
    Q_OBJECT

 public:
    explicit PanneauSelectionNC(QWidget* parent);

    void montrer(const LigneNC& selection);
    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    void bascule(norvane::GenreStats genre, int valeur);
    void Button61Click();
    void Button62Click();
    /// A ticket of this type is to be drawn.
    void Button63Click(norvane::TypeGrille type);

 private:
    PlancheNumeros* planche_;
    QLabel* numeros_;
    QLabel* chances_;
    QPushButton* vider_;
    QPushButton* valider_;
    QComboBox* types_;
    QPushButton* tirer_;
};

}  // namespace norvane::ui
