// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <fstream>

#include "base/BaseIntegree.h"
#include "base/Fichiers.h"
#include "base/Stockage.h"
#include "cible.h"

using namespace norvane;

namespace {

std::filesystem::path fichierTemporaire() {
    return std::filesystem::temp_directory_path() /
           ("norvane-fuzz-" + std::to_string(::getpid()) + ".db");
}

}  // namespace

std::vector<std::string> graines() {
    const auto fichier = fichierTemporaire();
    std::vector<std::string> contenus;
    for (const int nombre : {0, 1, 40}) {
        Base base = BaseIntegree(false);
        base.NbTirages = nombre;
        std::filesystem::remove(fichier);
        exiger(static_cast<bool>(SauverBase(base, fichier)));
        contenus.push_back(*LireFichier(fichier, 1 << 24));
    }
    return contenus;
}

// What is accepted is a base that can be written, and that comes back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto fichier = fichierTemporaire();
    const std::string contenu(reinterpret_cast<const char*>(octets), taille);
    std::ofstream(fichier, std::ios::binary) << contenu;
    const Resultat<Base> lue = LireStockage(fichier);
    std::filesystem::remove(fichier);
    if (lue) {
        exiger(static_cast<bool>(SauverBase(*lue, fichier)));
        const Resultat<Base> relue = LireStockage(fichier);
        exiger(relue && relue->Tirages == lue->Tirages && relue->Rapports == lue->Rapports);
    } else {
        exiger(!lue.erreur().empty());
    }
    std::filesystem::remove(fichier);
    std::filesystem::remove(fichier.string() + "-journal");
    return 0;
}
