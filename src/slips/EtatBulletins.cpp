// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "slips/EtatBulletins.h"

#include <algorithm>
#include <utility>

#include "base/Fichiers.h"

namespace norvane {

void EtatBulletins::borner(int nombre) {
    const auto dans = [&](int b) { return std::clamp(b, 1, std::max(nombre, 1)); };
    bulletin = dans(bulletin);
    plage = {dans(plage.du), dans(plage.au)};
}

PlageBulletins EtatBulletins::aImprimer(int nombre) const {
    if (nombre == 0) return {};
    switch (etendue) {
        case EtendueBulletins::Tous:
            return {1, nombre};
        case EtendueBulletins::EnCours:
            return {bulletin, bulletin};
        case EtendueBulletins::Plage:
            return plage;
    }
    return {};
}

Resultat<Rien> EtatBulletins::ouvrir(const std::filesystem::path& grilles) {
    options = {};
    fichier.clear();
    bulletin = 1;
    auto lues = LireOptions(FichierOptions(grilles));
    // A file that could not be read is not written over.
    if (!lues) return Erreur{lues.erreur()};
    options = *std::move(lues);
    fichier = FichierOptions(grilles);
    return Rien{};
}

Resultat<Rien> EtatBulletins::sauver(const std::filesystem::path& grilles) {
    fichier = FichierOptions(grilles);
    return garder();
}

Resultat<Rien> EtatBulletins::garder() const {
    if (fichier.empty()) return Rien{};
    const bool aucune = std::ranges::all_of(options.bulletins,
                                            [](const auto& o) { return o == OptionsBulletin{}; });
    if (aucune && !NomPresent(fichier)) return Rien{};
    return EcrireOptions(options, fichier);
}

}  // namespace norvane
