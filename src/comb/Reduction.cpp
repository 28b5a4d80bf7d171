// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Reduction.h"

#include <algorithm>

namespace norvane {

namespace {

constexpr int MinimumDeDepart = 1000;

}  // namespace

void NettoyerDoublons(std::vector<Combinaison>& lignes, int& min, int& max) {
    // By the value of the count: as text "(100)" stands before "(99)".
    std::ranges::sort(lignes, [](const Combinaison& a, const Combinaison& b) {
        if (a.numeros != b.numeros) return AvantLexico(a.numeros.bits(), b.numeros.bits());
        return a.NbFois != b.NbFois ? a.NbFois < b.NbFois : a.marque < b.marque;
    });
    if (min != 0) min = MinimumDeDepart;
    max = 0;
    std::size_t gardees = 0;
    for (std::size_t i = 0; i < lignes.size(); ++i) {
        if (i + 1 < lignes.size() && lignes[i].numeros == lignes[i + 1].numeros) continue;
        min = std::min(min, lignes[i].NbFois);
        max = std::max(max, lignes[i].NbFois);
        lignes[gardees++] = lignes[i];
    }
    lignes.resize(gardees);
}

void EffacerMarques(std::vector<Combinaison>& lignes) {
    for (Combinaison& ligne : lignes) ligne.marque = false;
}

void GarderMarques(std::vector<Combinaison>& lignes) {
    std::erase_if(lignes, [](const Combinaison& ligne) { return !ligne.marque; });
}

std::vector<Combinaison> FiltrerExtremes(std::span<const Mot> ListeExtremes, int taille,
                                         int BorneInf, int BorneSup) {
    const auto pas = static_cast<std::size_t>(taille) + 1;
    std::vector<Combinaison> lignes;
    std::span<const Mot> precedent;
    for (; ListeExtremes.size() >= pas; ListeExtremes = ListeExtremes.subspan(pas)) {
        const auto mots = ListeExtremes.first(pas);
        const bool deuxFois = std::ranges::equal(mots, precedent);
        precedent = mots;
        if (deuxFois || (mots[0] != BorneInf && mots[0] != BorneSup)) continue;
        lignes.push_back({Ensemble::de(mots.subspan(1)), mots[0]});
    }
    return lignes;
}

void FiltrerLignes(std::vector<Combinaison>& lignes, int BorneInf, int BorneSup) {
    std::erase_if(lignes, [&](const Combinaison& ligne) {
        return ligne.NbFois != BorneInf && ligne.NbFois != BorneSup;
    });
}

std::vector<Combinaison> ReduireExtremes(Collecte& resultat, int taille, const Extremes& extremes) {
    std::vector<Combinaison> lignes;
    if (resultat.mots.empty()) {
        lignes = std::move(resultat.lignes);
        FiltrerLignes(lignes, extremes.BorneSup, extremes.BorneSup);
    } else {
        // The records of size 4 track the maximum alone.
        const int inf = taille <= 3 ? extremes.BorneInf : extremes.BorneSup;
        lignes = FiltrerExtremes(resultat.mots, taille, inf, extremes.BorneSup);
    }
    lignes.resize(std::min(lignes.size(), CapaciteListe));
    return lignes;
}

}  // namespace norvane
