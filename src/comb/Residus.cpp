// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Residus.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

#include "IndexTirages.h"
#include "Recherche.h"

namespace norvane {

namespace {

constexpr std::uint64_t Infini = std::numeric_limits<std::uint64_t>::max();

}  // namespace

Residus::Residus(const std::vector<Masque>& tirages, const std::vector<int>& fixes,
                 std::vector<int> reserve, int choix)
    : reserve_(std::move(reserve)), choix_(choix) {
    const Masque masqueFixes = Ensemble::de(fixes).bits();
    const Masque masqueReserve = Ensemble::de(reserve_).bits();
    for (std::size_t d = 0; d < tirages.size(); ++d) {
        const Masque manque = tirages[d] & ~masqueFixes;
        if ((manque & ~masqueReserve) == 0 && std::popcount(manque) <= choix_)
            residus_.push_back({manque, static_cast<std::uint16_t>(d)});
    }
}

/// Goes through the choices depth first in lexicographic order. The residues carried along are
/// those that the partial choice can still hold: they lack no number that was passed over, and no
/// more numbers than there is room for.
template <typename Visite>
struct Residus::Descente {
    const Residus& source;
    const int inf;
    const std::stop_token& arret;
    Visite visite;  // false ends the search
    std::array<std::vector<Residu>, TailleCombMax + 1> niveaux{};
    bool fini = false;

    void descendre(int niveau, std::size_t premier, Masque choisis) {
        const int places = source.choix_ - niveau;
        auto& vivants = niveaux[static_cast<std::size_t>(niveau)];
        if (places <= 1) return visite(*this, premier, choisis, vivants);
        auto& enfants = niveaux[static_cast<std::size_t>(niveau + 1)];
        for (std::size_t j = premier;
             j + static_cast<std::size_t>(places) <= source.reserve_.size() && !fini; ++j) {
            if (arret.stop_requested()) fini = true;
            if (static_cast<int>(vivants.size()) < inf) return;
            const Masque b = MasqueNumero(source.reserve_[j]);
            enfants.clear();
            for (const Residu& r : vivants)
                if (std::popcount(r.manque & ~b) < places)
                    enfants.push_back({r.manque & ~b, r.place});
            if (static_cast<int>(enfants.size()) >= inf) descendre(niveau + 1, j + 1, choisis | b);
            std::erase_if(vivants, [b](const Residu& r) { return (r.manque & b) != 0; });
        }
    }
};

std::uint64_t Residus::choixPossibles() const {
    return Binomial(static_cast<int>(reserve_.size()), choix_);
}

std::uint64_t Residus::compter(int inf, int sup, std::uint64_t plafond,
                               const std::stop_token& arret) const {
    const int n = static_cast<int>(reserve_.size());
    if (inf == 0) {
        // Far more choices hold few draws than hold many: the others are counted.
        const std::uint64_t total = choixPossibles();
        std::uint64_t majorant = 0;
        for (const Residu& r : residus_) {
            const int m = std::popcount(r.manque);
            majorant += Binomial(n - m, choix_ - m);
        }
        majorant /= static_cast<std::uint64_t>(sup) + 1;
        if (total > majorant && total - majorant > plafond) return total - majorant;
        return total - compter(sup + 1, NbTiragesMax, Infini, arret);
    }
    std::uint64_t total = 0;
    const auto compterFeuille = [&](auto& descente, std::size_t premier, Masque,
                                    const std::vector<Residu>& vivants) {
        std::array<int, NumeroMax + 1> seuls{};
        int tenus = 0;
        for (const Residu& r : vivants)
            r.manque == 0 ? ++tenus
                          : ++seuls[static_cast<std::size_t>(std::countr_zero(r.manque)) + 1];
        for (std::size_t j = premier; j < reserve_.size(); ++j) {
            const int c = tenus + seuls[static_cast<std::size_t>(reserve_[j])];
            total += static_cast<std::uint64_t>(c >= inf && c <= sup);
        }
        if (total > plafond) descente.fini = true;
    };
    Descente<decltype(compterFeuille)> descente{*this, inf, arret, compterFeuille};
    descente.niveaux[0] = residus_;
    if (choix_ <= n) descente.descendre(0, 0, 0);
    return total;
}

void Residus::lister(
    int inf, int sup, const std::stop_token& arret, const std::function<void(int)>& avance,
    const std::function<bool(Masque, std::span<const std::uint16_t>)>& recevoir) const {
    std::vector<std::uint16_t> places;
    Masque derniereTete = 0;
    const auto donnerFeuille = [&](auto& descente, std::size_t premier, Masque choisis,
                                   const std::vector<Residu>& vivants) {
        const Masque tete = choisis & (~choisis + 1);
        if (tete != derniereTete) {
            derniereTete = tete;
            avance(std::countr_zero(tete) * 100 / NumeroMax);
        }
        for (std::size_t j = premier; j < reserve_.size() && !descente.fini; ++j) {
            const Masque b = MasqueNumero(reserve_[j]);
            places.clear();
            for (const Residu& r : vivants)
                if ((r.manque & ~b) == 0) places.push_back(r.place);
            const int c = static_cast<int>(places.size());
            if (c >= inf && c <= sup && !recevoir(choisis | b, places)) descente.fini = true;
        }
    };
    Descente<decltype(donnerFeuille)> descente{*this, inf, arret, donnerFeuille};
    descente.niveaux[0] = residus_;
    if (choix_ <= static_cast<int>(reserve_.size())) descente.descendre(0, 0, 0);
}

}  // namespace norvane
