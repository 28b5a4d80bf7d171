// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Lists of extremes: what a search gave, brought down to what the bounds ask for.
#pragma once

#include <span>
#include <vector>

#include "comb/Collecte.h"
#include "comb/Combinaison.h"
#include "comb/VaroFonc2.h"

namespace norvane {

/// The list of extremes cleaned up after a new draw: of lines with the same numbers the one with
/// the highest count stays (a marked one before another). `min` becomes the smallest count left,
/// unless it is 0, `max` the largest. The lines, all of one size, end up in the order of their
/// numbers.
void NettoyerDoublons(std::vector<Combinaison>& lignes, int& min, int& max);
/// Takes the mark off every line.
void EffacerMarques(std::vector<Combinaison>& lignes);
/// Keeps the lines with the mark.
void GarderMarques(std::vector<Combinaison>& lignes);
/// The lines of the records (1 + taille words) whose count is BorneInf or BorneSup; a record that
/// was given twice in a row becomes one line.
std::vector<Combinaison> FiltrerExtremes(std::span<const Mot> ListeExtremes, int taille,
                                         int BorneInf, int BorneSup);
/// Keeps the lines whose count is BorneInf or BorneSup; the former never where it is negative.
void FiltrerLignes(std::vector<Combinaison>& lignes, int BorneInf, int BorneSup);

/// What a finished search for extremes is stored and shown as: its lines or records reduced, the
/// first CapaciteListe of them. `resultat` is used up.
std::vector<Combinaison> ReduireExtremes(Collecte& resultat, int taille, const Extremes& extremes);

}  // namespace norvane
