// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Residus.h"

#include <algorithm>
#include <bit>

#include "base/Repartition.h"
#include "EnOrdre.h"
#include "IndexTirages.h"

namespace norvane {

Residus::Residus(const std::vector<Masque>& tirages, std::uint16_t premier, Masque fixes,
                 std::vector<int> reserve, int choix)
    : fixes_(fixes), reserve_(std::move(reserve)), choix_(choix) {
    const Masque masqueReserve = Ensemble::de(reserve_).bits();
    for (std::size_t d = 0; d < tirages.size(); ++d) {
        const Masque manque = tirages[d] & ~fixes_;
        if ((manque & ~masqueReserve) == 0 && std::popcount(manque) <= choix_)
            residus_.push_back({manque, static_cast<std::uint16_t>(d + premier)});
    }
}

/// Goes through the choices depth first in lexicographic order. The residues carried along are
/// those that the partial choice can still hold: they lack no number that was passed over, and no
/// more numbers than there is room for.
template <typename Visite>
struct Residus::Descente {
    Descente(const Residus& s, int minimum, const std::stop_token& a, Visite v)
        : source(s), inf(minimum), arret(a), visite(std::move(v)) {}

    const Residus& source;
    const int inf;
    const std::stop_token& arret;
    Visite visite;  // (first place that completes, numbers chosen, residues, draws per number)
    std::array<std::vector<Residu>, TailleCombMax + 1> niveaux{};
    bool fini = false;

    /// The choices that begin with these numbers. Pieces of one length come in their order: what
    /// the last one has in common with this one is kept.
    void parcourir(const Tete& tete) {
        std::size_t niveau = 0;
        if (valides_ == 0) niveaux[0] = source.residus_;
        while (niveau + 1 < valides_ && tete.places[niveau] == derniere_.places[niveau]) ++niveau;
        derniere_ = tete;
        for (; niveau < tete.longueur; ++niveau) {
            const std::size_t j = tete.places[niveau];
            valides_ = niveau + 1;
            for (auto& p = passes_[niveau]; p < j; ++p) passer(niveau, source.reserve_[p]);
            if (!prendre(niveau, source.reserve_[j])) return;
            passes_[valides_++] = j + 1;
        }
        Masque choisis = 0;
        for (std::size_t i = 0; i < tete.longueur; ++i)
            choisis |= MasqueNumero(source.reserve_[tete.places[i]]);
        descendre(tete.longueur, passes_[tete.longueur], choisis);
    }

 private:
    std::size_t places(std::size_t niveau) const {
        return static_cast<std::size_t>(source.choix_) - niveau;
    }
    void passer(std::size_t niveau, int numero) {
        std::erase_if(niveaux[niveau],
                      [b = MasqueNumero(numero)](const Residu& r) { return (r.manque & b) != 0; });
    }
    /// Fills the next level; false when too few are left there.
    bool prendre(std::size_t niveau, int numero) {
        auto& enfants = niveaux[niveau + 1];
        enfants.clear();
        for (const Residu& r : niveaux[niveau]) {
            const Masque manque = r.manque & ~MasqueNumero(numero);
            if (static_cast<std::size_t>(std::popcount(manque)) < places(niveau))
                enfants.push_back({manque, r.place});
        }
        return static_cast<int>(enfants.size()) >= inf;
    }

    void descendre(std::size_t niveau, std::size_t premier, Masque choisis) {
        auto& vivants = niveaux[niveau];
        if (places(niveau) <= 1) return feuille(vivants, premier, choisis);
        for (std::size_t j = premier; j + places(niveau) <= source.reserve_.size(); ++j) {
            if (fini || arret.stop_requested()) return;
            if (static_cast<int>(vivants.size()) < inf) return;
            const int numero = source.reserve_[j];
            if (prendre(niveau, numero))
                descendre(niveau + 1, j + 1, choisis | MasqueNumero(numero));
            passer(niveau, numero);
        }
    }

    void feuille(const std::vector<Residu>& vivants, std::size_t premier, Masque choisis) {
        std::array<int, NumeroMax + 1> tirages{};  // that the choice with this number holds
        int tenus = 0;
        for (const Residu& r : vivants)
            r.manque == 0 ? ++tenus
                          : ++tirages[static_cast<std::size_t>(std::countr_zero(r.manque)) + 1];
        for (int& n : tirages) n += tenus;
        visite(*this, premier, choisis, vivants, tirages);
    }

    Tete derniere_{};
    std::size_t valides_ = 0;                       ///< levels that belong to the last piece
    std::array<std::size_t, NbTete + 1> passes_{};  ///< places taken or passed over at each
};

std::uint64_t Residus::choixPossibles() const {
    return Binomial(static_cast<int>(reserve_.size()), choix_);
}

/// Pieces of the work in lexicographic order, large enough to be worth a hand-over and small
/// enough for what they give to wait in memory.
std::vector<Residus::Tete> Residus::tetes() const {
    constexpr std::uint64_t Assez = 1 << 18;
    const int n = static_cast<int>(reserve_.size());
    std::size_t longueur = 0;
    const auto dessous = [&](std::size_t premier, std::size_t pris) {
        return Binomial(n - static_cast<int>(premier), choix_ - static_cast<int>(pris));
    };
    while (longueur < NbTete && static_cast<int>(longueur) + 1 < choix_ &&
           dessous(longueur, longueur) > Assez)
        ++longueur;
    std::vector<Tete> tetes;
    Tete tete{longueur, {}, 0};
    const auto ajouter = [&](const auto& self, std::size_t pris, std::size_t premier) -> void {
        if (pris == longueur) {
            tete.choix = dessous(premier, pris);
            return tetes.push_back(tete);
        }
        for (std::size_t j = premier; dessous(j, pris) > 0; ++j) {
            tete.places[pris] = static_cast<std::uint8_t>(j);
            self(self, pris + 1, j + 1);
        }
    };
    if (choixPossibles() > 0) ajouter(ajouter, 0, 0);
    return tetes;
}

std::uint64_t Residus::compter(int inf, int sup, unsigned threads,
                               const std::stop_token& arret) const {
    // Far more choices hold few draws than hold many: the others are counted.
    if (inf == 0)
        return choixPossibles() -
               (contientTout(sup) ? 0 : compter(sup + 1, NbTiragesMax, threads, arret));
    const auto travaux = tetes();
    std::atomic<std::uint64_t> total = 0;
    const auto utiles = std::min<std::size_t>(std::max(1U, threads), travaux.size());
    Repartir(travaux.size(), static_cast<unsigned>(utiles), [&](unsigned, auto suivante) {
        std::uint64_t n = 0;
        const auto compterFeuille = [&](auto&, std::size_t premier, Masque, const auto&,
                                        const auto& tirages) {
            for (std::size_t j = premier; j < reserve_.size(); ++j) {
                const int c = tirages[static_cast<std::size_t>(reserve_[j])];
                n += static_cast<std::uint64_t>(c >= inf && c <= sup);
            }
        };
        Descente<decltype(compterFeuille)> descente{*this, inf, arret, compterFeuille};
        for (auto i = suivante(); i < travaux.size() && !arret.stop_requested(); i = suivante())
            descente.parcourir(travaux[i]);
        total += n;
    });
    return total;
}

/// Writes out what one piece gives.
struct Residus::Ouvrier {
    struct Ecriture {
        const Residus& source;
        const Livraison& livraison;
        const int inf, sup;
        const std::uint64_t limite;
        std::uint64_t donnes = 0;
        std::vector<Mot> mots{};
        std::vector<std::uint16_t> places{};

        void operator()(auto& descente, std::size_t premier, Masque choisis,
                        const std::vector<Residu>& vivants, const auto& tirages) {
            for (std::size_t j = premier; j < source.reserve_.size() && !descente.fini; ++j) {
                const int c = tirages[static_cast<std::size_t>(source.reserve_[j])];
                if (c < inf || c > sup) continue;
                const Masque b = MasqueNumero(source.reserve_[j]);
                places.clear();
                for (auto r = vivants.begin(); static_cast<int>(places.size()) < c; ++r)
                    if ((r->manque & ~b) == 0) places.push_back(r->place);
                livraison.rediger(mots, source.fixes_ | choisis | b, places);
                descente.fini = ++donnes >= limite;
            }
        }
    };

    const std::vector<Tete>& travaux;
    const std::vector<std::size_t>& pieces;
    Descente<Ecriture> descente;

    const std::vector<Mot>& mots() const { return descente.visite.mots; }
    bool produire(std::size_t i) {
        descente.visite.mots.clear();
        descente.visite.donnes = 0;
        descente.fini = false;
        for (std::size_t t = pieces[i]; t < pieces[i + 1] && !descente.fini; ++t)
            descente.parcourir(travaux[t]);
        return !descente.arret.stop_requested();
    }
};

bool Residus::lister(int inf, int sup, std::uint64_t limite, unsigned threads,
                     const std::stop_token& arret, const std::function<void(int)>& avance,
                     const Livraison& livraison) const {
    constexpr std::uint64_t Assez = 1 << 17;
    const auto travaux = tetes();
    const auto pieces =
        Couper(travaux.size(), Assez, [&](std::size_t t) { return travaux[t].choix; });
    const std::uint64_t total = std::max<std::uint64_t>(choixPossibles(), 1);
    std::uint64_t faits = 0;
    const auto utiles = std::min<std::size_t>(std::max(1U, threads), pieces.size() - 1);
    return EnOrdre(
        pieces.size() - 1, static_cast<unsigned>(utiles), arret,
        [&] {
            return Ouvrier{
                travaux, pieces, {*this, inf, arret, {*this, livraison, inf, sup, limite}}};
        },
        [&](std::size_t i, const Ouvrier& ouvrier) {
            for (std::size_t t = pieces[i]; t < pieces[i + 1]; ++t) faits += travaux[t].choix;
            if (avance) avance(static_cast<int>(faits * 100 / total));
            return ouvrier.mots().empty() || livraison.livrer(ouvrier.mots());
        });
}

}  // namespace norvane
