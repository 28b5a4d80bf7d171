// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/LigneSortis.h"

#include <utility>

namespace norvane {

namespace {

constexpr const char* JamaisSorti = "Jamais sorti ";

}  // namespace

LigneSortis FaireLigneSortis(const Base& base, Cellule sortis, std::span<const Occurrence> liste,
                             int inf, int sup, PlaceMaximum place) {
    const ResultatStats r = StatsIntervalle(liste, inf - 1, sup - 1);
    const auto dateDe = [&base](int numero) {
        return base.Tirages[static_cast<std::size_t>(numero - 1)].DateTirage;
    };
    const auto maximum = [&](int valeur, int nombre, int position) {
        if (place == PlaceMaximum::Tirage)
            return CelluleMaximum(valeur, nombre, position, inf - 1, sup);
        return CelluleMaximumDate(valeur, nombre, position, position < inf ? 0 : dateDe(position));
    };
    const int derniere = sup - r.Ecart;
    LigneSortis ligne{.NbFois = static_cast<int>(liste.size()),
                      .date = liste.empty() ? 0 : dateDe(derniere),
                      .resultat = r,
                      .cellules = {}};
    Cellule ecart = CelluleEntier(r.Ecart);
    if (!liste.empty()) ecart.cible = NumeroTirage{derniere};
    ligne.cellules = {std::move(sortis),
                      CelluleEntier(ligne.NbFois),
                      CelluleRatio(ligne.NbFois, sup - inf + 1),
                      CelluleDate(ligne.date, JamaisSorti, derniere),
                      std::move(ecart),
                      maximum(r.EcartMax, r.NbEcartMax, r.PosEcartMax),
                      CelluleEntier(r.Suite),
                      maximum(r.SuiteMax, r.NbSuiteMax, r.PosSuiteMax)};
    return ligne;
}

}  // namespace norvane
