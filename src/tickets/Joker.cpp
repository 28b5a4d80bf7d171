// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>
#include <span>

#include "tickets/Rangs.h"

namespace norvane {

const std::array<int, 8> GainJoker = {0, 1, 5, 50, 500, 2500, 25000, 250000};
const std::array<double, 8> GainJokerOption = {0.0, 1.0, 1.5, 6.0, 60.0, 600.0, 3000.0, 30000.0};

namespace {

constexpr int NbChiffres = 7;
constexpr std::int32_t PremierCodeOption = 3;  ///< codes from here on carry the option +OU-1

/// Digits stand in a ring, 9 beside 0. A digit never published is -1 and near to none.
bool Voisins(int joue, int tire) {
    return tire >= 0 && ((joue + 1) % 10 == tire || (tire + 1) % 10 == joue);
}

/// The run of digits from one end, `tolerance` the step at which one was let pass, or -1.
struct Suite {
    int longueur = 0;
    int tolerance = -1;
};

/// Position of a step from the left, or from the right: each is its own mirror.
int Place(int pas, bool depuisDroite) {
    return depuisDroite ? NbChiffres - 1 - pas : pas;
}

Suite Mesurer(const LigneJoker& ligne, const std::array<int, 7>& tire, bool depuisDroite) {
    Suite suite;
    for (; suite.longueur < NbChiffres; ++suite.longueur) {
        const auto place = static_cast<std::size_t>(Place(suite.longueur, depuisDroite));
        if (ligne.chiffres[place] == tire[place]) continue;
        if (ligne.code < PremierCodeOption || suite.tolerance >= 0 ||
            !Voisins(ligne.chiffres[place], tire[place]))
            break;
        suite.tolerance = suite.longueur;
    }
    return suite;
}

double Gain(const Suite& suite, int mises) {
    const auto longueur = static_cast<std::size_t>(suite.longueur);
    return mises * (suite.tolerance >= 0 ? GainJokerOption[longueur] : GainJoker[longueur]);
}

}  // namespace

std::optional<std::array<std::int32_t, 7>> LireChiffresJoker(std::string_view texte) {
    const bool chiffres = std::ranges::all_of(texte, [](char c) { return c >= '0' && c <= '9'; });
    if (texte.size() != NbChiffres || !chiffres) return std::nullopt;
    std::array<std::int32_t, 7> lus;
    std::ranges::transform(texte, lus.begin(), [](char c) { return c - '0'; });
    return lus;
}

int PrixJoker(int code) {
    return code < PremierCodeOption ? code : 2 * code - 4;
}

ResultatJoker GainJokerLigne(const LigneJoker& ligne, const std::array<int, 7>& tire) {
    Suite gauche = Mesurer(ligne, tire, false);
    Suite droite = Mesurer(ligne, tire, true);
    if (gauche.tolerance >= 0 && droite.tolerance >= 0) {
        // One tolerance a line: the shorter side falls back to its exact digits.
        Suite& cedee = gauche.longueur < droite.longueur ? gauche : droite;
        cedee = {cedee.tolerance, -1};
    }
    const int mises = ligne.code < PremierCodeOption ? ligne.code : ligne.code - 2;
    ResultatJoker resultat;
    resultat.gauche = gauche.longueur;
    resultat.droite = droite.longueur;
    resultat.toleranceGauche = gauche.tolerance;
    if (droite.tolerance >= 0) resultat.toleranceDroite = Place(droite.tolerance, true);
    resultat.gainGauche = Gain(gauche, mises);
    // The whole number is paid once.
    if (gauche.longueur < NbChiffres) resultat.gainDroite = Gain(droite, mises);
    return resultat;
}

}  // namespace norvane
