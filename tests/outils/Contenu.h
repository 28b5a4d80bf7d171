// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

#include "Dossier.h"

namespace norvane {

/// Every file of a test's folder: its name and what it holds.
inline std::map<std::string, std::string> Contenu(const Dossier& dossier) {
    std::map<std::string, std::string> fichiers;
    for (const auto& nom : dossier.noms()) fichiers[nom] = lire(dossier.chemin() / nom);
    return fichiers;
}

}  // namespace norvane
