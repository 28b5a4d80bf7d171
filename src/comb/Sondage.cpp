// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How many choices hold a number of draws, from a sample. A residue is drawn at random, each as
// often as there are choices that hold it, and completed at random: a choice with c residues then
// turns up c times as often as one with a single residue, which a weight of 1/c makes good.
#include <algorithm>
#include <bit>
#include <cmath>
#include <random>

#include "IndexTirages.h"
#include "Residus.h"

namespace norvane {

namespace {

constexpr std::uint64_t NbEssais = 1 << 17;
constexpr std::uint64_t NbEssaisParQuestion = 1 << 12;  // between two looks at the stop
constexpr unsigned Graine = 49;
/// ln(3 / 10^-9) of the empirical Bernstein inequality.
constexpr double LogRisque = 21.8;

}  // namespace

class Residus::Sondage {
 public:
    explicit Sondage(const Residus& source) : source_(source), tries_(source.residus_) {
        const int n = static_cast<int>(source.reserve_.size());
        for (std::size_t m = 0; m < poids_.size(); ++m)
            poids_[m] = static_cast<double>(
                Binomial(n - static_cast<int>(m), source.choix_ - static_cast<int>(m)));
        std::ranges::sort(tries_, {}, [](const Residu& r) { return Casier(r.manque); });
        for (const Residu& r : tries_) ++debuts_[Casier(r.manque) + 1];
        for (std::size_t i = 1; i < debuts_.size(); ++i) debuts_[i] += debuts_[i - 1];
        for (const Residu& r : source.residus_) {
            const auto m = static_cast<std::size_t>(std::popcount(r.manque));
            parManque_[m].push_back(r.manque);
            total_ += poids_[m];
        }
    }

    /// Choices of all residues, each choice once for each residue that it holds.
    double total() const { return total_; }

    /// How many residues a choice holds that was found through one of them.
    int essayer() {
        const Masque manque = residu();
        Masque choisis = manque;
        while (std::popcount(choisis) < source_.choix_)
            choisis |= MasqueNumero(source_.reserve_[auHasard(source_.reserve_.size())]);
        return compter(choisis);
    }

 private:
    /// The two lowest numbers of a set, where it has them.
    static std::size_t Casier(Masque m) {
        return numero(m) * (NumeroMax + 1) + numero(m & (m - 1));
    }
    static std::size_t numero(Masque m) {
        return m == 0 ? 0 : static_cast<std::size_t>(std::countr_zero(m)) + 1;
    }
    std::size_t auHasard(std::size_t n) {
        return static_cast<std::size_t>(std::uint64_t{hasard_()} * n >> 32);
    }

    Masque residu() {
        double reste = static_cast<double>(hasard_()) / 4294967296.0 * total_;
        std::size_t m = 0;
        for (std::size_t i = 0; i < parManque_.size(); ++i) {
            if (parManque_[i].empty()) continue;
            m = i;  // the last one takes what rounding leaves over
            const double part = static_cast<double>(parManque_[i].size()) * poids_[i];
            if (reste < part) break;
            reste -= part;
        }
        return parManque_[m][auHasard(parManque_[m].size())];
    }

    int compter(Masque choisis) const {
        int n = 0;
        const auto casier = [&](std::size_t c) {
            for (auto i = debuts_[c]; i < debuts_[c + 1]; ++i)
                n += static_cast<int>((tries_[i].manque & ~choisis) == 0);
        };
        casier(0);
        PourChaqueNumero(choisis, [&](int a) {
            casier(Casier(Bit(a)));
            PourChaqueNumero(choisis & ~(Bit(a + 1) - 1),
                             [&](int b) { casier(Casier(Bit(a) | Bit(b))); });
        });
        return n;
    }

    const Residus& source_;
    std::vector<Residu> tries_;  // by their two lowest numbers
    std::array<std::uint32_t, (NumeroMax + 1) * (NumeroMax + 1) + 1> debuts_{};
    std::array<std::vector<Masque>, NbBoules + 1> parManque_;  // by how many numbers they lack
    std::array<double, NbBoules + 1> poids_{};                 // choices that hold one of those
    double total_ = 0;
    std::mt19937 hasard_{Graine};
};

Prevision Residus::prevoir(int inf, int sup, const std::stop_token& arret) const {
    const std::uint64_t possibles = choixPossibles();
    if (possibles <= NbEssais) return Prevision::exactement(compter(inf, sup, 1, arret));
    if (inf == 0) {
        if (sup >= NbTiragesMax) return Prevision::exactement(possibles);
        const Prevision autres = prevoir(sup + 1, NbTiragesMax, arret);
        return {possibles - autres.nombre, possibles - autres.maximum, possibles - autres.minimum};
    }
    if (residus_.empty()) return Prevision::exactement(0);

    Sondage sondage(*this);
    double somme = 0;
    double carres = 0;
    for (std::uint64_t i = 0; i < NbEssais; ++i) {
        if (i % NbEssaisParQuestion == 0 && arret.stop_requested()) return {};
        const int c = sondage.essayer();
        if (c < inf || c > sup) continue;
        somme += 1.0 / c;
        carres += 1.0 / c / c;
    }
    constexpr auto n = static_cast<double>(NbEssais);
    const double moyenne = somme / n;
    const double variance = carres / n - moyenne * moyenne;
    const double marge =
        std::sqrt(2 * std::max(variance, 0.0) * LogRisque / n) + 3 * LogRisque / (n * inf);
    const double plafond = std::min(sondage.total() / inf, static_cast<double>(possibles));
    const auto entier = [&](double part) {
        return static_cast<std::uint64_t>(
            std::llround(std::clamp(part * sondage.total(), 0.0, plafond)));
    };
    return {entier(moyenne), entier(moyenne - marge), entier(moyenne + marge)};
}

}  // namespace norvane
