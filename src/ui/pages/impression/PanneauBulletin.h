// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The slip on show: its number, and its six grids as they will look.
#pragma once

#include <array>
#include <QList>
#include <QWidget>

#include "slips/Bulletins.h"

class QLabel;

namespace norvane::ui {

class ChampNumero;
class CommandesBulletins;
class HautBas;
class ListeCoches;
class VueGrille;

class PanneauBulletin final : public QWidget {
    Q_OBJECT

 public:
    /// `symbole`: of the currency.
    PanneauBulletin(CommandesBulletins& commandes, QString symbole, QWidget* parent);

    void montrer();
    QList<QWidget*> ordreTabulation() const;

 private:
    struct PlaceGrille {
        VueGrille* vue;
        ListeCoches* second;
        QLabel* prix;
    };

    QLayout* creerTete();
    QLayout* creerPlace(int j);
    void surSaisie();
    void ecrireNumero();
    void montrerPlace(int j, const Grille* grille);

    CommandesBulletins& commandes_;
    const QString symbole_;
    ChampNumero* numero_ = nullptr;
    HautBas* fleches_ = nullptr;
    QLabel* nombre_ = nullptr;
    QLabel* prix_ = nullptr;
    std::array<PlaceGrille, GrillesParBulletin> places_{};
};

}  // namespace norvane::ui
