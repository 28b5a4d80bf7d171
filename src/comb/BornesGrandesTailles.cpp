// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <utility>

#include "base/Repartition.h"
#include "comb/GrandesTailles.h"
#include "Croissance.h"

namespace norvane {

namespace {

using Recevoir = std::function<bool(Masque, std::span<const std::uint16_t>)>;

/// Hands combinations on with their draws, until the receiver has enough or the search is stopped.
class Remise {
 public:
    Remise(const IndexTirages& index, const Recevoir& recevoir, std::stop_token arret)
        : index_(index), recevoir_(recevoir), arret_(std::move(arret)) {}

    bool donner(Masque combinaison) {
        if (finie_) return false;
        index_.lister(combinaison, places_);
        finie_ = !recevoir_(combinaison, places_) || arret_.stop_requested();
        return !finie_;
    }
    bool continuer() const { return !finie_ && !arret_.stop_requested(); }

 private:
    const IndexTirages& index_;
    const Recevoir& recevoir_;
    const std::stop_token arret_;
    std::vector<std::uint16_t> places_;
    bool finie_ = false;
};

/// Combinations found in lexicographic order go straight to the receiver.
class RecolteDirecte : public Recolte {
 public:
    RecolteDirecte(Remise& remise, const std::function<void(int)>& avance)
        : remise_(remise), avancement_(avance, Binomial(NumeroMax, 3), 0, 100) {}

    void recevoir(Masque base, Masque ajouts, int) override {
        PourChaqueNumero(ajouts, [&](int y) { remise_.donner(base | Bit(y)); });
        const std::size_t triplet = RangBas(base, 3);
        if (triplet != triplet_) avancement_.pas();
        triplet_ = triplet;
    }
    bool continuer() override { return remise_.continuer(); }

 private:
    Remise& remise_;
    Avancement avancement_;
    std::size_t triplet_ = 0;
};

/// Combinations sorted into one drawer for each three lowest numbers.
class RecolteTiroirs : public Recolte {
 public:
    explicit RecolteTiroirs(std::stop_token arret) : arret_(std::move(arret)) {}

    void recevoir(Masque base, Masque ajouts, int) override {
        PourChaqueNumero(ajouts, [&](int y) {
            const Masque m = base | Bit(y);
            tiroirs[RangBas(m, 3)].push_back(m);
        });
    }
    bool continuer() override { return !arret_.stop_requested(); }

    std::vector<std::vector<Masque>> tiroirs{NbTriplets};

 private:
    const std::stop_token arret_;
};

/// Gives the contents of the drawers in lexicographic order and frees each one on the way.
bool Vider(std::vector<RecolteTiroirs>& recoltes, Remise& remise, Avancement& avancement) {
    std::vector<Masque> tiroir;
    for (int a = 0; a < NumeroMax; ++a)
        for (int b = a + 1; b < NumeroMax; ++b)
            for (int c = b + 1; c < NumeroMax; ++c) {
                const std::size_t rang = RangBas(Bit(a) | Bit(b) | Bit(c), 3);
                tiroir.clear();
                for (RecolteTiroirs& r : recoltes) {
                    const auto part = std::exchange(r.tiroirs[rang], {});
                    tiroir.insert(tiroir.end(), part.begin(), part.end());
                }
                std::sort(tiroir.begin(), tiroir.end(), AvantLexico);
                for (const Masque m : tiroir)
                    if (!remise.donner(m)) return false;
                avancement.pas();
            }
    return remise.continuer();
}

}  // namespace

bool ListerBornesGrandeTaille(
    std::span<const Tirage> tirages, int taille, int inf, int sup, unsigned threads,
    std::stop_token arret, const std::function<void(int)>& avance,
    const std::function<bool(Masque, std::span<const std::uint16_t>)>& recevoir) {
    if (sup < std::max(inf, 0) || inf > static_cast<int>(tirages.size())) return true;
    const IndexTirages index(tirages);
    Remise remise(index, recevoir, arret);
    const std::atomic<int> minimum = std::max(inf, 1);
    if (inf <= 0) {
        RecolteDirecte recolte(remise, avance);
        return Croissance(index, taille, minimum, sup, recolte).lexicographique() &&
               remise.continuer();
    }
    threads = std::max(1U, threads);
    std::vector<RecolteTiroirs> recoltes(threads, RecolteTiroirs(arret));
    Avancement recherche(avance, index.nombre(), 0, 50);
    Repartir(index.nombre(), threads, [&](unsigned thread, auto suivante) {
        Croissance croissance(index, taille, minimum, sup, recoltes[thread]);
        for (auto i = suivante(); i < index.nombre() && croissance.depuis(i); i = suivante())
            recherche.pas();
    });
    if (arret.stop_requested()) return false;
    Avancement lecture(avance, NbTriplets, 50, 100);
    return Vider(recoltes, remise, lecture);
}

}  // namespace norvane
