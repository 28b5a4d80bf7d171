// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The numbers that a system is made for.
#pragma once

#include <QList>
#include <QWidget>

class QLabel;

namespace norvane::ui {

class CasesNumeros;
class CommandesSysteme;
struct Contexte;

class PanneauNumeros final : public QWidget {
    Q_OBJECT

 public:
    PanneauNumeros(Contexte& ctx, CommandesSysteme& commandes, QWidget* parent);

    void montrer();
    QList<QWidget*> ordreTabulation() const { return ordre_; }

 private:
    Contexte& contexte_;
    QLabel* comptes_;
    CasesNumeros* cases_;
    QList<QWidget*> ordre_;
};

}  // namespace norvane::ui
