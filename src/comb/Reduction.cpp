// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Reduction.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "comb/LigneCombinaison.h"

namespace norvane {

namespace {

constexpr int MinimumDeDepart = 1000;

/// What stands in front of "(".
std::string_view Numeros(std::string_view ligne) {
    return ligne.substr(0, ligne.find('('));
}

/// Without a count, as in a line that is no combination: -1.
int NbFois(std::string_view ligne) {
    const auto lue = LireLigneCombinaison(ligne);
    return lue ? lue->nbFois : -1;
}

}  // namespace

void NettoyerDoublons(std::vector<std::string>& lignes, int& min, int& max) {
    struct Entree {
        std::string ligne;
        int nbFois;
    };
    std::vector<Entree> entrees;
    for (auto& ligne : lignes) {
        const int n = NbFois(ligne);
        entrees.push_back({std::move(ligne), n});
    }
    // By the value of the count: as text "(100)" stands before "(99)".
    std::ranges::sort(entrees, [](const Entree& a, const Entree& b) {
        const auto numerosA = Numeros(a.ligne);
        const auto numerosB = Numeros(b.ligne);
        if (numerosA != numerosB) return numerosA < numerosB;
        return a.nbFois != b.nbFois ? a.nbFois < b.nbFois : a.ligne < b.ligne;
    });
    if (min != 0) min = MinimumDeDepart;
    max = 0;
    lignes.clear();
    for (std::size_t i = 0; i < entrees.size(); ++i) {
        if (i + 1 < entrees.size() && Numeros(entrees[i].ligne) == Numeros(entrees[i + 1].ligne))
            continue;
        min = std::min(min, entrees[i].nbFois);
        max = std::max(max, entrees[i].nbFois);
        lignes.push_back(std::move(entrees[i].ligne));
    }
}

void EffacerMarques(std::vector<std::string>& lignes) {
    for (auto& ligne : lignes) ligne.resize(std::min(ligne.find(')') + 1, ligne.size()));
}

void GarderMarques(std::vector<std::string>& lignes) {
    std::erase_if(lignes, [](const std::string& ligne) { return !ligne.ends_with('N'); });
}

std::vector<std::string> FiltrerExtremes(std::span<const Mot> ListeExtremes, int taille,
                                         int BorneInf, int BorneSup) {
    const auto pas = static_cast<std::size_t>(taille + 1);
    std::vector<std::string> lignes;
    std::span<const Mot> precedent;
    for (; ListeExtremes.size() >= pas; ListeExtremes = ListeExtremes.subspan(pas)) {
        const auto mots = ListeExtremes.first(pas);
        const bool deuxFois = std::ranges::equal(mots, precedent);
        precedent = mots;
        if (deuxFois || (mots[0] != BorneInf && mots[0] != BorneSup)) continue;
        lignes.push_back(LigneCombinaison(mots.subspan(1), mots[0]));
    }
    return lignes;
}

void FiltrerLignes(std::vector<std::string>& lignes, int BorneInf, int BorneSup) {
    std::erase_if(lignes, [&](const std::string& ligne) {
        const int n = NbFois(ligne);
        return n < 0 || (n != BorneInf && n != BorneSup);
    });
}

std::vector<std::string> ReduireExtremes(Collecte& resultat, int taille, const Extremes& extremes) {
    std::vector<std::string> lignes;
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
