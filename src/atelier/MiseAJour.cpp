// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/MiseAJour.h"

#include <algorithm>
#include <utility>

#include "comb/EtatCombinaisons.h"

namespace norvane {

namespace {

/// The draws of before stand at the start of those of after, as they were.
bool SuiteSeule(const Base& avant, const Base& apres) {
    return avant.NbTirages <= apres.NbTirages &&
           std::ranges::equal(avant.enUsage(),
                              apres.enUsage().first(static_cast<std::size_t>(avant.NbTirages)));
}

}  // namespace

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
    if (!SuiteSeule(atelier.base, venue.base))
        if (auto neutre = EcrireCombCalcNeutre(atelier.Repertoire); !neutre) return neutre;
    std::swap(atelier.base, venue.base);
    auto sauve = atelier.sauverBase();
    if (!sauve) std::swap(atelier.base, venue.base);
    return sauve;
}

}  // namespace norvane
