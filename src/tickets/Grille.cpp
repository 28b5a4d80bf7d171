// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/Grille.h"

#include <fmt/format.h>

#include <array>
#include <system_error>

#include "base/Fichiers.h"

namespace norvane {

namespace {

// Stakes are counted in tenths of a euro and divided once, so that a computed stake is the very
// double that its decimal text reads as: files compare stakes for equality.
constexpr int DixiemesGrilleSimple = 22;
constexpr int DixiemesOption2nd = 8;
static_assert(DixiemesGrilleSimple / 10.0 == PrixGrilleSimple);

constexpr int NumerosMin = 5;
struct TypeVendu {
    int grillesSimples;  ///< C(N,5)
    int chancesMax;
};
/// The tickets sold, from five numbers on.
constexpr std::array<TypeVendu, 5> TypesVendus = {{{1, 10}, {6, 10}, {21, 8}, {56, 3}, {126, 1}}};

constexpr int GrillesSimples(int n) {
    return TypesVendus[static_cast<std::size_t>(n - NumerosMin)].grillesSimples;
}

}  // namespace

double TableMises(int n, int c) {
    constexpr int NumerosMax = NumerosMin + static_cast<int>(TypesVendus.size()) - 1;
    if (n < 0 || n > NumerosMax || c < 0 || c > 10) return MiseInjouable;
    if (n < NumerosMin || c == 0) return MiseIncomplete;
    if (c > TypesVendus[static_cast<std::size_t>(n - NumerosMin)].chancesMax) return MiseInjouable;
    return DixiemesGrilleSimple * GrillesSimples(n) * c / 10.0;
}

Grille FaireGrille(std::span<const int> numeros, std::span<const int> chances, bool option2nd) {
    const int n = static_cast<int>(numeros.size());
    const int c = static_cast<int>(chances.size());
    double mise = TableMises(n, c);
    if (option2nd && mise != MiseIncomplete && mise != MiseInjouable) {
        mise = (DixiemesGrilleSimple * c + DixiemesOption2nd) * GrillesSimples(n) / 10.0;
    }
    Grille grille;
    grille.reserve(numeros.size() + chances.size() + 3);
    grille.push_back(mise);
    grille.push_back(n);
    grille.insert(grille.end(), numeros.begin(), numeros.end());
    grille.push_back(c);
    grille.insert(grille.end(), chances.begin(), chances.end());
    return grille;
}

std::string TexteGrilles(std::span<const Grille> grilles) {
    std::string texte = fmt::format("{}\n", grilles.size());
    // `g` is the default conversion of a stream: six significant digits, no trailing zeros.
    for (const Grille& grille : grilles) texte += fmt::format("{:g}\n", fmt::join(grille, " "));
    return texte;
}

Resultat<Rien> SauverGrillesSecours(std::span<const Grille> grilles,
                                    const std::filesystem::path& repertoire) {
    const std::filesystem::path dossier = repertoire / DossierGrilles;
    std::error_code erreur;
    std::filesystem::create_directories(dossier, erreur);
    if (erreur)
        return Erreur{fmt::format(
            "Le dossier « {} » ne peut pas être créé ({}) : vérifiez les droits sur ce dossier.",
            dossier.string(), erreur.message())};
    return EcrireFichier(dossier / NomGrillesSecours, TexteGrilles(grilles));
}

}  // namespace norvane
