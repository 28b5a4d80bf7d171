// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list of selections: a window of its own beside the page, so that a line can be looked at in
// the grid or in the statistics.
#pragma once

#include <QDialog>
#include <vector>

#include "base/Ensemble.h"

class QLabel;
class QLayout;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace norvane::ui {

class CommandesSelection;
struct Contexte;

class SelectionsPanel final : public QDialog {
    Q_OBJECT

 public:
    SelectionsPanel(Contexte& ctx, CommandesSelection& commandes, QWidget* parent);

    void suivre();

 Q_SIGNALS:
    /// 2 to 10 numbers.
    void statistiquesDemandees(norvane::Ensemble numeros);

 private:
    QLayout* creerAjouts();
    QLayout* creerFichiers();
    void basculer();
    void montrerLigne(int ligne);
    void direMode();

    Contexte& contexte_;
    CommandesSelection& commandes_;
    QListWidget* liste_;
    QLabel *nombre_, *indice_, *mode_;
    QPushButton* stats_ = nullptr;
    std::vector<Ensemble> montrees_;  ///< what the lines show
    bool enStats_ = false;            ///< a line goes to the statistics, else to the grid
};

}  // namespace norvane::ui
