// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Lists of extremes as text lines: what a search gave, brought down to what the bounds ask for.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "comb/Collecte.h"
#include "comb/Enregistrement.h"
#include "comb/VaroFonc2.h"

namespace norvane {

/// The list of extremes cleaned up after a new draw: of lines with the same numbers the one with
/// the highest count stays (a marked one before another). `min` becomes the smallest count left,
/// unless it is 0, `max` the largest. The lines end up in the order of their numbers.
void NettoyerDoublons(std::vector<std::string>& lignes, int& min, int& max);
/// Cuts every line behind its ")".
void EffacerMarques(std::vector<std::string>& lignes);
/// Keeps the lines with the mark.
void GarderMarques(std::vector<std::string>& lignes);
/// The lines of the records (1 + taille words) whose count is BorneInf or BorneSup; a record that
/// was given twice in a row becomes one line.
std::vector<std::string> FiltrerExtremes(std::span<const Mot> ListeExtremes, int taille,
                                         int BorneInf, int BorneSup);
/// Keeps the lines whose count is BorneInf or BorneSup; the former never where it is negative.
void FiltrerLignes(std::vector<std::string>& lignes, int BorneInf, int BorneSup);

/// What a finished search for extremes is stored and shown as: its lines or records reduced, the
/// first CapaciteListe of them. `resultat` is used up.
std::vector<std::string> ReduireExtremes(Collecte& resultat, int taille, const Extremes& extremes);

}  // namespace norvane
