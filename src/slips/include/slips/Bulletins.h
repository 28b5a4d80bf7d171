// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Play slips: six grids each, and the options that a slip carries. Slip b (from 1) holds the grids
// 6(b - 1) + 1 to 6b of the list in use.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "base/Resultat.h"
#include "slips/Geometrie.h"
#include "tickets/Grille.h"

namespace norvane {

inline constexpr int NbBulletinsMax = 2000;
inline constexpr int SansOption = -1;

/// How many slips so many grids fill.
constexpr int NbBulletins(std::size_t grilles) {
    return static_cast<int>((grilles + GrillesParBulletin - 1) / GrillesParBulletin);
}
/// The grids of slip `bulletin` (from 1): six, fewer on the last one, none beyond it.
std::span<const Grille> GrillesDuBulletin(std::span<const Grille> grilles, int bulletin);
std::span<Grille> GrillesDuBulletin(std::span<Grille> grilles, int bulletin);

struct OptionsBulletin {
    std::int32_t Semaines = SansOption;  ///< 2..5
    std::int32_t Joker1 = SansOption;    ///< 0: 1€, 1: 2€, 2 more with + ou -1
    std::int32_t Joker2 = SansOption;
    std::int16_t Lundi = SansOption;  ///< 1: ticked
    std::int16_t Mercredi = SansOption;
    std::int16_t Samedi = SansOption;

    friend bool operator==(const OptionsBulletin&, const OptionsBulletin&) = default;
};

/// Item 0..3 ("2" to "5") ticked or not: one at most.
void CocherSemaines(OptionsBulletin& options, int item, bool coche);
/// Items of a Joker+: 0 "1€", 1 "2€", 2 "+ ou -1". One of the first two at most; the third goes
/// with one of them alone: refused without, in the words for the user, nothing changed. Unticking
/// what is not ticked does nothing.
Resultat<Rien> CocherJoker(std::int32_t& champ, int item, bool coche);
/// Whether that item is ticked.
constexpr bool JokerCoche(std::int32_t champ, int item) {
    return champ != SansOption && (item == 2 ? champ >= 2 : champ % 2 == item);
}

/// The stake of the grid with the option 2nd Tirage or without: nothing else tells it.
void Cocher2ndTirage(Grille& grille, bool coche);

/// The options of every slip, from slip 1 on; slips beyond the end have none.
struct OptionsBulletins {
    std::vector<OptionsBulletin> bulletins;

    /// From 1.
    OptionsBulletin de(int bulletin) const;
    /// From 1 to NbBulletinsMax; made when it is not there.
    OptionsBulletin& a(int bulletin);

    friend bool operator==(const OptionsBulletins&, const OptionsBulletins&) = default;
};

/// The weeks of slip `bulletin` for all `nombre` slips.
void SemainesPourTous(OptionsBulletins& options, int bulletin, int nombre);
/// All options of slip `bulletin` for all slips of these grids; the 2nd Tirage of each of its grids
/// for the grids at the same place. A place where it has no grid leaves the others as they are.
void OptionsPourTous(OptionsBulletins& options, std::span<Grille> grilles, int bulletin);

/// The file of the options that goes with a file of grids: its name with the extension "bul".
std::filesystem::path FichierOptions(const std::filesystem::path& grilles);
/// Reads it; a missing file is no options. Refused with a sentence that names the line: words for
/// numbers, values that a slip cannot have, a count that is not that of the lines.
Resultat<OptionsBulletins> LireOptions(const std::filesystem::path& fichier);
Resultat<Rien> EcrireOptions(const OptionsBulletins& options, const std::filesystem::path& fichier);

}  // namespace norvane
