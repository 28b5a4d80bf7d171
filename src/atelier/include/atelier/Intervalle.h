// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the engine works on: the interval of draws, and all combinations or series alone. Each has
// bounds of its own, which come back where they were computed.
#pragma once

#include "atelier/Moteur.h"
#include "base/Resultat.h"

namespace norvane {

/// The marks of sizes that are to be computed anew over so many draws: no bound, and what a search
/// starts from in `series` mode or else over a part of the base.
EtatCombinaisons EtatNeutre(int tailleIntervalle, bool series);

/// Refused: draws debut..fin (one-based, inclusive) that are none of the base's.
Resultat<Rien> VerifierIntervalle(const Base& base, int debut, int fin);

/// Whether the interval may be left: the whole base only with the bounds of the sizes 2 to 5
/// computed. Those of larger sizes are taken as current.
bool IntervallePeutChanger(const Moteur& moteur, const Atelier& atelier);

/// The engine works over these draws from now on: occurrences, bounds (of the file for the whole
/// base, else to be computed), selection; the extremes go and the advanced sort by gap is switched
/// off. The other lists and the list mode stay: they are the caller's to see to. Does nothing when
/// the interval is in force. An interval of no draw is refused, and nothing changed; any other
/// error is that of Atelier::relireEtat, and all else is done.
Resultat<Rien> ChangerIntervalle(Atelier& atelier, int debut, int fin);

/// Only series from now on, without a selection: the bounds and the grid of before are set aside,
/// and the main list and the extremes go. Back come the bounds that were left on the same interval.
void EntrerSeries(Atelier& atelier);
/// All combinations again, and the selection set aside; the main list and the extremes go. An error
/// is that of Atelier::relireEtat, and all else is done.
Resultat<Rien> QuitterSeries(Atelier& atelier);

}  // namespace norvane
