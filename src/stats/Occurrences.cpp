// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/Occurrences.h"

#include <algorithm>

namespace norvane {

namespace {

// What a record shows: `visite` takes the zero-based element, five times or at most once.
constexpr auto LesNumeros = [](const Tirage& tirage, auto&& visite) {
    for (const int numero : tirage.Numeros) visite(static_cast<std::size_t>(numero - 1));
};
constexpr auto LaChance = [](const Tirage& tirage, auto&& visite) {
    if (tirage.Chance != 0) visite(static_cast<std::size_t>(tirage.Chance - 1));
};

template <std::size_t N, typename Elements>
void Compter(const Base& base, Plage plage, Elements elements, Sorties<N>& sorties) {
    sorties.fill(0);
    for (int i = plage.premier; i <= plage.dernier; ++i)
        elements(base.Tirages[static_cast<std::size_t>(i)], [&](std::size_t k) { ++sorties[k]; });
}

template <std::size_t N, typename Elements>
void Lister(const Base& base, Plage plage, Elements elements, const Sorties<N>& sorties,
            std::array<ListeOccurrences, N>& listes) {
    for (std::size_t k = 0; k < N; ++k) {
        listes[k] = ListeOccurrences();
        listes[k].reserve(sorties[k]);
    }
    for (int i = plage.premier; i <= plage.dernier; ++i)
        elements(base.Tirages[static_cast<std::size_t>(i)],
                 [&](std::size_t k) { listes[k].push_back(static_cast<Occurrence>(i)); });
}

void Reconstruire(const Base& base, Occurrences& occ, Plage plageChances) {
    ConstruirePositions(base, occ);
    CompterNumeros(base, PlageBase(base), occ.SortiesNumeros);
    ListerNumeros(base, PlageBase(base), occ.SortiesNumeros, occ.ListeNumeros);
    CompterChances(base, plageChances, occ.SortiesChances);
    ListerChances(base, plageChances, occ.SortiesChances, occ.ListeChances);
    ChangerIntervalle(base, occ, 1, base.NbTirages);
}

}  // namespace

void CompterNumeros(const Base& base, Plage plage, Sorties<NumeroMax>& sorties) {
    Compter(base, plage, LesNumeros, sorties);
}

void ListerNumeros(const Base& base, Plage plage, const Sorties<NumeroMax>& sorties,
                   std::array<ListeOccurrences, NumeroMax>& listes) {
    Lister(base, plage, LesNumeros, sorties, listes);
}

void CompterChances(const Base& base, Plage plage, Sorties<ChanceMax>& sorties) {
    Compter(base, plage, LaChance, sorties);
}

void ListerChances(const Base& base, Plage plage, const Sorties<ChanceMax>& sorties,
                   std::array<ListeOccurrences, ChanceMax>& listes) {
    Lister(base, plage, LaChance, sorties, listes);
}

Plage PlageBase(const Base& base) {
    return {0, base.NbTirages - 1};
}

Plage PlageIntervalle(int premier, int dernier) {
    return {premier - 1, dernier - 1};
}

Plage PlageNouveaux(const Base& base, Plage plage) {
    return {std::max(plage.premier, base.NbAnciensTirages), plage.dernier};
}

void ConstruirePositions(const Base& base, Occurrences& occ) {
    constexpr std::int16_t Absent = -1;
    constexpr std::int16_t PlaceChance = NbBoules;
    std::array<std::int16_t, NumeroMax> sansNumero;
    sansNumero.fill(Absent);
    std::array<std::int16_t, ChanceMax> sansChance;
    sansChance.fill(Absent);

    const auto tirages = base.enUsage();
    occ.PositionNumero.assign(tirages.size(), sansNumero);
    occ.PositionChance.assign(tirages.size(), sansChance);
    for (std::size_t i = 0; i < tirages.size(); ++i) {
        std::int16_t place = 0;
        LesNumeros(tirages[i], [&](std::size_t k) { occ.PositionNumero[i][k] = place++; });
        const int chance = std::max(tirages[i].Chance, 1);
        occ.PositionChance[i][static_cast<std::size_t>(chance - 1)] = PlaceChance;
    }
}

void ConstruireOccurrences(const Base& base, Occurrences& occ) {
    Reconstruire(base, occ, PlageBase(base));
}

void RecalculBase(const Base& base, Occurrences& occ) {
    const Plage tout = PlageBase(base);
    Reconstruire(base, occ, base.AnciensTirages ? tout : PlageNouveaux(base, tout));
}

void ChangerIntervalle(const Base& base, Occurrences& occ, int inf, int sup) {
    occ.IntervalleInf = inf;
    occ.IntervalleSup = sup;
    CompterNumeros(base, PlageIntervalle(inf, sup), occ.SortiesIntervalle);
    ListerNumeros(base, PlageIntervalle(inf, sup), occ.SortiesIntervalle, occ.ListeIntervalle);
}

}  // namespace norvane
