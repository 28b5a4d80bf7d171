// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the slips to print cost, line by line, and in all.
#pragma once

#include <QWidget>
#include <vector>

#include "slips/PrixBulletins.h"

class QLabel;

namespace norvane::ui {

class CommandesBulletins;
class VueTableau;
struct Contexte;

class PanneauPrix final : public QWidget {
    Q_OBJECT

 public:
    PanneauPrix(CommandesBulletins& commandes, const Contexte& contexte, QWidget* parent);

    void montrer();
    QWidget* table() const;

 private:
    void remplir();

    CommandesBulletins& commandes_;
    const QString symbole_;
    QLabel* titre_;
    QLabel* total_;
    VueTableau* table_;
    std::vector<PrixBulletin> lignes_;  // those on show
};

}  // namespace norvane::ui
