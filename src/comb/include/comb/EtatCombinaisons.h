// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// COMBCALC.INI: for each combination size, the draws its stored extremes were computed on and the
// extremes themselves. Text, nine lines of three integers for the sizes 2 to 10.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>

#include "base/Resultat.h"
#include "comb/Combinaison.h"

namespace norvane {

inline constexpr const char* NomCombCalc = "COMBCALC.INI";

/// Tables indexed by the size, 2..10; the first two entries are unused.
struct EtatCombinaisons {
    std::array<std::int32_t, TailleCombMax + 1> NbTiragesComb{};  ///< 0: never computed
    std::array<std::int32_t, TailleCombMax + 1> BorneInf{};
    std::array<std::int32_t, TailleCombMax + 1> BorneSup{};
    /// Sizes 6 to 10, which are read as current: the draw count that the file told where it was
    /// another one. It is written back so that the list stays known as out of date.
    std::array<std::optional<std::int32_t>, TailleCombMax + 1> NbTiragesPerime{};
};

/// Reads `repertoire`/COMBCALC.INI. A missing file is "never computed" for all sizes; a file cut
/// short leaves the sizes behind the cut at 0, and bounds that no count over so many draws can give
/// are "never computed" as well. From size 6 on the draw count read is replaced by `nbTirages`. A
/// file that holds something else than non-negative integers below 65536 is an error naming the
/// line; the state is then all zeros.
Resultat<EtatCombinaisons> LireCombCalc(const std::filesystem::path& repertoire, int nbTirages);

/// Writes the nine lines; a negative draw count, the mark of a stale size, is written as 0.
/// NbTiragesPerime is written in the place of NbTiragesComb where it is set.
Resultat<Rien> EcrireCombCalc(const EtatCombinaisons& etat,
                              const std::filesystem::path& repertoire);

/// Nine lines "0 0 1": every size counts as never computed.
Resultat<Rien> EcrireCombCalcNeutre(const std::filesystem::path& repertoire);

/// The files set aside while the base is filtered come back: the filtered COMBCALC.INI and
/// comb2.dat to comb5.dat are deleted first, then their backups renamed. Sizes 6 to 10 are not
/// part of the swap. Does nothing for a name without a backup but delete the filtered file;
/// without any backup COMBCALC.INI becomes the nine neutral lines. Names are matched in any case,
/// so that no filtered file survives under another spelling.
Resultat<Rien> RestaurerFichiersFiltre(const std::filesystem::path& repertoire);

}  // namespace norvane
