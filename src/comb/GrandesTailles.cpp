// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/GrandesTailles.h"

#include <algorithm>

#include "base/Repartition.h"
#include "base/Travail.h"
#include "Croissance.h"

namespace norvane {

namespace {

/// Raises `valeur` to `candidat` unless another thread went further.
void Relever(std::atomic<int>& valeur, int candidat) {
    int present = valeur.load(std::memory_order_relaxed);
    while (candidat > present && !valeur.compare_exchange_weak(present, candidat)) {
    }
}

/// Keeps the combinations with the highest count seen so far: all counted, the first ones kept.
class RecolteExtremes : public Recolte {
 public:
    RecolteExtremes(std::size_t capacite, std::atomic<int>& meilleur, std::stop_token arret)
        : capacite_(capacite), meilleur_(meilleur), arret_(std::move(arret)) {}

    void recevoir(Masque base, Masque ajouts, int compte) override {
        if (compte < maximum) return;
        if (compte > maximum) {
            maximum = compte;
            nombre = 0;
            masques.clear();
            Relever(meilleur_, compte);
        }
        nombre += static_cast<std::uint64_t>(std::popcount(ajouts));
        PourChaqueNumero(ajouts, [&](int y) { masques.push_back(base | Bit(y)); });
        if (masques.size() > 4096 && masques.size() / 2 > capacite_) garderPremiers();
    }
    bool continuer() override { return !arret_.stop_requested(); }

    void garderPremiers() {
        if (masques.size() <= capacite_) return;
        const auto fin = masques.begin() + static_cast<std::ptrdiff_t>(capacite_);
        std::nth_element(masques.begin(), fin, masques.end(), AvantLexico);
        masques.erase(fin, masques.end());
    }

    int maximum = 0;
    std::uint64_t nombre = 0;
    std::vector<Masque> masques;

 private:
    const std::size_t capacite_;
    std::atomic<int>& meilleur_;
    const std::stop_token arret_;
};

struct Candidat {
    int compte;
    Masque ensemble;
};

/// The sets that one number more makes of this one, those that bring draws only.
void Prolonger(const IndexTirages& index, const Candidat& c, std::vector<Candidat>& suivants) {
    std::array<int, NumeroMax> gains{}, numeros{};
    std::size_t n = 0;
    PourChaqueNumero(c.ensemble, [&](int x) { numeros[n++] = x; });
    for (std::size_t l = 3; l < n; ++l)
        for (std::size_t k = 2; k < l; ++k)
            for (std::size_t j = 1; j < k; ++j)
                for (std::size_t i = 0; i < j; ++i) {
                    const std::int32_t rang = numeros[i] + Colonne(2, numeros[j]) +
                                              Colonne(3, numeros[k]) + Colonne(4, numeros[l]);
                    if (!index.existe4(rang)) continue;
                    for (const auto& [masque, poids] : index.avec4(rang))
                        if (const Masque dehors = masque & ~c.ensemble)
                            gains[static_cast<std::size_t>(std::countr_zero(dehors))] += poids;
                }
    PourChaqueNumero(TousLesNumeros & ~c.ensemble, [&](int x) {
        const int gain = gains[static_cast<std::size_t>(x)];
        if (gain > 0) suivants.push_back({c.compte + gain, c.ensemble | Bit(x)});
    });
}

/// A count that some combination surely holds, mostly the best one: at each size only the sets with
/// the most draws are grown further.
int Amorcer(const IndexTirages& index, int taille) {
    constexpr std::size_t Depart = 4096;
    constexpr std::size_t Largeur = 128;
    std::vector<Candidat> rangee, suivants;
    const std::size_t pas = index.nombre() / Depart + 1;
    for (std::size_t i = 0; i < index.nombre(); i += pas)
        rangee.push_back({index.poids(i), index.masque(i)});
    int meilleur = 1;
    for (int m = NbBoules;; ++m) {
        for (const Candidat& c : rangee) meilleur = std::max(meilleur, c.compte);
        if (m == taille) return meilleur;
        suivants.clear();
        for (const Candidat& c : rangee) Prolonger(index, c, suivants);
        if (suivants.empty()) return meilleur;
        const auto avant = [](const Candidat& a, const Candidat& b) {
            return a.compte != b.compte ? a.compte > b.compte : a.ensemble < b.ensemble;
        };
        const auto garder = std::min(suivants.size(), Largeur * NbBoules);
        std::partial_sort(suivants.begin(), suivants.begin() + static_cast<std::ptrdiff_t>(garder),
                          suivants.end(), avant);
        rangee.clear();
        for (std::size_t i = 0; i < garder && rangee.size() < Largeur; ++i)
            if (rangee.empty() || rangee.back().ensemble != suivants[i].ensemble)
                rangee.push_back(suivants[i]);
    }
}

/// Without any draw every combination holds the most, which is none.
ExtremesGrandeTaille SansTirage(int taille, std::size_t capacite) {
    ExtremesGrandeTaille resultat;
    resultat.nombre = Binomial(NumeroMax, taille);
    const auto choisir = [&](const auto& self, Masque base, int premier, int reste) -> void {
        if (reste == 0) return resultat.combinaisons.push_back(base);
        for (int y = premier; y <= NumeroMax - reste; ++y) {
            if (resultat.combinaisons.size() >= capacite) return;
            self(self, base | Bit(y), y + 1, reste - 1);
        }
    };
    choisir(choisir, 0, 0, taille);
    return resultat;
}

/// Counts.
class RecolteCompte : public Recolte {
 public:
    explicit RecolteCompte(std::stop_token arret) : arret_(std::move(arret)) {}

    void recevoir(Masque, Masque ajouts, int) override {
        compte += static_cast<std::uint64_t>(std::popcount(ajouts));
    }
    bool continuer() override { return !arret_.stop_requested(); }

    std::uint64_t compte = 0;

 private:
    const std::stop_token arret_;
};

/// Combinations that hold inf (1 or more) to sup draws.
std::uint64_t CompterAuMoins(const IndexTirages& index, int taille, int inf, int sup,
                             unsigned threads, const std::stop_token& arret) {
    const std::atomic<int> minimum = inf;
    std::atomic<std::uint64_t> total = 0;
    Repartir(index.nombre(), std::max(1U, threads), [&](unsigned, auto suivante) {
        RecolteCompte recolte(arret);
        Croissance croissance(index, taille, minimum, sup, recolte);
        for (auto i = suivante(); i < index.nombre() && croissance.depuis(i);) i = suivante();
        total += recolte.compte;
    });
    return total;
}

}  // namespace

ExtremesGrandeTaille ChercherExtremesGrandeTaille(std::span<const Tirage> tirages, int taille,
                                                  std::size_t capacite, unsigned threads,
                                                  const std::stop_token& arret,
                                                  const std::function<void(int)>& avance) {
    const IndexTirages index(tirages);
    if (index.nombre() == 0) return SansTirage(taille, capacite);
    std::atomic<int> meilleur = Amorcer(index, taille);
    threads = std::max(1U, threads);
    std::vector<RecolteExtremes> recoltes(threads, {capacite, meilleur, arret});
    Avancement avancement(avance, index.nombre(), 0, 100);
    std::atomic<bool> interrompu = false;
    Repartir(index.nombre(), threads, [&](unsigned thread, auto suivante) {
        Croissance croissance(index, taille, meilleur, index.poidsTotal(), recoltes[thread]);
        for (auto i = suivante(); i < index.nombre(); i = suivante(), avancement.pas())
            if (!croissance.depuis(i)) return interrompu.store(true);
    });
    ExtremesGrandeTaille resultat;
    resultat.interrompu = interrompu || arret.stop_requested();
    if (resultat.interrompu) return resultat;
    resultat.maximum = meilleur;
    RecolteExtremes ensemble(capacite, meilleur, arret);
    for (const RecolteExtremes& r : recoltes) {
        if (r.maximum != resultat.maximum) continue;
        resultat.nombre += r.nombre;
        ensemble.masques.insert(ensemble.masques.end(), r.masques.begin(), r.masques.end());
    }
    ensemble.garderPremiers();
    resultat.combinaisons = std::move(ensemble.masques);
    std::sort(resultat.combinaisons.begin(), resultat.combinaisons.end(), AvantLexico);
    return resultat;
}

std::uint64_t CompterBornesGrandeTaille(std::span<const Tirage> tirages, int taille, int inf,
                                        int sup, unsigned threads, const std::stop_token& arret) {
    const int tous = static_cast<int>(tirages.size());
    if (sup < std::max(inf, 0) || inf > tous) return 0;
    const IndexTirages index(tirages);
    if (inf > 0) return CompterAuMoins(index, taille, inf, sup, threads, arret);
    const std::uint64_t toutes = Binomial(NumeroMax, taille);
    return sup >= tous ? toutes
                       : toutes - CompterAuMoins(index, taille, sup + 1, tous, threads, arret);
}

}  // namespace norvane
