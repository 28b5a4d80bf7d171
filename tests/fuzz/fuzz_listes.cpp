// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <unistd.h>

#include <fstream>

#include "base/Archive.h"
#include "base/Tirage.h"
#include "cible.h"
#include "lists/FichiersListes.h"
#include "lists/FichiersSelections.h"

using namespace norvane;

std::vector<std::string> graines() {
    const MembreArchive membre{"a.tmp", "2 2 0 100 600\n3 0 1 2 2 7 20\n4 0 1 3 3 7 33\n"};
    const MembreArchive stocke{"a.tmp", membre.contenu, false};
    return {"",
            membre.contenu,
            "1 3 1 1 3214\n9 0 1 2 2 4 65535 0 0 0 7 20 33\n",
            *FaireArchive({&membre, 1}),
            *FaireArchive({&stocke, 1}),
            "01 07 49  (3 N°)\r\n08 09  (2 N°)\r\n"};
}

namespace {

/// What is accepted is sound, and comes back the same once it is written.
void essayerListe(const std::filesystem::path& fichier) {
    const auto lue = OuvrirListe(fichier, {});
    if (!lue) return exiger(!lue.erreur().empty());
    for (std::size_t i = 0; i < lue->nombre(); ++i) {
        const Ensemble numeros = lue->combinaison(i).numeros;
        exiger(numeros.taille() == lue->taille());
        exiger(Ensemble(MasqueNumero(NumeroMax + 1) - 1).contient(numeros));
    }
    exiger(static_cast<bool>(SauverListe(*lue, fichier)));
    const auto relue = OuvrirListe(fichier, {});
    exiger(relue && relue->arene.mots == lue->arene.mots && relue->FinListe == lue->FinListe);
}

}  // namespace

// The input as an archive, as the text in one, as a selection and as a list of selections.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    static const auto fichier =
        std::filesystem::temp_directory_path() / ("norvane-fuzz-" + std::to_string(::getpid()));
    const std::string contenu(reinterpret_cast<const char*>(octets), taille);
    const auto poser = [](const std::string& texte) {
        std::filesystem::remove(fichier);  // to write over it may wait for the disk
        std::ofstream(fichier, std::ios::binary) << texte;
    };
    poser(contenu);
    if (const auto grille = OuvrirSelection(fichier)) {
        exiger(static_cast<bool>(SauverSelection(*grille, fichier)));
        exiger(*OuvrirSelection(fichier) == *grille);
    }
    poser(contenu);
    if (const auto selections = OuvrirSelections(fichier)) {
        exiger(!selections->empty());
        exiger(static_cast<bool>(SauverSelections(*selections, fichier)));
        exiger(*OuvrirSelections(fichier) == *selections);
    }
    poser(contenu);
    essayerListe(fichier);
    const MembreArchive membre{"a.tmp", contenu};
    poser(*FaireArchive({&membre, 1}));
    essayerListe(fichier);
    return 0;
}
