// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/FichiersFiltre.h"

#include <fmt/format.h>

#include <algorithm>
#include <string>
#include <system_error>

#include "base/Fichiers.h"
#include "EchangeFichiers.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t OctetsNoteMax = 1 << 10;  ///< five short names

Resultat<Rien> Renommer(const fs::path& de, const fs::path& vers) {
    std::error_code erreur;
    fs::rename(de, vers, erreur);
    if (!erreur) return Rien{};
    return Erreur{fmt::format(
        "Le fichier « {} » ne peut pas prendre le nom « {} » ({}) : vérifiez les droits du "
        "dossier, puis recommencez.",
        de.string(), vers.filename().string(), erreur.message())};
}

Resultat<Rien> Supprimer(const fs::path& fichier) {
    std::error_code erreur;
    fs::remove(fichier, erreur);
    if (!erreur) return Rien{};
    return Erreur{
        fmt::format("Le fichier « {} » ne peut pas être supprimé ({}) : supprimez-le "
                    "vous-même.",
                    fichier.string(), erreur.message())};
}

}  // namespace

Resultat<Rien> EcarterFichiersFiltre(const fs::path& repertoire) {
    if (NomPresent(repertoire / NomNoteFiltre)) {
        if (auto rendu = RendreFichiersFiltre(repertoire); !rendu) return rendu;
    }
    std::string note;
    for (const Echange& echange : Echanges) {
        // A stray one would come back as the whole base's.
        if (auto libre = Supprimer(repertoire / echange.sauvegarde); !libre) return libre;
        if (NomPresent(repertoire / echange.enUsage)) note += fmt::format("{}\n", echange.enUsage);
    }
    if (auto ecrite = EcrireFichier(repertoire / NomNoteFiltre, note); !ecrite) return ecrite;
    for (const Echange& echange : Echanges) {
        const fs::path enUsage = repertoire / echange.enUsage;
        if (!NomPresent(enUsage)) continue;
        if (auto ecarte = Renommer(enUsage, repertoire / echange.sauvegarde); !ecarte) {
            // What failed is told; what cannot be put back now is put back by the next start.
            static_cast<void>(static_cast<bool>(RendreFichiersFiltre(repertoire)));
            return ecarte;
        }
    }
    return Rien{};
}

bool FichiersEcartes(const fs::path& repertoire) {
    return NomPresent(repertoire / NomNoteFiltre) ||
           std::ranges::any_of(Echanges, [&](const Echange& echange) {
               return NomPresent(repertoire / echange.sauvegarde);
           });
}

Resultat<Rien> RendreFichiersFiltre(const fs::path& repertoire) {
    const fs::path fichierNote = repertoire / NomNoteFiltre;
    if (!NomPresent(fichierNote)) return RestaurerFichiersFiltre(repertoire);
    const auto note = LireFichier(fichierNote, OctetsNoteMax);
    if (!note) return Erreur{note.erreur()};
    for (const Echange& echange : Echanges) {
        const fs::path enUsage = repertoire / echange.enUsage;
        const fs::path sauvegarde = repertoire / echange.sauvegarde;
        // A file that there was and that has no backup was never moved, or is back already.
        if (NomPresent(sauvegarde)) {
            if (auto rendu = Renommer(sauvegarde, enUsage); !rendu) return rendu;
        } else if (note->find(echange.enUsage) == std::string::npos) {
            if (auto parti = Supprimer(enUsage); !parti) return parti;
        }
    }
    return Supprimer(fichierNote);
}

}  // namespace norvane
