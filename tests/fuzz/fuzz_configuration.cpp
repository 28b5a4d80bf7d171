// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <fstream>

#include "base/Configuration.h"
#include "base/Fichiers.h"
#include "cible.h"

using namespace norvane;

std::vector<std::string> graines() {
    return {"",
            "; réglages\n[CONFIGURATION]\nDecalageImprimanteBordHaut=1,5\nApparence=claire\n\n"
            "[MISES]\nmontants=2,2;13.2;46.2;123.2;277.2\n[MONNAIE]\nsymbole=€\ntaux=6.55957\n",
            "\xEF\xBB\xBF[GAINS]\r\nG2=5\r\n[BASE]\r\nAnciensTirages=1\r\n[INTERNET]\r\n"
            "archive=https://exemple.fr/a.zip\r\ndelai=30\r\nfutur=oui\r\nrien\r\n[brisee\r\n"};
}

// Settings stay within their bounds; a key that was written is read back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto fichier = std::filesystem::temp_directory_path() /
                                ("norvane-fuzz-" + std::to_string(::getpid()) + ".ini");
    const std::string contenu(reinterpret_cast<const char*>(octets), taille);
    std::ofstream(fichier, std::ios::binary) << contenu;
    Configuration configuration(fichier);
    const Reglages& r = configuration.reglages;
    exiger(r.TauxConversion > 0 && r.DelaiSecondes >= 1 && r.DelaiSecondes <= 600);
    exiger(r.DecalageImprimanteBordHaut >= -50 && r.DecalageImprimanteBordHaut <= 50);
    for (const double mise : r.Mises) exiger(mise > 0);
    exiger(*LireFichier(fichier, 1 << 24) == contenu);
    if (configuration.ecrire("MONNAIE", "taux", "7.5")) {
        exiger(Configuration(fichier).reglages.TauxConversion == 7.5);
    } else {
        exiger(*LireFichier(fichier, 1 << 24) == contenu);
    }
    std::filesystem::remove(fichier);
    return 0;
}
