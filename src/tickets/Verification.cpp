// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/Verification.h"

#include <fmt/format.h>
#include <fmt/ostream.h>

#include <algorithm>
#include <iterator>
#include <optional>
#include <ostream>
#include <sstream>
#include <string_view>

#include "base/Dates.h"
#include "Redaction.h"

namespace norvane {

namespace {

/// Numbers below 10 take a second blank behind them, so that columns stay aligned.
std::string Colonne(int valeur) {
    return fmt::format("{}{}", valeur, valeur < 10 ? "  " : " ");
}

bool EstSorti(const Tirage& tirage, int numero) {
    return std::ranges::any_of(tirage.Numeros, [numero](int boule) { return boule == numero; });
}

/// "12 fois; soit la somme de …": each rank that won, then their sum, which it gives back.
template <typename Comptes, typename Libelles>
double EcrireRangs(const Comptes& comptes, const Libelles& libelles, const RapportsTirage& rapports,
                   const Monnaie& monnaie, std::ostream& flux) {
    flux << "BRAVO!! Vous gagnez pour les rangs suivants:\n";
    double gain = 0;
    for (std::size_t i = 0; i < comptes.size(); ++i) {
        if (comptes[i] == 0) continue;
        const double somme = comptes[i] * rapports[i].Gain;
        gain += somme;
        fmt::print(flux, "{}{} fois; soit la somme de {}\n", libelles[i], comptes[i],
                   LibelleMontant(somme, monnaie.symbole, monnaie.taux, true));
    }
    fmt::print(flux, "Soit la somme cumulative de {}\n\n",
               LibelleMontant(gain, monnaie.symbole, monnaie.taux, true));
    return gain;
}

template <typename Comptes>
bool RienGagne(const Comptes& comptes) {
    return std::ranges::all_of(comptes, [](int compte) { return compte == 0; });
}

/// Four numbers without a chance, which only a list made by hand can hold; the report tells them in
/// the words of another game.
double EcrireQuatreNumeros(const Bons& bons, const RapportsTirage& rapports, const Monnaie& monnaie,
                           std::ostream& flux) {
    double gain = 0;
    const int rang = RangSimple(bons.numeros, bons.chances);
    if (rang < NbRangsLoto) {
        gain = rapports[static_cast<std::size_t>(rang)].Gain;
        const std::string chances =
            bons.chances == 0 ? std::string("N); ") : fmt::format("N + {}C); ", bons.chances);
        fmt::print(flux, "\nEuro Millions: Vous gagnez pour le rang {} ({}{}{}\n", rang + 1,
                   bons.numeros, chances,
                   LibelleMontant(gain, monnaie.symbole, monnaie.taux, true));
    }
    if (gain > 0) {
        fmt::print(flux, "BRAVO!! Vous gagnez pour cette grille un total de {}\n\n",
                   LibelleMontant(gain, monnaie.symbole, monnaie.taux, true));
    } else {
        flux << "perdu...\n\n";
    }
    return gain;
}

void EcrireNumerosSortis(std::size_t rang, const Grille& grille, const Tirage& tirage, int bons,
                         std::ostream& flux) {
    fmt::print(flux, "Numéros sortis pour la combinaison {}:  ", rang);
    for (const int numero : grille.numeros)
        if (EstSorti(tirage, numero)) flux << Colonne(numero);
    if (bons > 0) {
        fmt::print(flux, "soit {} sur {}; ", bons, grille.n());
    } else {
        flux << "Aucun; ";
    }
}

void EcrireChancesSorties(std::size_t rang, const Grille& grille, const Tirage& tirage, int bons,
                          std::ostream& flux) {
    fmt::print(flux, "Chances sorties pour la combinaison {}:  ", rang);
    for (const int chance : grille.chances)
        if (chance == tirage.Chance) fmt::print(flux, "{}  ", chance);
    if (bons > 0) {
        fmt::print(flux, "soit {} sur {}; ", bons, grille.c());
    } else {
        flux << "Aucunes; ";
    }
}

/// One verification under way: the sums grow draw by draw.
class Redacteur {
 public:
    Redacteur(const Base& base, std::span<const Grille> grilles, const std::string& date,
              const Monnaie& monnaie, std::ostream& flux)
        : base_(base), grilles_(grilles), date_(date), monnaie_(monnaie), flux_(flux) {}

    /// A 1er Tirage, or any draw of the time when a date had one.
    void premier(std::string_view titre, int numero) {
        entete(titre, numero);
        for (std::size_t k = 0; k < grilles_.size(); ++k)
            totaux_.gain += grillePremier(k + 1, grilles_[k], tirage(numero), rapports(numero));
    }
    void second(int numero) {
        entete("2nd Tirage", numero);
        for (std::size_t k = 0; k < grilles_.size(); ++k)
            totaux_.gain += grilleSecond(k + 1, grilles_[k], tirage(numero), rapports(numero));
    }

    TotauxVerification recapituler() const {
        const auto montant = [this](double m, bool francs) {
            return LibelleMontant(m, monnaie_.symbole, monnaie_.taux, francs);
        };
        const double gain = Convertir(totaux_.gain, monnaie_.taux).enEuros();
        fmt::print(flux_,
                   "Récapitulatif pour toutes les grilles:\nGain= {} ; Mise totale= {} donc ",
                   montant(gain, false), montant(totaux_.mise, false));
        // Judged on the amount that prints: a gain equal to the stake is no loss of 0,00.
        const bool perte = Convertir(gain - totaux_.mise, monnaie_.taux).euros < 0;
        fmt::print(flux_, "{}= {}\n\n", perte ? "Perte effective" : "Gain effectif",
                   montant(perte ? totaux_.mise - gain : gain - totaux_.mise, true));
        return totaux_;
    }

 private:
    const Tirage& tirage(int numero) const {
        return base_.Tirages[static_cast<std::size_t>(numero - 1)];
    }
    const RapportsTirage& rapports(int numero) const {
        return base_.Rapports[static_cast<std::size_t>(numero - 1)];
    }

    void entete(std::string_view titre, int numero) const {
        fmt::print(flux_, "\n{} n°{} du {} :\n\n", titre, numero, date_);
    }

    double grillePremier(std::size_t rang, const Grille& grille, const Tirage& tirage,
                         const RapportsTirage& rapports) {
        const Bons bons = CompterBons(grille, tirage);
        EcrireNumerosSortis(rang, grille, tirage, bons.numeros, flux_);
        flux_ << '\n';
        EcrireChancesSorties(rang, grille, tirage, bons.chances, flux_);
        flux_ << '\n';
        totaux_.mise += grille.mise;
        if (grille.n() == 4 && grille.c() == 0)
            return EcrireQuatreNumeros(bons, rapports, monnaie_, flux_);
        return resultat(RangsGagnes(grille, tirage), LibellesRangLoto, rapports);
    }

    double grilleSecond(std::size_t rang, const Grille& grille, const Tirage& tirage,
                        const RapportsTirage& rapports) {
        if (!ParticipeAu2ndTirage(grille)) {
            fmt::print(flux_, "Combinaison {} non participante...\n\n", rang);
            return 0;
        }
        // The stake counts again, on top of the 1er Tirage: the sums rest on it.
        totaux_.mise += grille.mise;
        EcrireNumerosSortis(rang, grille, tirage, CompterBons(grille, tirage).numeros, flux_);
        return resultat(Rangs2ndGagnes(grille, tirage), LibellesRang2nd, rapports);
    }

    template <typename Comptes, typename Libelles>
    double resultat(const Comptes& comptes, const Libelles& libelles,
                    const RapportsTirage& rapports) const {
        if (!RienGagne(comptes)) return EcrireRangs(comptes, libelles, rapports, monnaie_, flux_);
        flux_ << "perdu...\n\n";
        return 0;
    }

    const Base& base_;
    std::span<const Grille> grilles_;
    const std::string& date_;
    const Monnaie& monnaie_;
    std::ostream& flux_;
    TotauxVerification totaux_;
};

/// The numbers of the two draws of a date, from either of them.
struct PaireTirages {
    std::optional<int> premier, second;
};

PaireTirages TiragesDeLaDate(const Base& base, int numero) {
    const auto tirages = base.enUsage();
    const Tirage& choisi = tirages[static_cast<std::size_t>(numero - 1)];
    const bool estSecond = EstSecondTirage(choisi);
    const int voisin = estSecond ? numero - 1 : numero + 1;
    std::optional<int> autre;
    if (voisin >= 1 && voisin <= base.NbTirages) {
        const Tirage& t = tirages[static_cast<std::size_t>(voisin - 1)];
        if (t.DateTirage == choisi.DateTirage && EstSecondTirage(t) != estSecond) autre = voisin;
    }
    return estSecond ? PaireTirages{autre, numero} : PaireTirages{numero, autre};
}

}  // namespace

std::string LigneGrille(std::size_t rang, const Grille& grille, const Monnaie& monnaie) {
    std::string ligne = fmt::format("Combinaison {} ({}N + {}C) N: ", rang, grille.n(), grille.c());
    for (const int numero : grille.numeros) ligne += Colonne(numero);
    ligne += " C: ";
    for (const int chance : grille.chances)
        fmt::format_to(std::back_inserter(ligne), "{}  ", chance);
    // A stake is told in the singular by its whole part: 1.2 is "Euro" too.
    const bool singulier = grille.mise >= 1 && grille.mise < 2;
    fmt::format_to(std::back_inserter(ligne), "(Mise: {:g}{})\n", grille.mise,
                   LibelleMonnaie(monnaie.symbole, singulier));
    return ligne;
}

void EcrireListeGrilles(std::span<const Grille> grilles, const Monnaie& monnaie,
                        std::ostream& flux) {
    for (std::size_t k = 0; k < grilles.size(); ++k)
        flux << LigneGrille(k + 1, grilles[k], monnaie);
}

TotauxVerification VerifierTirage(const Base& base, std::span<const Grille> grilles, int numero,
                                  const std::string& date, const Monnaie& monnaie,
                                  std::ostream& flux) {
    Redacteur redacteur(base, grilles, date, monnaie, flux);
    redacteur.premier("Tirage", numero);
    return redacteur.recapituler();
}

TotauxVerification VerifierDeuxTirages(const Base& base, std::span<const Grille> grilles,
                                       int numero, const std::string& date, const Monnaie& monnaie,
                                       std::ostream& flux) {
    const auto [premier, second] = TiragesDeLaDate(base, numero);
    Redacteur redacteur(base, grilles, date, monnaie, flux);
    if (premier) redacteur.premier("1er Tirage", *premier);
    if (second) redacteur.second(*second);
    return redacteur.recapituler();
}

std::string RedigerVerification(const Base& base, int numero, std::span<const Grille> grilles,
                                std::span<const LigneJoker> jokers, const Monnaie& monnaie) {
    const Tirage& tirage = base.Tirages[static_cast<std::size_t>(numero - 1)];
    const std::string date = DateLongue(tirage.DateTirage);
    std::ostringstream flux;
    EcrireListeGrilles(grilles, monnaie, flux);
    if (jokers.empty()) flux << "\nJOKER+ non participant\n";
    EcrireListeJoker(jokers, monnaie, flux);
    const auto verifier =
        tirage.DateTirage < DateSecondTirage ? VerifierTirage : VerifierDeuxTirages;
    verifier(base, grilles, numero, date, monnaie, flux);
    if (!jokers.empty()) VerifierJoker(jokers, ChiffresJoker(tirage.Joker), monnaie, flux);
    return std::move(flux).str();
}

ResultatGrille VerifierGrille(const Grille& grille, const Tirage& tirage,
                              const RapportsTirage& rapports) {
    ResultatGrille resultat{.bons = CompterBons(grille, tirage), .second = EstSecondTirage(tirage)};
    if (resultat.second) {
        std::ranges::copy(Rangs2ndGagnes(grille, tirage), resultat.comptes.begin());
    } else {
        resultat.comptes = RangsGagnes(grille, tirage);
    }
    for (std::size_t i = 0; i < rapports.size(); ++i)
        resultat.gain += resultat.comptes[i] * rapports[i].Gain;
    return resultat;
}

}  // namespace norvane
