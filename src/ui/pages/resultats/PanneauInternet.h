// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How old the base is, and the way to bring it up to date.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace norvane::ui {

class Connexion;
class MiseAJourTirages;
struct Contexte;

class PanneauInternet final : public QWidget {
    Q_OBJECT

 public:
    PanneauInternet(Contexte& ctx, QWidget* parent);

    /// The base is another one.
    void suivre();

 private:
    void montrerConnexion(bool enLigne);

    Contexte& contexte_;
    MiseAJourTirages* miseAJour_;
    Connexion* detecteur_;
    QLabel *age_, *jackpot_, *connexion_;
    QPushButton* internet_;
};

}  // namespace norvane::ui
