// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The slips as the user works on them: the one on show, the options of all, what is to be printed.
#pragma once

#include <cstdint>
#include <filesystem>

#include "slips/Marques.h"

namespace norvane {

/// Which slips are to be printed.
enum class EtendueBulletins : std::uint8_t { Tous, EnCours, Plage };

/// Slips, from 1, inclusive.
struct PlageBulletins {
    int du = 1;
    int au = 0;

    int nombre() const { return au - du + 1; }
    friend bool operator==(const PlageBulletins&, const PlageBulletins&) = default;
};

struct EtatBulletins {
    OptionsBulletins options;
    std::filesystem::path fichier;  ///< of the options; empty while the grids have no file
    int bulletin = 1;               ///< on show
    int marque = MarqueMax;         ///< size of the marks
    EtendueBulletins etendue = EtendueBulletins::Tous;
    PlageBulletins plage{1, 1};  ///< of EtendueBulletins::Plage
    bool epreuve = false;        ///< the slip is drawn under its marks

    /// Brings slip and range within `nombre` slips.
    void borner(int nombre);
    /// The slips to print, out of `nombre`; none of none.
    PlageBulletins aImprimer(int nombre) const;

    /// Takes the options that go with a file of grids; none, and no file for them, when that is
    /// refused.
    Resultat<Rien> ouvrir(const std::filesystem::path& grilles);
    /// Writes them beside a file of grids, where they are kept from then on. No file is made for
    /// no options.
    Resultat<Rien> sauver(const std::filesystem::path& grilles);
    /// Writes them to their file, if they have one.
    Resultat<Rien> garder() const;
};

}  // namespace norvane
