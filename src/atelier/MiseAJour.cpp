// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/MiseAJour.h"

#include <utility>

namespace norvane {

Resultat<BaseMiseAJour> PreparerMiseAJour(const Base& base, std::string_view octets,
                                          std::string_view nom, const Suivi& suivi) {
    auto archive = LireArchiveOfficielle(octets, nom, suivi);
    if (!archive) return Erreur{archive.erreur()};
    BaseMiseAJour venue{base, {}, std::move(archive->refusees)};
    const auto fusion = FusionnerArchive(venue.base, *archive);
    if (!fusion) return Erreur{fusion.erreur()};
    venue.fusion = *fusion;
    return venue;
}

Resultat<Rien> AppliquerMiseAJour(Atelier& atelier, BaseMiseAJour&& venue) {
    std::swap(atelier.base, venue.base);
    auto sauve = atelier.sauverBase();
    if (!sauve) std::swap(atelier.base, venue.base);
    return sauve;
}

}  // namespace norvane
