// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <utility>

#include "base/Repartition.h"
#include "comb/GrandesTailles.h"
#include "Croissance.h"
#include "EnOrdre.h"

namespace norvane {

namespace {

/// Combinations found in any order, sorted into one drawer for each three lowest numbers.
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

/// The drawers of all threads, cut into rows of neighbours that are worth a hand-over.
class Commode {
 public:
    /// The drawers of one row, in lexicographic order, and what they hold together.
    struct Rangee {
        std::vector<std::size_t> tiroirs;
        std::size_t nombre = 0;
    };

    explicit Commode(std::vector<RecolteTiroirs>& recoltes) : recoltes_(recoltes) {
        constexpr std::size_t Assez = 8192;
        for (int a = 0; a < NumeroMax; ++a)
            for (int b = a + 1; b < NumeroMax; ++b)
                for (int c = b + 1; c < NumeroMax; ++c) {
                    const std::size_t rang = RangBas(Bit(a) | Bit(b) | Bit(c), 3);
                    std::size_t n = 0;
                    for (const RecolteTiroirs& r : recoltes_) n += r.tiroirs[rang].size();
                    if (n == 0) continue;
                    if (rangees.empty() || rangees.back().nombre >= Assez) rangees.emplace_back();
                    rangees.back().tiroirs.push_back(rang);
                    rangees.back().nombre += n;
                    nombre += n;
                }
    }

    /// Replaces `contenu` by that of one drawer, in lexicographic order, and empties it.
    void vider(std::size_t rang, std::vector<Masque>& contenu) {
        contenu.clear();
        for (RecolteTiroirs& r : recoltes_) {
            const auto part = std::exchange(r.tiroirs[rang], {});
            contenu.insert(contenu.end(), part.begin(), part.end());
        }
        std::sort(contenu.begin(), contenu.end(), AvantLexico);
    }

    std::vector<Rangee> rangees;
    std::size_t nombre = 0;

 private:
    std::vector<RecolteTiroirs>& recoltes_;
};

/// Writes out what one row holds.
struct Redaction {
    const IndexTirages& index;
    const Livraison& livraison;
    Commode& commode;
    std::vector<Mot> mots{};
    std::vector<Masque> tiroir{};
    std::vector<std::uint16_t> places{};

    bool produire(std::size_t i) {
        mots.clear();
        for (const std::size_t rang : commode.rangees[i].tiroirs) {
            commode.vider(rang, tiroir);
            for (const Masque m : tiroir) {
                index.lister(m, places);
                livraison.rediger(mots, m, places);
            }
        }
        return true;
    }
};

}  // namespace

bool ListerBornesGrandeTaille(std::span<const Tirage> tirages, int taille, int inf, int sup,
                              unsigned threads, const std::stop_token& arret,
                              const std::function<void(int)>& avance, const Livraison& livraison) {
    if (sup < inf || inf > static_cast<int>(tirages.size())) return true;
    const IndexTirages index(tirages);
    const std::atomic<int> minimum = inf;
    threads = std::max(1U, threads);
    std::vector<RecolteTiroirs> recoltes(threads, RecolteTiroirs(arret));
    Avancement recherche(avance, index.nombre(), 0, 50);
    Repartir(index.nombre(), threads, [&](unsigned thread, auto suivante) {
        Croissance croissance(index, taille, minimum, sup, recoltes[thread]);
        for (auto i = suivante(); i < index.nombre() && croissance.depuis(i); i = suivante())
            recherche.pas();
    });
    if (arret.stop_requested()) return false;

    Commode commode(recoltes);
    std::size_t donnees = 0;
    return EnOrdre(
        commode.rangees.size(), threads, arret,
        [&] { return Redaction{.index = index, .livraison = livraison, .commode = commode}; },
        [&](std::size_t i, const Redaction& redaction) {
            donnees += commode.rangees[i].nombre;
            if (avance) avance(50 + static_cast<int>(donnees * 50 / commode.nombre));
            return redaction.mots.empty() || livraison.livrer(redaction.mots);
        });
}

}  // namespace norvane
