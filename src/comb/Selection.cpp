// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/Selection.h"

#include <algorithm>

#include "comb/Noyaux.h"

namespace norvane {

namespace {

std::size_t Indice(int n) {
    return static_cast<std::size_t>(n);
}

/// The draws of the interval that hold all these numbers (one at least).
ListeOccurrences TiragesCommuns(const Occurrences& occ, std::span<const int> numeros) {
    ListeOccurrences communs = occ.ListeIntervalle[Indice(numeros.front() - 1)];
    for (const int n : numeros.subspan(1))
        std::erase_if(communs,
                      [&](Occurrence d) { return occ.PositionNumero[d][Indice(n - 1)] < 0; });
    return communs;
}

/// One pass over the draws of the selection: each of their numbers goes to the list of its place.
void RemplirListes(const Base& base, const ListeOccurrences& tirages,
                   const std::array<std::int16_t, NumeroMax + 1>& rang, int nombre,
                   std::vector<int>& sorties, std::vector<ListeOccurrences>& listes) {
    listes.assign(Indice(nombre), {});
    for (const Occurrence d : tirages)
        for (const int n : base.Tirages[d].Numeros)
            if (rang[Indice(n)] >= 0) listes[Indice(rang[Indice(n)])].push_back(d);
    sorties.clear();
    for (const auto& liste : listes) sorties.push_back(static_cast<int>(liste.size()));
}

}  // namespace

Resultat<Selection> ConstruireSelection(const GrilleSelection& grille, const Base& base,
                                        const Occurrences& occ) {
    Selection s;
    s.RangComplement.fill(-1);
    s.RangSecondaire.fill(-1);
    for (int n = 1; n <= NumeroMax; ++n) {
        const Priorite priorite = grille[Indice(n - 1)];
        if (priorite == Priorite::Absolue) {
            s.SelAbsolue.push_back(n);
            continue;
        }
        s.RangComplement[Indice(n)] = static_cast<std::int16_t>(s.Complement.size());
        s.Complement.push_back(n);
        if (priorite != Priorite::Secondaire) continue;
        s.RangSecondaire[Indice(n)] = static_cast<std::int16_t>(s.SelSecondaire.size());
        s.SelSecondaire.push_back(n);
    }
    s.NbSelAbsolue = static_cast<int>(s.SelAbsolue.size());
    s.NbSelSecondaire = static_cast<int>(s.SelSecondaire.size());
    s.NbComplement = NumeroMax - s.NbSelAbsolue;
    if (s.NbSelAbsolue == 0 && s.NbSelSecondaire > 0)
        return Erreur{"La sélection doit toujours comporter au moins une case cochée verte..."};
    if (s.NbSelAbsolue == 0 || s.NbSelAbsolue > SelAbsolueMax) return s;

    s.TiragesSelection = TiragesCommuns(occ, s.SelAbsolue);
    s.NbTiragesSelection = static_cast<int>(s.TiragesSelection.size());
    RemplirListes(base, s.TiragesSelection, s.RangComplement, s.NbComplement, s.NbSortiesComplement,
                  s.ListesComplement);
    RemplirListes(base, s.TiragesSelection, s.RangSecondaire, s.NbSelSecondaire,
                  s.NbSortiesSecondaire, s.ListesSecondaire);
    return s;
}

}  // namespace norvane
