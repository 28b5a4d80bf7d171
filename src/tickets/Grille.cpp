// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/Grille.h"

#include <fmt/format.h>

#include "tickets/Binomial.h"

namespace norvane {

namespace {

// Stakes are counted in tenths of a euro and divided once, so that a computed stake is the very
// double that its decimal text reads as: files compare stakes for equality.
constexpr int DixiemesGrilleSimple = 22;
constexpr int DixiemesOption2nd = 8;
static_assert(DixiemesGrilleSimple / 10.0 == PrixGrilleSimple);

constexpr int NumerosMin = 5;
constexpr int NumerosMax = 9;
constexpr int ChancesMax = 10;

constexpr bool HorsBornes(int n, int c) {
    return n < 0 || n > NumerosMax || c < 0 || c > ChancesMax;
}

constexpr int DixiemesMise(int n, int c) {
    if (HorsBornes(n, c)) return static_cast<int>(MiseInjouable * 10);
    if (n < NumerosMin || c == 0) return static_cast<int>(MiseIncomplete * 10);
    if (std::ranges::find(TypesVendus, TypeGrille{n, c}) == TypesVendus.end())
        return static_cast<int>(MiseInjouable * 10);
    return DixiemesGrilleSimple * Combinaisons(n, 5) * c;
}

}  // namespace

double TableMises(int n, int c) {
    return DixiemesMise(n, c) / 10.0;
}

double MiseGrille(int n, int c, bool option2nd) {
    if (HorsBornes(n, c)) return MiseInjouable;
    const int option = option2nd ? DixiemesOption2nd * Combinaisons(n, 5) : 0;
    return (DixiemesMise(n, c) + option) / 10.0;
}

bool Grille::complete() const {
    const double prix = TableMises(n(), c());
    return prix != MiseIncomplete && prix != MiseInjouable;
}

Grille FaireGrille(const NumerosCoches& numeros, const ChancesCochees& chances, bool option2nd) {
    return {MiseGrille(numeros.taille(), chances.taille(), option2nd), numeros, chances};
}

bool ParticipeAu2ndTirage(const Grille& grille) {
    return grille.mise != TableMises(grille.n(), grille.c());
}

std::string LibelleType(TypeGrille type) {
    return fmt::format("{:02} + {:02}C", type.n, type.c);
}

std::optional<TypeGrille> LireTypeGrille(std::string_view libelle) {
    const auto type = std::ranges::find(TypesVendus, libelle, LibelleType);
    if (type == TypesVendus.end()) return std::nullopt;
    return *type;
}

}  // namespace norvane
