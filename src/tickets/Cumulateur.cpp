// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Cumulateur.h"

#include <algorithm>
#include <bit>

#include "tickets/Rangs.h"

namespace norvane {

namespace {

constexpr std::size_t TiragesParMot = 64;
constexpr int NbTypes = (9 + 1) * (ChanceMax + 1);  ///< nine numbers at most

std::size_t IndiceType(const Grille& grille) {
    return static_cast<std::size_t>(grille.n()) * (ChanceMax + 1) +
           static_cast<std::size_t>(grille.c());
}

TablesType PreparerType(int n, int c) {
    TablesType tables;
    for (int g = 0; g <= std::min(n, NbBoules); ++g) {
        for (int gc = 0; gc <= 1; ++gc) {
            const int cle = CleRang(n, g, c, gc);
            tables.avant.noter(g, gc,
                               ChercherRangs(cle, DateNouveauxRangs - 1).value_or(ComptesRangs{}));
            tables.depuis.noter(g, gc,
                                ChercherRangs(cle, DateNouveauxRangs).value_or(ComptesRangs{}));
        }
        tables.seconds.noter(g, 0, ChercherRangs2nd(n, g).value_or(ComptesRangs2nd{}));
    }
    return tables;
}

/// Good numbers of a ticket in sixty-four draws at once: the bits of a three-digit counter.
struct Compteurs {
    std::uint64_t un = 0, deux = 0, quatre = 0, chance = 0;

    void ajouter(std::uint64_t sortis) {
        const std::uint64_t retenue = un & sortis;
        un ^= sortis;
        quatre ^= deux & retenue;
        deux ^= retenue;
    }
    std::size_t bons(int place) const {
        return (un >> place & 1) | (deux >> place & 1) << 1 | (quatre >> place & 1) << 2;
    }
};

Compteurs Compter(const Grille& grille, const Serie::Mots& mots) {
    Compteurs compteurs;
    for (const std::size_t numero : grille.numeros) compteurs.ajouter(mots.numeros[numero]);
    for (const std::size_t chance : grille.chances) compteurs.chance |= mots.chances[chance];
    return compteurs;
}

/// Adds what the ticket wins on each draw of the series. `tableDe` gives the table of a draw.
template <std::size_t NbRangs, typename TableDe>
void Cumuler(const Grille& grille, const Serie& serie, TableDe tableDe,
             std::array<Cumul, NbRangs>& bilan) {
    for (std::size_t mot = 0; mot < serie.mots.size(); ++mot) {
        const Compteurs compteurs = Compter(grille, serie.mots[mot]);
        // No table pays less than two numbers without the chance.
        std::uint64_t restants = compteurs.deux | compteurs.quatre | compteurs.chance;
        for (; restants != 0; restants &= restants - 1) {
            const int place = std::countr_zero(restants);
            const std::size_t i = mot * TiragesParMot + static_cast<std::size_t>(place);
            const auto& resultat =
                tableDe(i).resultats[compteurs.bons(place)][compteurs.chance >> place & 1];
            for (std::size_t e = 0; e < resultat.nb; ++e) {
                const auto [rang, fois] = resultat.gagnes[e];
                bilan[rang].fois += fois;
                bilan[rang].gain += fois * (*serie.rapports[i])[rang].Gain;
            }
        }
    }
}

template <std::size_t NbRangs>
void Ajouter(const std::array<int, NbRangs>& comptes, const RapportsTirage& rapports,
             std::array<Cumul, NbRangs>& bilan) {
    for (std::size_t rang = 0; rang < NbRangs; ++rang) {
        bilan[rang].fois += comptes[rang];
        bilan[rang].gain += comptes[rang] * rapports[rang].Gain;
    }
}

}  // namespace

void Serie::ajouter(const Tirage& tirage, const RapportsTirage& gains) {
    const std::size_t place = tirages.size() % TiragesParMot;
    const std::uint64_t bit = std::uint64_t{1} << place;
    if (place == 0) mots.emplace_back();
    for (const int boule : tirage.Numeros)
        mots.back().numeros[static_cast<std::size_t>(boule)] |= bit;
    if (tirage.Chance > 0) mots.back().chances[static_cast<std::size_t>(tirage.Chance)] |= bit;
    tirages.push_back(&tirage);
    rapports.push_back(&gains);
}

Cumulateur::Cumulateur(const Base& base, int premier, int dernier, std::span<const Grille> grilles)
    : types_(NbTypes) {
    for (int numero = premier; numero <= dernier; ++numero) {
        const auto i = static_cast<std::size_t>(numero - 1);
        const bool second = EstSecondTirage(base.Tirages[i]);
        (second ? seconds_ : premiers_).ajouter(base.Tirages[i], base.Rapports[i]);
        if (!second) depuis_.push_back(base.Tirages[i].DateTirage >= DateNouveauxRangs);
    }
    for (const Grille& grille : grilles) {
        if (!grille.complete()) continue;
        auto& tables = types_[IndiceType(grille)];
        if (!tables) tables = PreparerType(grille.n(), grille.c());
    }
}

BilanGrille Cumulateur::cumuler(const Grille& grille) const {
    // A list made by hand may hold tickets that the game does not sell.
    if (!grille.complete()) return cumulerLentement(grille);
    const TablesType& tables = *types_[IndiceType(grille)];
    BilanGrille bilan;
    const auto parDate = [&](std::size_t i) -> const auto& {
        return depuis_[i] != 0 ? tables.depuis : tables.avant;
    };
    Cumuler(grille, premiers_, parDate, bilan.BilanRangs);
    if (ParticipeAu2ndTirage(grille)) {
        const auto seconds = [&](std::size_t) -> const auto& {
            return tables.seconds;
        };
        Cumuler(grille, seconds_, seconds, bilan.Bilan2nd);
    }
    return bilan;
}

BilanGrille Cumulateur::cumulerLentement(const Grille& grille) const {
    BilanGrille bilan;
    for (std::size_t i = 0; i < premiers_.tirages.size(); ++i)
        Ajouter(RangsGagnes(grille, *premiers_.tirages[i]), *premiers_.rapports[i],
                bilan.BilanRangs);
    for (std::size_t i = 0; i < seconds_.tirages.size(); ++i)
        Ajouter(Rangs2ndGagnes(grille, *seconds_.tirages[i]), *seconds_.rapports[i],
                bilan.Bilan2nd);
    return bilan;
}

}  // namespace norvane
