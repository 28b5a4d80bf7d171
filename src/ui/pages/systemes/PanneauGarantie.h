// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the check of a system came to: its guarantee, case by case, and its chances.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace norvane::ui {

class CommandesSysteme;
class VueTableau;
struct PreuveSysteme;

class PanneauGarantie final : public QWidget {
    Q_OBJECT

 public:
    PanneauGarantie(CommandesSysteme& commandes, double echelle, QWidget* parent);

    /// A check began or ended, or the system is another one.
    void montrer();
    QPushButton* bouton() const { return verifier_; }

 private:
    void remplirChances(const PreuveSysteme& preuve);

    CommandesSysteme& commandes_;
    QPushButton* verifier_;
    QLabel *resultat_, *exemples_;
    VueTableau* chances_;
};

}  // namespace norvane::ui
