// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The filter of the base, put on and taken off: draws, engine's files and everything that hangs on
// them.
#pragma once

#include "atelier/Atelier.h"
#include "base/Filtre.h"
#include "tickets/Refus.h"

namespace norvane {

/// What came of a command on the base.
struct IssueBase {
    bool fait = false;  ///< false: nothing changed
    Reponse aDire;      ///< why it was refused, or what did not go well beside
};

/// One for an atelier; Atelier::FiltreActif tells the state. Main thread, while no worker runs.
class FiltreBase {
 public:
    explicit FiltreBase(Atelier& atelier) : atelier_(atelier) {}

    IssueBase appliquer(const CriteresFiltre& criteres);
    IssueBase annuler();

 private:
    IssueBase recalculer();

    Atelier& atelier_;
    CopieBase copie_;
};

}  // namespace norvane
