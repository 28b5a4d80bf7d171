// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "AnalysesComptes.h"

#include <algorithm>

namespace norvane {

namespace {

constexpr std::int32_t SortiIci = -9;  // a gap that the end of the draw sets to 0

/// The numbers of one draw. False at an empty slot: what stood before it is counted all the same.
bool CompterTirage(ComptesAnalyses& c, const Tirage& tirage, int numeroTirage) {
    for (std::size_t k = 0; k < NbBoules; ++k) {
        const auto n = static_cast<std::size_t>(tirage.Numeros[k]);
        if (n == 0) return false;
        CaseSortie& place = c.Cases[k][n];
        ++place.fois;
        place.dernier = numeroTirage;
        ++(n % 2 == 0 ? c.NbPairs : c.NbImpairs);
        ++c.Septaines[(n - 1) / 7];
        ++c.Terminaisons[n % 10];
        ++c.NbFois[n];
        if (c.Ecart[n] >= c.EcartMax[n]) c.EcartMax[n] = c.Ecart[n];
        c.Ecart[n] = SortiIci;
        ++c.Suite[n];
    }
    return true;
}

void FermerTirage(ComptesAnalyses& c) {
    for (std::size_t n = 1; n <= NumeroMax; ++n) {
        if (c.Ecart[n] == SortiIci) {
            c.Ecart[n] = 0;
            continue;
        }
        ++c.Ecart[n];
        if (c.Suite[n] > c.SuiteMax[n]) c.SuiteMax[n] = c.Suite[n];
        c.Suite[n] = 0;
    }
}

/// The pair of record i and the next one.
void CompterPaire(ComptesAnalyses& c, int communs, int i) {
    c.SommeCommuns += communs;
    if (communs >= c.MaxCommuns) {
        c.MaxCommuns = communs;
    } else if (communs <= c.MinCommuns) {
        c.MinCommuns = communs;
    } else {
        return;
    }
    if (communs > 0) c.records.push_back(i);  // nothing in common is no record to show
}

}  // namespace

bool Communs::contient(int numero) const {
    const auto fin = numeros.begin() + nombre;
    return std::find(numeros.begin(), fin, numero) != fin;
}

Communs NumerosCommuns(const Tirage& a, const Tirage& b) {
    Communs communs;
    std::size_t i = 0, j = 0;
    while (i < NbBoules && j < NbBoules) {
        if (a.Numeros[i] < b.Numeros[j]) {
            ++i;
        } else if (b.Numeros[j] < a.Numeros[i]) {
            ++j;
        } else {
            communs.numeros[static_cast<std::size_t>(communs.nombre++)] = a.Numeros[i];
            ++i;
            ++j;
        }
    }
    return communs;
}

ComptesAnalyses CompterAnalyses(std::span<const Tirage> tirages, int inf, int sup) {
    ComptesAnalyses c;
    for (int i = inf; i <= sup; ++i) {
        const Tirage& tirage = tirages[static_cast<std::size_t>(i)];
        if (CompterTirage(c, tirage, i + 1)) FermerTirage(c);
        if (i == sup) break;
        const Tirage& suivant = tirages[static_cast<std::size_t>(i) + 1];
        CompterPaire(c, NumerosCommuns(tirage, suivant).nombre, i);
    }
    return c;
}

}  // namespace norvane
