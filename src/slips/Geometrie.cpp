// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "slips/Geometrie.h"

#include <fmt/format.h>

#include "base/Tirage.h"

namespace norvane {

namespace {

constexpr int Colonnes = 5;
constexpr int NbSemaines = 4;
constexpr int SemainesMin = 2;
constexpr int NbJoker = 3;
constexpr std::array<const char*, 3> Jours = {"lundi", "mercredi", "samedi"};

constexpr std::size_t Indice(int n) {
    return static_cast<std::size_t>(n);
}

constexpr Place Somme(Place a, Place b) {
    return {a.x + b.x, a.y + b.y};
}

}  // namespace

const GeometrieBulletin GeometrieIntegree{
    .papier = {82.5, 190.5},
    .grilles = {{{3.5, 10}, {29, 10}, {54.5, 10}, {3.5, 68}, {29, 68}, {54.5, 68}}},
    .grille = {2.6, {3.3, 5.5}, {3.8, 3.7}, {{{5.2, 45.9}, {1.4, 49.6}}}, 3.8},
    .second = {18.5, 1.6},
    .semaines = {{10, 144}, {10, 0}},
    .joker1 = {{10, 156}, {10, 0}},
    .joker2 = {{48, 156}, {10, 0}},
    .jours = {{10, 132}, {15, 0}}};

Place GeometrieGrille::numero(int n) const {
    const int colonne = (n - 1) % Colonnes;
    const int ligne = (n - 1) / Colonnes;
    return {numeros.x + colonne * pasNumeros.x, numeros.y + ligne * pasNumeros.y};
}

Place GeometrieGrille::chance(int c) const {
    const Place origine = chances[Indice((c - 1) / Colonnes)];
    return {origine.x + (c - 1) % Colonnes * pasChances, origine.y};
}

const char* NomBloc(BlocBulletin bloc) {
    static constexpr std::array<const char*, 7> noms = {"numero", "chance", "2nd", "semaines",
                                                        "joker1", "joker2", "jour"};
    return noms[static_cast<std::size_t>(bloc)];
}

std::string LibelleCase(BlocBulletin bloc, int valeur) {
    switch (bloc) {
        case BlocBulletin::Numero:
            return fmt::format("numéro {}", valeur);
        case BlocBulletin::Chance:
            return fmt::format("chance {}", valeur);
        case BlocBulletin::Second:
            return "2ND TIRAGE";
        case BlocBulletin::Semaines:
            return fmt::format("{} semaines", valeur);
        case BlocBulletin::Joker1:
        case BlocBulletin::Joker2:
            return fmt::format("JOKER+ {}, {}", bloc == BlocBulletin::Joker1 ? 1 : 2,
                               valeur == NbJoker ? "+ ou -1" : fmt::format("{}€", valeur));
        case BlocBulletin::Jour:
            return Jours[Indice(valeur - 1)];
    }
    return {};
}

Place GeometrieBulletin::place(BlocBulletin bloc, int valeur, int numeroGrille) const {
    const auto dansGrille = [&](Place p) { return Somme(grilles[Indice(numeroGrille - 1)], p); };
    switch (bloc) {
        case BlocBulletin::Numero:
            return dansGrille(grille.numero(valeur));
        case BlocBulletin::Chance:
            return dansGrille(grille.chance(valeur));
        case BlocBulletin::Second:
            return dansGrille(second);
        case BlocBulletin::Semaines:
            return semaines[valeur - SemainesMin];
        case BlocBulletin::Joker1:
            return joker1[valeur - 1];
        case BlocBulletin::Joker2:
            return joker2[valeur - 1];
        case BlocBulletin::Jour:
            return jours[valeur - 1];
    }
    return {};
}

std::vector<CaseBulletin> GeometrieBulletin::cases() const {
    std::vector<CaseBulletin> toutes;
    const auto ajouter = [&](BlocBulletin bloc, int de, int a, int numeroGrille = 0) {
        for (int v = de; v <= a; ++v)
            toutes.push_back({numeroGrille, bloc, v, place(bloc, v, numeroGrille), grille.cote});
    };
    for (int g = 1; g <= GrillesParBulletin; ++g) {
        ajouter(BlocBulletin::Numero, 1, NumeroMax, g);
        ajouter(BlocBulletin::Chance, 1, ChanceMax, g);
        ajouter(BlocBulletin::Second, 1, 1, g);
    }
    ajouter(BlocBulletin::Semaines, SemainesMin, SemainesMin + NbSemaines - 1);
    ajouter(BlocBulletin::Joker1, 1, NbJoker);
    ajouter(BlocBulletin::Joker2, 1, NbJoker);
    ajouter(BlocBulletin::Jour, 1, static_cast<int>(Jours.size()));
    return toutes;
}

}  // namespace norvane
