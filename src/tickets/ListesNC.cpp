// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/ListesNC.h"

#include <algorithm>

namespace norvane {

namespace {

/// Combinations between two looks at the stop and two steps of the progress.
constexpr std::size_t Pas = 4096;

}  // namespace

void AfficherListeNEAppend(std::vector<LigneNC>& liste, Ensemble numeros, TypeGrille type) {
    if (numeros.taille() != type.n || type.c < 1 || type.c > ChanceMax) return;
    // The places of the chances taken, moved on as the digits of a counter.
    std::vector<int> chances;
    for (int c = 1; c <= type.c; ++c) chances.push_back(c);
    for (;;) {
        liste.push_back({numeros, Ensemble::de(chances)});
        int place = type.c - 1;
        const auto chance = [&chances](int k) -> int& {
            return chances[static_cast<std::size_t>(k)];
        };
        while (place >= 0 && chance(place) == ChanceMax - type.c + 1 + place) --place;
        if (place < 0) return;
        ++chance(place);
        while (++place < type.c) chance(place) = chance(place - 1) + 1;
    }
}

void AfficherListeNE(std::vector<LigneNC>& liste, Ensemble numeros, TypeGrille type) {
    liste.clear();
    AfficherListeNEAppend(liste, numeros, type);
}

SortiesNC::SortiesNC(const Base& base, int inf, int sup) {
    const int premierAvecChance = PremierAvecChance(base);
    for (int d = inf - 1; d < sup; ++d) {
        const Tirage& tirage = base.Tirages[static_cast<std::size_t>(d)];
        const Ensemble numeros = Ensemble::de(tirage.Numeros);
        for (const int n : numeros)
            rencontres_[static_cast<std::size_t>(n - 1)] |= numeros.sans(Ensemble{n}).bits();
        if (d >= premierAvecChance && tirage.Chance != 0) chances_.ajouter(tirage.Chance);
    }
}

bool SortiesNC::gagnante(Ensemble numeros) const {
    return std::any_of(numeros.begin(), numeros.end(), [&](int n) {
        return (rencontres_[static_cast<std::size_t>(n - 1)] & numeros.bits()) != 0;
    });
}

void FiltrerChances(std::vector<LigneNC>& liste, Ensemble chances) {
    std::erase_if(liste, [&](const LigneNC& ligne) { return !chances.contient(ligne.chances); });
}

void FiltrerGagnantes(std::vector<LigneNC>& liste, const SortiesNC& sorties) {
    std::erase_if(liste, [&](const LigneNC& ligne) { return sorties.gagnante(ligne.numeros); });
}

void SupprSorties(std::vector<LigneNC>& liste, const SortiesNC& sorties) {
    std::erase_if(liste, [&](const LigneNC& ligne) { return sorties.sortie(ligne); });
}

Trouvees JamaisSorties(const SortiesNC& sorties, std::size_t nombre,
                       const std::function<Ensemble(std::size_t)>& combinaison,
                       const Suivi& suivi) {
    Trouvees trouvees;
    Ensemble toutes;
    for (int c = 1; c <= ChanceMax; ++c) toutes.ajouter(c);
    for (std::size_t i = 0; i < nombre; ++i) {
        if (i % Pas == 0) {
            if ((trouvees.arretee = suivi.arrete())) return trouvees;
            suivi.poser(static_cast<int>(i * 100 / nombre));
        }
        const Ensemble numeros = combinaison(i);
        if (!sorties.gagnante(numeros)) trouvees.lignes.push_back({numeros, toutes});
    }
    suivi.poser(100);
    return trouvees;
}

}  // namespace norvane
