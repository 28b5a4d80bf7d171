// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "slips/Bulletins.h"

#include <algorithm>
#include <cstddef>

namespace norvane {

namespace {

constexpr int ItemPlusOuMoins = 2;

template <typename Suite>
Suite Tranche(Suite grilles, int bulletin) {
    constexpr auto parBulletin = static_cast<std::size_t>(GrillesParBulletin);
    const std::size_t debut =
        std::min(static_cast<std::size_t>(bulletin - 1) * parBulletin, grilles.size());
    return grilles.subspan(debut, std::min(parBulletin, grilles.size() - debut));
}

}  // namespace

std::span<const Grille> GrillesDuBulletin(std::span<const Grille> grilles, int bulletin) {
    return Tranche(grilles, bulletin);
}

std::span<Grille> GrillesDuBulletin(std::span<Grille> grilles, int bulletin) {
    return Tranche(grilles, bulletin);
}

void CocherSemaines(OptionsBulletin& options, int item, bool coche) {
    const int semaines = item + 2;
    if (coche) {
        options.Semaines = semaines;
    } else if (options.Semaines == semaines) {
        options.Semaines = SansOption;
    }
}

Resultat<Rien> CocherJoker(std::int32_t& champ, int item, bool coche) {
    if (item == ItemPlusOuMoins && coche && champ == SansOption)
        return Erreur{"Cochez d'abord 1€ ou 2€..."};
    if (JokerCoche(champ, item) == coche) return Rien{};
    if (item == ItemPlusOuMoins) {
        champ += coche ? 2 : -2;
    } else {
        champ = coche ? item : SansOption;
    }
    return Rien{};
}

void Cocher2ndTirage(Grille& grille, bool coche) {
    grille.mise = MiseGrille(grille.n(), grille.c(), coche);
}

OptionsBulletin OptionsBulletins::de(int bulletin) const {
    const auto i = static_cast<std::size_t>(bulletin - 1);
    return i < bulletins.size() ? bulletins[i] : OptionsBulletin{};
}

OptionsBulletin& OptionsBulletins::a(int bulletin) {
    const auto i = static_cast<std::size_t>(bulletin - 1);
    if (i >= bulletins.size()) bulletins.resize(i + 1);
    return bulletins[i];
}

void SemainesPourTous(OptionsBulletins& options, int bulletin, int nombre) {
    const auto semaines = options.de(bulletin).Semaines;
    for (int b = 1; b <= nombre; ++b) options.a(b).Semaines = semaines;
}

void OptionsPourTous(OptionsBulletins& options, std::span<Grille> grilles, int bulletin) {
    const OptionsBulletin modele = options.de(bulletin);
    const auto grillesModele = GrillesDuBulletin(std::span<const Grille>(grilles), bulletin);
    for (int b = 1; b <= NbBulletins(grilles.size()); ++b) {
        options.a(b) = modele;
        if (b == bulletin) continue;
        const auto siennes = GrillesDuBulletin(grilles, b);
        for (std::size_t j = 0; j < std::min(siennes.size(), grillesModele.size()); ++j)
            Cocher2ndTirage(siennes[j], ParticipeAu2ndTirage(grillesModele[j]));
    }
}

}  // namespace norvane
