// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the chapters of the analyses are written from, and those that take a file of their own.
#pragma once

#include <algorithm>
#include <span>

#include "AnalysesComptes.h"
#include "reports/Document.h"

namespace norvane {

struct MatiereAnalyses {
    std::span<const Tirage> tirages;
    int TirageInf, TirageSup;  ///< zero-based
    ComptesAnalyses comptes;

    int d() const { return TirageSup - TirageInf; }
    int nombre() const { return d() + 1; }  ///< draws
};

/// By count, the highest first; equal counts keep their order.
template <typename Rangees, typename Compte>
void TrierParCompte(Rangees& rangees, Compte compte) {
    std::ranges::stable_sort(rangees, std::ranges::greater{}, compte);
}

using RedactionChapitre = void(Redacteur& r, const MatiereAnalyses& m);
RedactionChapitre RedigerCommuns, RedigerBilanCommuns, RedigerMoyenneCommuns, RedigerDixDerniers,
    RedigerStatistiques, RedigerTerminaisons, RedigerParites, RedigerSeptaines, RedigerCases,
    RedigerRayonnement;

}  // namespace norvane
