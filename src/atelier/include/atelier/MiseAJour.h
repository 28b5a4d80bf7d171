// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// An official archive brought into the base of the program, on the disk as well.
#pragma once

#include "atelier/Atelier.h"
#include "base/ArchiveOfficielle.h"

namespace norvane {

/// A base with an archive in it, made beside the one in memory.
struct BaseMiseAJour {
    Base base;
    Fusion fusion;
    std::vector<LigneRefusee> refusees;
};

/// Reads the bytes of an archive and merges it into a copy of `base`; may run on a worker.
Resultat<BaseMiseAJour> PreparerMiseAJour(const Base& base, std::string_view octets,
                                          std::string_view nom, const Suivi& suivi = {});

/// Puts that base in the place of the atelier's and saves it (Atelier::sauverBase). On an error the
/// base in memory and the one on the disk are as before.
Resultat<Rien> AppliquerMiseAJour(Atelier& atelier, BaseMiseAJour&& venue);

}  // namespace norvane
