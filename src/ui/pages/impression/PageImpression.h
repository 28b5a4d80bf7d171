// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The grids on play slips: how each will look, its options, what it costs, and the printing.
#pragma once

#include "pages/Page.h"

namespace norvane::ui {

class CommandesBulletins;
class PanneauBulletin;
class PanneauImpression;
class PanneauOptions;
class PanneauPrix;

class PageImpression final : public Page {
    Q_OBJECT

 public:
    PageImpression(Contexte& ctx, QWidget* parent);

    void surChange(const Changement& changement) override;

 private:
    void construire();
    void montrer();

    CommandesBulletins* commandes_;
    PanneauBulletin* bulletin_ = nullptr;
    PanneauPrix* prix_ = nullptr;
    PanneauOptions* options_ = nullptr;
    PanneauImpression* impression_ = nullptr;
};

}  // namespace norvane::ui
