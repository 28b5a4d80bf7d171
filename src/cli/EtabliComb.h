// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the commands on combinations work with.
#pragma once

#include <fmt/format.h>

#include <optional>
#include <utility>

#include "comb/VaroFonc2.h"
#include "Contexte.h"

namespace norvane {

/// A base, its structures over the interval asked for, and an engine that never ran.
struct EtabliComb {
    Donnees donnees;
    Occurrences occurrences;
    EtatCombinaisons etat;
    Selection selection;

    explicit EtabliComb(Donnees d) : donnees(std::move(d)) {
        ConstruireOccurrences(donnees.base, occurrences);
        ChangerIntervalle(donnees.base, occurrences, donnees.de, donnees.a);
    }
    ContexteComb contexte(bool series, ModeStockage mode) const {
        return {.base = donnees.base,
                .occurrences = occurrences,
                .etat = etat,
                .selection = selection,
                .IntervalleInf = donnees.de,
                .IntervalleSup = donnees.a,
                .series = series,
                .mode = mode};
    }
};

/// The size as it was typed, 2..10.
inline Resultat<int> TailleComb(const std::optional<long>& taille) {
    if (*taille < TailleCombMin || *taille > TailleCombMax)
        return Erreur{fmt::format("Une combinaison compte de {} à {} numéros, pas {}.",
                                  TailleCombMin, TailleCombMax, *taille)};
    return static_cast<int>(*taille);
}

/// Runs a worker to its end.
inline Resultat<Rien> Mener(TCombThread& fil) {
    fil.Resume();
    fil.WaitFor();
    if (!fil.erreur().empty()) return Erreur{fil.erreur()};
    return Rien{};
}

}  // namespace norvane
