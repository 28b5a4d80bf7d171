// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The system in memory: its grids, one after the other, and what can be done with it.
#pragma once

#include <array>
#include <QList>
#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace norvane::ui {

class ChampNumero;
class CommandesSysteme;
class HautBas;
class ListeLignes;
struct Contexte;

class PanneauGrilles final : public QWidget {
    Q_OBJECT

 public:
    PanneauGrilles(Contexte& ctx, CommandesSysteme& commandes, QWidget* parent);

    /// The system in memory is another one.
    void montrer();
    QProgressBar* jauge() const { return jauge_; }
    QList<QWidget*> ordreTabulation() const;

 private:
    void ListBoxSystemeUpdate();
    void creerBoutons(CommandesSysteme& commandes);
    QString ligne(int grille) const;
    QString titre() const;
    void montrerGrille(int grille);
    void surSaisie();
    void aller(int numero);

    Contexte& contexte_;
    QLabel *titre_, *grille_;
    ListeLignes* liste_;
    ChampNumero* numero_;
    HautBas* fleches_;
    QProgressBar* jauge_;
    std::array<QPushButton*, 5> boutons_{};
};

}  // namespace norvane::ui
