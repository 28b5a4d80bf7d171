// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "slips/PrixBulletins.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "tickets/Rangs.h"

namespace norvane {

namespace {

constexpr double CentimesParEuro = 100;

std::int64_t Centimes(double euros) {
    return std::llround(euros * CentimesParEuro);
}

double Euros(std::int64_t centimes) {
    return static_cast<double>(centimes) / CentimesParEuro;
}

int PrixDuJoker(std::int32_t champ) {
    return champ == SansOption ? 0 : PrixJoker(champ + 1);
}

PrixBulletin Prix(std::span<const Grille> grilles, const OptionsBulletin& o, int bulletin) {
    PrixBulletin prix;
    prix.bulletin = bulletin;
    std::int64_t mises = 0;
    std::int64_t second = 0;
    for (const Grille& grille : grilles) {
        if (!grille.complete()) {
            ++prix.nonVendues;
            continue;
        }
        ++prix.grilles;
        const std::int64_t simple = Centimes(TableMises(grille.n(), grille.c()));
        mises += simple;
        if (!ParticipeAu2ndTirage(grille)) continue;
        ++prix.avec2nd;
        second += Centimes(grille.mise) - simple;
    }
    const std::int64_t jokers = Centimes(PrixDuJoker(o.Joker1) + PrixDuJoker(o.Joker2));
    const int jours = (o.Lundi == 1) + (o.Mercredi == 1) + (o.Samedi == 1);
    prix.jours = std::max(jours, 1);
    prix.semaines = std::max<int>(o.Semaines, 1);
    prix.mises = Euros(mises);
    prix.second = Euros(second);
    prix.jokers = Euros(jokers);
    prix.total = Euros((mises + second + jokers) * prix.jours * prix.semaines);
    return prix;
}

}  // namespace

std::vector<PrixBulletin> PrixBulletins(std::span<const Grille> grilles,
                                        const OptionsBulletins& options, int du, int au) {
    std::vector<PrixBulletin> lignes;
    for (int b = du; b <= au; ++b)
        lignes.push_back(Prix(GrillesDuBulletin(grilles, b), options.de(b), b));
    return lignes;
}

double PrixTotal(std::span<const PrixBulletin> lignes) {
    std::int64_t total = 0;
    for (const PrixBulletin& ligne : lignes) total += Centimes(ligne.total);
    return Euros(total);
}

}  // namespace norvane
