// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Controle.h"

#include <fmt/format.h>

#include <cmath>
#include <tuple>

#include "base/Dates.h"

namespace norvane {

namespace {

struct Bornes {
    const char* nom;
    std::int32_t Tirage::*champ;
    int min;
    int max;
};

// The last day to claim is a date or, typed by hand, a count of days; it is never read back.
constexpr Bornes bornes[] = {
    {"sous_tirage", &Tirage::SousTirage, 1, 2},
    {"annee_numero", &Tirage::AnneeNumero, 10000, 99999999},
    {"chance", &Tirage::Chance, 0, ChanceMax},
    {"forclusion", &Tirage::DateForclusion, 0, 99991231},
    {"joker", &Tirage::Joker, JokerAbsent, 9999999},
};

/// Well above any prize ever paid, and far below where a double stops counting cents.
constexpr double montantMax = 1e12;

bool EstMontant(double x) {
    return x >= 0.0 && x <= montantMax;
}  // false for no number at all

}  // namespace

std::string DefautTirage(const Tirage& tirage, const RapportsTirage& rapports) {
    if (!DateValide(tirage.DateTirage) || tirage.DateTirage < DatePremierTirage) {
        return fmt::format("date vaut {}, il faut un jour depuis le 19/05/1976 (aaaammjj)",
                           tirage.DateTirage);
    }
    int precedent = 0;
    for (int i = 0; i < NbBoules; ++i) {
        const int numero = tirage.Numeros[i];
        if (numero < 1 || numero > NumeroMax) {
            return fmt::format("n{} vaut {}, il faut un nombre de 1 à {}", i + 1, numero,
                               NumeroMax);
        }
        if (numero <= precedent) {
            return fmt::format("n{} vaut {} après {}, les numéros doivent être croissants", i + 1,
                               numero, precedent);
        }
        precedent = numero;
    }
    for (const Bornes& b : bornes) {
        const int valeur = tirage.*b.champ;
        if (valeur < b.min || valeur > b.max) {
            return fmt::format("{} vaut {}, il faut un nombre de {} à {}", b.nom, valeur, b.min,
                               b.max);
        }
    }
    if (EstSecondTirage(tirage) && tirage.Chance != 0) {
        return fmt::format("chance vaut {}, un 2nd tirage n'en a pas (0)", tirage.Chance);
    }
    if (tirage.DateTirage >= DateNouveauLoto && !EstSecondTirage(tirage) && tirage.Chance == 0) {
        return "chance vaut 0, ce tirage doit en avoir une de 1 à 10";
    }
    for (std::size_t r = 0; r < rapports.size(); ++r) {
        const auto [gagnants, gain] = rapports[r];
        if (!EstMontant(gagnants) || gagnants != std::floor(gagnants)) {
            return fmt::format("g{} vaut {}, il faut un nombre entier de gagnants", r + 1,
                               gagnants);
        }
        if (!EstMontant(gain)) {
            return fmt::format("r{} vaut {}, il faut un montant en euros", r + 1, gain);
        }
    }
    return {};
}

bool EstApres(const Tirage& a, const Tirage& b) {
    return std::tie(a.DateTirage, a.SousTirage) < std::tie(b.DateTirage, b.SousTirage);
}

std::string DefautBase(const Base& base) {
    if (base.NbTirages < 0 || base.NbTirages > NbTiragesMax ||
        base.Tirages.size() < static_cast<std::size_t>(base.NbTirages) ||
        base.Rapports.size() < static_cast<std::size_t>(base.NbTirages)) {
        return fmt::format("elle compte {} tirages, il en faut de 0 à {}", base.NbTirages,
                           NbTiragesMax);
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(base.NbTirages); ++i) {
        std::string defaut = DefautTirage(base.Tirages[i], base.Rapports[i]);
        if (defaut.empty() && i > 0 && !EstApres(base.Tirages[i - 1], base.Tirages[i])) {
            defaut = "il ne vient pas après le précédent";
        }
        if (!defaut.empty()) return fmt::format("tirage n° {} : {}", i + 1, defaut);
    }
    if (base.NbAnciensTirages < 0 || base.NbAnciensTirages > base.NbTirages) {
        return fmt::format("elle compte {} anciens tirages sur {}", base.NbAnciensTirages,
                           base.NbTirages);
    }
    return {};
}

}  // namespace norvane
