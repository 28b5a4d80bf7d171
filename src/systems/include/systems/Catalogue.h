// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The nine guarantees and the lists of the systems that hold them. A guarantee X/Y over a selection
// of S numbers: some grid of the system holds X of the five numbers drawn at least, as soon as Y of
// them lie in the selection.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"

namespace norvane {

struct TypeGarantie {
    int X, Y;
    const char* legende;
    const char* fichier;  ///< name of its list, in the program's directory
    const char* tete;     ///< head of the label that counts its systems
    int baseMax;          ///< most base numbers of its systems
};

inline constexpr std::array<TypeGarantie, 9> TypesGarantie = {{
    {2, 2, "GARANTIE 2/2", "sys22.dat", "Garantie de 2/2 : ", 0},
    {2, 3, "GARANTIE 2/3", "sys23.dat", "Garantie de 2/3 : ", 1},
    {2, 4, "GARANTIE 2/4", "sys24.dat", "Garantie de 2/4 : ", 1},
    {2, 5, "GARANTIE 2/5", "sys25.dat", "Garantie de 2/5 : ", 1},
    {3, 3, "GARANTIE 3/3", "sys33.dat", "Garantie de 3/3 : ", 2},
    {3, 4, "GARANTIE 3/4", "sys34.dat", "Garantie de 3/4 : ", 2},
    {3, 5, "GARANTIE 3/5", "sys35.dat", "Garantie de 3/5 : ", 2},
    {4, 4, "GARANTIE 4/4", "sys44.dat", "Garantie de 4/4 : ", 2},
    {4, 5, "GARANTIE 4/5", "sys45.dat", "Garantie de 4/5 : ", 2},
}};

inline constexpr int GrillesSystemeMax = 9999;  ///< four digits of a line
inline constexpr int BaseSystemeMax = 2;        ///< base numbers of any selection

/// The guarantee of "3/4"; null for any other text.
const TypeGarantie* ChercherGarantie(std::string_view texte);

/// What a line of a list promises. At the start it is the first line of the first list.
struct SystemeDisponible {
    std::int32_t NumerosParGrille = 5;
    std::int32_t Selection = 6;
    std::int32_t Base = 0;
    std::int32_t GarantieX = 2;
    std::int32_t GarantieY = 2;
    std::int32_t Grilles = 3;

    friend bool operator==(const SystemeDisponible&, const SystemeDisponible&) = default;
};

/// Twelve digits: selection, numbers of a grid, X and Y without the base numbers, and the grids.
std::string CleSysteme(const SystemeDisponible& systeme);

/// "Sélection: 06 Garantie: 2/2 Base: 0 Grilles: 0003".
std::string LigneCatalogue(const SystemeDisponible& systeme);

/// One system of a list, and its line as it is shown, in UTF-8.
struct EntreeCatalogue {
    std::string ligne;
    SystemeDisponible systeme;
};

/// The systems that the stock holds for the guarantee: selections of 6 to 49 numbers, ascending,
/// then base numbers; at most GrillesSystemeMax grids.
std::vector<EntreeCatalogue> CatalogueIntegre(const TypeGarantie& type);

/// A list in cp1252, read by the places of its digits: characters 12 and 13 the selection, 25 X,
/// 27 Y, 35 the base numbers, 46 to 49 the grids. `nom` names the file in the sentences.
Resultat<std::vector<EntreeCatalogue>> LireCatalogue(std::string_view octets, std::string_view nom);

/// The list of the file when it stands in the directory, else the one of the stock.
Resultat<std::vector<EntreeCatalogue>> ChargerCatalogue(const std::filesystem::path& repertoire,
                                                        const TypeGarantie& type);

}  // namespace norvane
