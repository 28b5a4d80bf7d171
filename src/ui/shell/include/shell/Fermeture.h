// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What happens between the wish to close the window and its closing.
#pragma once

#include <functional>

#include "common/Contexte.h"
#include "common/Mode.h"

namespace norvane::ui {

class Fermeture {
 public:
    explicit Fermeture(Contexte& ctx) : contexte_(ctx) {}

    /// Asks the running worker to stop; called when the window is closed during its work.
    std::function<void()> arreterTraitement = [] {};

    /// Nobody is there to answer: nothing is asked, what fails is told on standard error.
    bool sansQuestion = false;

    /// Asks what has to be asked and saves what has to be saved. True when the window may close;
    /// on false everything is as it was.
    bool demander();

 private:
    bool confirmer(Mode mode);
    bool sauver(Mode mode);
    bool sauverGrilles();
    bool sauverBase();
    bool restaurerFiltre();
    /// Tells a failed save and asks whether to leave all the same.
    bool quitterMalgre(const QString& echec);

    Contexte& contexte_;
};

}  // namespace norvane::ui
