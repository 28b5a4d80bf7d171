// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the main form knows of a page.
#pragma once

#include "common/Contexte.h"

namespace norvane::ui {

class Page : public QWidget {
    Q_OBJECT

 public:
    Page(Contexte& ctx, const QString& nom, const QString& onglet, QWidget* parent)
        : QWidget(parent), titre(onglet), contexte(ctx) {
        setObjectName(nom);
    }

    const QString titre;  ///< caption of its tab

    /// The window shows for the first time; the base has two records at least.
    virtual void premierAffichage() {}
    /// Something of the state changed: what it shows of it follows.
    virtual void surChange(const Changement&) {}
    /// The page is being left, or balloons are to go.
    virtual void surDepart() {}
    /// Long work of this page that no job service runs stops soon.
    virtual void arreter() {}
    /// Shows this; false when it is not this page's. The form then brings the page to front.
    virtual bool ouvrir(const Destination&) { return false; }

 protected:
    Contexte& contexte;
};

}  // namespace norvane::ui
