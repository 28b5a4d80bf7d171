// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reducing systems: a guarantee, a selection, the grids that hold it, and the proof.
#pragma once

#include "pages/Page.h"

namespace norvane::ui {

class CommandesSysteme;
class PanneauGarantie;
class PanneauGaranties;
class PanneauGrilles;
class PanneauNumeros;

class PageSystemes final : public Page {
    Q_OBJECT

 public:
    PageSystemes(Contexte& ctx, QWidget* parent);

 protected:
    void showEvent(QShowEvent* evenement) override;

 private:
    void construire();

    CommandesSysteme* commandes_;
    PanneauGaranties* garanties_ = nullptr;
    PanneauNumeros* numeros_ = nullptr;
    PanneauGrilles* grilles_ = nullptr;
    PanneauGarantie* garantie_ = nullptr;
};

}  // namespace norvane::ui
