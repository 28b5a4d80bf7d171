// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A page whose tools are not built yet: it says in one line what it will hold, and what the rest
// of the program already knows of it.
#pragma once

#include "pages/Page.h"

class QLabel;

namespace norvane::ui {

class PageAVenir : public Page {
    Q_OBJECT

 public:
    PageAVenir(Contexte& ctx, const QString& nom, const QString& titre, const QString& promesse,
               QWidget* parent);

 protected:
    /// What is known already, under the line; nothing when empty.
    void montrerDetail(const QString& detail);

 private:
    QLabel* detail_;
};

/// "Historiques": it names the history asked for, and at the start one taken at random.
class PageHistoriquesAVenir final : public PageAVenir {
    Q_OBJECT

 public:
    PageHistoriquesAVenir(Contexte& ctx, QWidget* parent);

    void premierAffichage() override;
    bool ouvrir(const Destination& destination) override;
};

}  // namespace norvane::ui
