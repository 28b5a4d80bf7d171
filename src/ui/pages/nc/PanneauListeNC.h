// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list of tickets: its type, its lines, its filters, its files.
#pragma once

#include <array>
#include <QList>
#include <QWidget>

#include "tickets/CombinaisonsNC.h"

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace norvane::ui {

class ListeNC;

class PanneauListeNC final : public QWidget {
    Q_OBJECT

 public:
    /// What a button asks for.
    enum Geste { FiltreC, Filtre0, FiltreSorties, Jamais, Ouvrir, Sauver, Ajouter, NbGestes };

    /// Shows the list of `etat`, which must outlive the panel.
    PanneauListeNC(const CombinaisonsNC& etat, QWidget* parent);

    /// The list changed: lines, type, count.
    void montrer();
    /// The line chosen changed.
    void montrerLigne();
    /// "00!" reads "STOP" while it runs.
    void montrerRecherche(bool enCours);

    QProgressBar& jauge() { return *jauge_; }
    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    void ComboBox6Change(norvane::TypeGrille type);
    void ligneChoisie(int ligne);
    void geste(norvane::ui::PanneauListeNC::Geste lequel);

 private:
    void creerBoutons();

    const CombinaisonsNC& etat_;
    QComboBox* types_;
    QLabel* nombre_;
    QLabel* partielle_;
    QLabel* ligne_;
    ListeNC* boite_;
    QProgressBar* jauge_;
    std::array<QPushButton*, NbGestes> boutons_{};
};

}  // namespace norvane::ui
