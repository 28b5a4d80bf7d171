// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "NoyauRangs.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace norvane {

namespace {

// The loops over the words of a map, once for any machine and once for those with wide registers;
// the sanitizers do not bear the choice at start.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define DEUX_JEUX [[gnu::target_clones("avx2", "default")]]
#else
#define DEUX_JEUX
#endif
#define SUR_PLACE [[gnu::always_inline]] inline

constexpr int Bits = 64;
constexpr std::size_t NbTampons = 3;

/// Draws with k good numbers from those with k and with k - 1 before number b came in; either may
/// be missing.
DEUX_JEUX void Croiser(const MotDeBits* x, const MotDeBits* moins, const MotDeBits* b, MotDeBits* y,
                       std::size_t n) {
    if (moins == nullptr)
        for (std::size_t i = 0; i < n; ++i) y[i] = x[i] & ~b[i];
    else if (x == nullptr)
        for (std::size_t i = 0; i < n; ++i) y[i] = moins[i] & b[i];
    else
        for (std::size_t i = 0; i < n; ++i) y[i] = x[i] ^ ((x[i] ^ moins[i]) & b[i]);
}

SUR_PLACE int Compter(const MotDeBits* x, std::size_t n) {
    int total = 0;
    for (std::size_t i = 0; i < n; ++i) total += std::popcount(x[i]);
    return total;
}

/// Place of the last bit, -1 when there is none.
SUR_PLACE int DernierBit(const MotDeBits* x, std::size_t n) {
    while (n > 0)
        if (x[--n] != 0) return static_cast<int>(n) * Bits + Bits - 1 - std::countl_zero(x[n]);
    return -1;
}

/// y = the places of x from which the place `pas` further on is in x too. Whether there are any.
SUR_PLACE bool Eroder(const MotDeBits* x, MotDeBits* y, std::size_t n, std::size_t pas) {
    const std::size_t mots = pas / Bits;
    const auto bits = static_cast<int>(pas % Bits);
    if (mots >= n) return false;
    const MotDeBits* loin = x + mots;
    const std::size_t m = n - mots;
    MotDeBits reste = 0;
    for (std::size_t i = 0; i < m; ++i) {
        y[i] = x[i] & (loin[i] >> bits | loin[i + 1] << 1 << (Bits - 1 - bits));
        reste |= y[i];
    }
    std::fill(y + m, y + n, 0);
    return reste != 0;
}

/// Length of the longest run of bits of a map that is not empty. A map of the places where a run of
/// L begins gives that of the runs of up to 2 L in one step: the length is doubled while it can be,
/// then made out bit by bit.
SUR_PLACE int PlusLongueSuite(const MotDeBits* x, MotDeBits* essai, MotDeBits* autre,
                              std::size_t n) {
    std::size_t longueur = 1;
    bool doubler = true;
    for (std::size_t pas = 1; pas > 0;) {
        if (Eroder(x, essai, n, pas)) {
            x = essai;
            std::swap(essai, autre);
            longueur += pas;
            pas = doubler ? longueur : pas / 2;
        } else {
            doubler = false;
            pas /= 2;
        }
    }
    return static_cast<int>(longueur);
}

SUR_PLACE void Ecrire(Mot* bloc, int nbFois, int ecart, int ecartMax, int suite, int suiteMax) {
    bloc[0] = static_cast<Mot>(nbFois);
    bloc[1] = static_cast<Mot>(ecart);
    bloc[2] = static_cast<Mot>(ecartMax);
    bloc[3] = static_cast<Mot>(suite);
    bloc[4] = static_cast<Mot>(suiteMax);
}

/// Draws few enough to be looked at one by one.
SUR_PLACE void EcrirePeu(const MotDeBits* x, std::size_t n, int tirages, int nbFois, Mot* bloc) {
    int dernier = -1;
    int ecartMax = 0;
    int suite = 0;
    int suiteMax = 0;
    for (std::size_t i = 0; i < n; ++i)
        for (MotDeBits reste = x[i]; reste != 0; reste &= reste - 1) {
            const int tirage = static_cast<int>(i) * Bits + std::countr_zero(reste);
            const int ecart = tirage - dernier - 1;
            suite = ecart == 0 ? suite + 1 : 1;
            ecartMax = std::max(ecartMax, ecart);
            suiteMax = std::max(suiteMax, suite);
            dernier = tirage;
        }
    const int ecart = tirages - 1 - dernier;
    Ecrire(bloc, nbFois, ecart, std::max(ecartMax, ecart), ecart == 0 ? suite : 0, suiteMax);
}

/// The five words of the draws x. `tampons`: three maps.
DEUX_JEUX void EcrireBloc(const CartesTirages& cartes, const MotDeBits* x, MotDeBits* tampons,
                          Mot* bloc) {
    const std::size_t n = cartes.mots();
    const int tirages = cartes.tirages();
    const int nbFois = Compter(x, n);
    if (static_cast<std::size_t>(nbFois) <= n) return EcrirePeu(x, n, tirages, nbFois, bloc);

    MotDeBits* const absents = tampons;
    MotDeBits* const essai = absents + cartes.pas();
    MotDeBits* const autre = essai + cartes.pas();
    for (std::size_t i = 0; i < n; ++i) absents[i] = cartes.toutes()[i] & ~x[i];
    const int ecart = tirages - 1 - DernierBit(x, n);
    const int suite = ecart == 0 ? tirages - 1 - DernierBit(absents, n) : 0;
    const int ecartMax = nbFois == tirages ? 0 : PlusLongueSuite(absents, essai, autre, n);
    Ecrire(bloc, nbFois, ecart, ecartMax, suite, PlusLongueSuite(x, essai, autre, n));
}

}  // namespace

CartesTirages::CartesTirages(std::span<const Tirage> tirages)
    : tirages_(static_cast<int>(tirages.size())),
      mots_((tirages.size() + Bits - 1) / Bits),
      cartes_((NumeroMax + 1) * pas()) {
    for (std::size_t d = 0; d < tirages.size(); ++d) {
        const MotDeBits bit = MotDeBits{1} << d % Bits;
        cartes_[d / Bits] |= bit;
        for (const std::int32_t n : tirages[d].Numeros)
            cartes_[static_cast<std::size_t>(n) * pas() + d / Bits] |= bit;
    }
}

CalculRangs::CalculRangs(const CartesTirages& cartes, Disposition disposition, unsigned rangs)
    : cartes_(cartes),
      disposition_(disposition),
      rangs_(rangs),
      pas_(cartes.pas()),
      tampons_(NbTampons * pas_) {
    const unsigned atteints = rangs & ((2U << NbBoules) - 1);
    if (atteints != 0) {
        rangMin_ = std::countr_zero(atteints);
        rangMax_ = std::bit_width(atteints) - 1;
    }
    for (int bons = 0; bons <= disposition.taille; ++bons)
        blocs_[static_cast<std::size_t>(bons)] = disposition.bloc(bons);
    pile_.resize(static_cast<std::size_t>((disposition.taille + 1) * (NbBoules + 1)) * pas_);
    std::copy_n(cartes.toutes(), cartes.mots(), carte(0, 0));
}

void CalculRangs::placer(int place, Mot numero) {
    const MotDeBits* const b = cartes_.numero(numero);
    const std::size_t n = cartes_.mots();
    const int reste = disposition_.taille - (place + 1);  // good numbers that may still come
    for (int bons = std::max(0, rangMin_ - reste); bons <= std::min(place + 1, rangMax_); ++bons) {
        MotDeBits* const y = carte(place + 1, bons);
        Croiser(bons <= place ? carte(place, bons) : nullptr,
                bons > 0 ? carte(place, bons - 1) : nullptr, b, y, n);
    }
}

void CalculRangs::ecrire(std::span<Mot> enregistrement) {
    const int taille = disposition_.taille;
    const Mot* const numeros = enregistrement.data() + disposition_.numeros();
    bool commun = true;
    for (int place = 0; place < taille; ++place) {
        Mot& numero = numeros_[static_cast<std::size_t>(place)];
        commun = commun && numero == numeros[place];
        if (commun) continue;
        numero = numeros[place];
        placer(place, numero);
    }
    for (unsigned reste = rangs_; reste != 0; reste &= reste - 1) {
        const int bons = std::countr_zero(reste);
        Mot* const bloc = enregistrement.data() + blocs_[static_cast<std::size_t>(bons)];
        if (bons > NbBoules)
            Ecrire(bloc, 0, cartes_.tirages(), cartes_.tirages(), 0, 0);
        else
            EcrireBloc(cartes_, carte(taille, bons), tampons_.data(), bloc);
    }
}

}  // namespace norvane
