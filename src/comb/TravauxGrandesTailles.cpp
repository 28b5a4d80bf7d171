// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <numeric>

#include "Residus.h"
#include "TravauxBornes.h"

namespace norvane {

namespace {

std::vector<int> TousLesNumeros() {
    std::vector<int> tous(NumeroMax);
    std::iota(tous.begin(), tous.end(), 1);
    return tous;
}

/// Sizes 6 to 10 made of fixed numbers and a choice of others.
class TravailGrand final : public TravailBornes {
 public:
    TravailGrand(const ContexteComb& c, Disposition d, const std::vector<int>& fixes,
                 const std::vector<int>& reserve, Puits& p, std::stop_token a)
        : TravailBornes(c, d, p, std::move(a)),
          fixes_(Ensemble::de(fixes).bits()),
          permis_(fixes_ | Ensemble::de(reserve).bits()),
          masques_(MasquesIntervalle(c)),
          residus_(masques_, premier(), fixes_, reserve, d.taille - static_cast<int>(fixes.size())),
          redacteur_(c, d) {}

    Prevision prevoir(int inf, int sup) override { return residus_.prevoir(inf, sup, arret); }

    std::uint64_t compter(int inf, int sup) override {
        if (toutes())
            return CompterBornesGrandeTaille(TiragesIntervalle(contexte), disposition.taille, inf,
                                             sup, NombreFils(contexte), arret);
        if (!paientLesTirages(inf, sup))
            return residus_.compter(inf, sup, NombreFils(contexte), arret);
        std::uint64_t n = 0;
        listerParTirages(inf, sup,
                         {[&](std::vector<Mot>& mots, Masque m, std::span<std::uint16_t>) {
                              if (dedans(m)) mots.push_back(0);
                          },
                          [&](std::span<const Mot> mots) { return (n += mots.size()) > 0; }});
        return n;
    }

    bool lister(const DemandeBornes& demande, const Recevoir& recevoir) override {
        const auto& [inf, sup, limite] = demande;
        const auto rediger = [&](std::vector<Mot>& mots, Masque m, ListeTirages liste) {
            redacteur_.ajouter(mots, NumerosTries(Ensemble(m)), liste);
        };
        const bool parTirages =
            toutes() ? inf > 0 && !premiersSuffisent(demande) : paientLesTirages(inf, sup);
        if (!parTirages)
            return residus_.lister(inf, sup, limite, NombreFils(contexte), arret,
                                   JaugePartagee(puits), {rediger, recevoir});
        return listerParTirages(
            inf, sup,
            {[&](std::vector<Mot>& mots, Masque m, std::span<std::uint16_t> places) {
                 if (!dedans(m)) return;
                 for (std::uint16_t& p : places) p = retenus_[p];
                 rediger(mots, m, places);
             },
             recevoir});
    }

 private:
    std::uint16_t premier() const { return static_cast<std::uint16_t>(contexte.IntervalleInf - 1); }
    bool toutes() const { return fixes_ == 0 && std::popcount(permis_) == NumeroMax; }
    bool dedans(Masque m) const { return (fixes_ & ~m) == 0 && (m & ~permis_) == 0; }

    /// With many choices and few combinations that reach `inf` at all, it is faster to build those
    /// from the draws and to keep the ones within the selection. Measured: a hundred million
    /// choices take about a second and a half.
    bool paientLesTirages(int inf, int sup) const {
        constexpr std::uint64_t ChoixMax = 100'000'000;
        constexpr std::uint64_t ToutesMax = 2'000'000;
        if (inf < 2 || residus_.choixPossibles() <= ChoixMax) return false;
        const Residus toutes(masques_, premier(), 0, TousLesNumeros(), disposition.taille);
        return toutes.prevoir(inf, sup, arret).nombre <= ToutesMax;
    }

    /// Where only the first are asked for and they lie close together, the choices are gone
    /// through until there are enough of them instead of building all.
    bool premiersSuffisent(const DemandeBornes& demande) {
        const auto attendues = static_cast<double>(prevoir(demande.inf, demande.sup).nombre);
        const auto choix = static_cast<double>(residus_.choixPossibles());
        return static_cast<double>(demande.limite) * choix < attendues * attendues;
    }

    /// Places are those of retenus_, the draws that lie among the numbers allowed.
    bool listerParTirages(int inf, int sup, const Livraison& livraison) {
        const auto tous = TiragesIntervalle(contexte);
        std::vector<Tirage> tirages;
        retenus_.clear();
        for (std::size_t i = 0; i < tous.size(); ++i) {
            if ((masques_[i] & ~permis_) != 0) continue;
            tirages.push_back(tous[i]);
            retenus_.push_back(static_cast<std::uint16_t>(i + premier()));
        }
        return ListerBornesGrandeTaille(tirages, disposition.taille, inf, sup, NombreFils(contexte),
                                        arret, JaugePartagee(puits), livraison);
    }

    const Masque fixes_;
    const Masque permis_;
    const std::vector<Masque> masques_;
    const Residus residus_;
    const Redacteur redacteur_;
    std::vector<std::uint16_t> retenus_;
};

}  // namespace

std::unique_ptr<TravailBornes> TravailGrandeTaille(const ContexteComb& c, Disposition d,
                                                   const std::vector<int>& fixes,
                                                   const std::vector<int>& reserve, Puits& puits,
                                                   std::stop_token arret) {
    return std::make_unique<TravailGrand>(c, d, fixes, reserve, puits, std::move(arret));
}

}  // namespace norvane
