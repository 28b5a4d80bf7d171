// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the global options ask for: the base and the interval that a command works on.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>

#include "base/Base.h"
#include "base/Configuration.h"
#include "base/Resultat.h"
#include "base/Travail.h"
#include "Progression.h"

namespace norvane {

struct OptionsGlobales {
    std::optional<std::string> base;  ///< file name as given
    bool globale = false;
    std::optional<long> de;  ///< one-based draw numbers, unchecked
    std::optional<long> a;
};

/// A base with at least one draw and an interval of it, one-based, 1 <= de <= a <= NbTirages.
struct Donnees {
    Base base;
    int de;
    int a;
};

struct Contexte {
    OptionsGlobales options;
    std::filesystem::path repertoire;
    /// The output itself, for what is too long to be held back until a command has gone well;
    /// nothing may be written before all that can be refused has been checked.
    std::ostream& sortie;
    std::ostream& err;                ///< for what is told of a command that goes on
    mutable Progression progression;  ///< shown while a command runs

    /// Reads the base and checks the interval. Never changes, moves or makes a file.
    Resultat<Donnees> charger() const;

    /// The settings of NORVANE.INI in the directory. What makes no sense there takes its default
    /// and is told on `err`, in one line.
    Reglages lireReglages() const;

    /// Runs long work to its end and shows how far it is.
    Resultat<Rien> mener(std::function<Resultat<Rien>(const Suivi&)> corps) const;
};

}  // namespace norvane
