// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The choice of a ticket type and of how many tickets the program is to draw.
#pragma once

#include <QWidget>

#include "tickets/Grille.h"

class QButtonGroup;
class QLabel;
class QLayout;
class QPushButton;

namespace norvane::ui {

class ChampNumero;
class HautBas;

class PanneauAleatoire final : public QWidget {
    Q_OBJECT

 public:
    explicit PanneauAleatoire(QWidget* parent);

    /// At most `reste` tickets can be asked for; Edit24 shows that figure. A batch of more than
    /// `libres` is cut to that, which is told.
    void poserReste(int reste, int libres);

 Q_SIGNALS:
    /// So many tickets of that type are asked for.
    void ButtonAleatoireClick(norvane::TypeGrille type, int nombre);

 private:
    QWidget* creerTypes();
    QLayout* creerNombre();
    int nombre() const;
    void deplacer(int pas);
    void borner();
    QString effet(bool coupe) const;

    int reste_ = 0;
    int libres_ = 0;
    QButtonGroup* types_ = nullptr;
    ChampNumero* nombre_ = nullptr;
    QLabel* surReste_ = nullptr;
    QLabel* effet_ = nullptr;  ///< what the next click will do
    QPushButton* tirer_ = nullptr;
};

}  // namespace norvane::ui
