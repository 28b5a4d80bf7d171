// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>
#include <fmt/ostream.h>

#include <cmath>
#include <ostream>

#include "base/Textes.h"
#include "tickets/Verification.h"

namespace norvane {

namespace {

/// Joker+ amounts have no decimals, 1.5 is told as 2; nothing at all for zero.
std::string MontantEntier(double euros) {
    return FormaterCompte(std::llround(euros));
}

constexpr int NbChiffres = 7;

/// What one end of a number wins; `mot` is PREMIER or DERNIER.
void EcrireCote(std::size_t rang, const char* mot, int longueur, bool tolerance, double gain,
                const Monnaie& monnaie, std::ostream& flux) {
    std::string quoi = "BRAVO! JOKER+!!!!";
    if (longueur == 1) {
        quoi = fmt::format("LE {}", mot);
    } else if (longueur < NbChiffres) {
        quoi = fmt::format("LES {} {}S", longueur, mot);
    }
    fmt::print(flux, "JOKER+ N°{} GAGNANT{} {} ({}{})\n", rang,
               tolerance ? " AVEC OPTION +OU-1 !" : "!", quoi, MontantEntier(gain),
               LibelleMonnaie(monnaie.symbole, longueur == 1 && gain == 1));
}

void EcrireLigne(std::size_t rang, const ResultatJoker& r, const Monnaie& monnaie,
                 std::ostream& flux) {
    if (r.gauche > 0)
        EcrireCote(rang, "PREMIER", r.gauche, r.toleranceGauche >= 0, r.gainGauche, monnaie, flux);
    if (r.gauche == NbChiffres || r.droite == 0) return;
    EcrireCote(rang, "DERNIER", r.droite, r.toleranceDroite >= 0, r.gainDroite, monnaie, flux);
    if (r.gauche == 0) return;
    // The blank stands behind the word alone, not behind a symbol.
    const bool mot = monnaie.symbole.starts_with("€");
    fmt::print(flux, "JOKER+ N°{} Vous gagnez {}{}{}au total pour ce numéro\n", rang,
               MontantEntier(r.gain()), LibelleMonnaie(monnaie.symbole), mot ? " " : "");
}

}  // namespace

void EcrireListeJoker(std::span<const LigneJoker> lignes, const Monnaie& monnaie,
                      std::ostream& flux) {
    for (std::size_t k = 0; k < lignes.size(); ++k) {
        const int prix = PrixJoker(lignes[k].code);
        fmt::print(flux, "JOKER+ N°{}:  {}  (Mise: {}{}{})\n", k + 1,
                   fmt::join(lignes[k].chiffres, " "), prix,
                   LibelleMonnaie(monnaie.symbole, prix == 1),
                   lignes[k].code < 3 ? "" : " avec +OU-1");
    }
}

double VerifierJoker(std::span<const LigneJoker> lignes, const std::array<int, 7>& tire,
                     const Monnaie& monnaie, std::ostream& flux) {
    flux << "JOKER+ DU JOUR : ";
    for (const int chiffre : tire)
        if (chiffre >= 0) flux << chiffre << ' ';
    flux << '\n';

    double gain = 0;
    int mise = 0;
    for (std::size_t k = 0; k < lignes.size(); ++k) {
        const ResultatJoker r = GainJokerLigne(lignes[k], tire);
        EcrireLigne(k + 1, r, monnaie, flux);
        gain += r.gain();
        mise += PrixJoker(lignes[k].code);
    }
    if (gain == 0) flux << "Perdu...\n";

    const std::string mot = LibelleMonnaie(monnaie.symbole);
    const double ecart = std::abs(gain - mise);
    fmt::print(flux, "Gain={}{} , Mise totale={}{} donc {}={}{} ({} F)\n\n",
               gain > 0 ? MontantEntier(gain) : " 0", mot, MontantEntier(mise), mot,
               gain < mise ? "Perte" : "Gain", MontantEntier(ecart), mot,
               FormaterMontant(Convertir(ecart, monnaie.taux).enFrancs()));
    return gain;
}

}  // namespace norvane
