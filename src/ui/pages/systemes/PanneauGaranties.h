// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The nine guarantees, the systems of the one chosen, and what the one chosen promises.
#pragma once

#include <QList>
#include <QWidget>
#include <vector>

#include "systems/Catalogue.h"

class QButtonGroup;
class QGroupBox;
class QLabel;
class QPushButton;

namespace norvane::ui {

class ListeLignes;
struct Contexte;

class PanneauGaranties final : public QWidget {
    Q_OBJECT

 public:
    PanneauGaranties(Contexte& ctx, QWidget* parent);

    /// The list of the guarantee, its first system and the focus there. Without a list that can be
    /// read the user is told, and what was chosen stays.
    void charger(int type);
    /// A list stands there.
    bool charge() const { return !entrees_.empty(); }
    void viserListe();
    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    void generationDemandee();

 private:
    void creerTypes();
    void reprendre(int ligne);

    Contexte& contexte_;
    std::vector<EntreeCatalogue> entrees_;
    QGroupBox* cadre_;
    QButtonGroup* types_;
    QLabel *nombre_, *titre_, *promesse_;
    ListeLignes* liste_;
    QPushButton* generer_;
};

}  // namespace norvane::ui
