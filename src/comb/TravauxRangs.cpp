// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/TravauxRangs.h"

#include <algorithm>
#include <atomic>

#include "base/Repartition.h"
#include "NoyauRangs.h"
#include "Recherche.h"

namespace norvane {

namespace {

constexpr std::size_t Lot = 256;  ///< records between two looks at the stop: milliseconds

DescriptionTravail Description(GenreTravail genre, const Arene& arene, QuelleListe liste) {
    return {genre, arene.disposition.taille, liste};
}

}  // namespace

TTravailRangs::TTravailRangs(const ContexteComb& contexte, Puits& puits, Arene& arene,
                             const DescriptionTravail& d)
    : TCombThread(puits, d), contexte_(contexte), arene_(arene) {
    progres.commencer(PasRangs(arene.nombre()));
}

void TTravailRangs::ecrire(Quoi quoi, const std::function<void(int)>& avance) {
    const Disposition d = arene_.disposition;
    const bool tout = quoi == Quoi::Tout;
    const unsigned rangs = tout ? d.rangs() : d.rangs() & ~(1U << BonsPremierRang(d.taille));
    const std::size_t total = rangs == 0 ? 0 : arene_.nombre();
    const std::size_t lots = (total + Lot - 1) / Lot;
    const auto fils = static_cast<unsigned>(
        std::min<std::size_t>(NombreFils(contexte_), std::max<std::size_t>(lots, 1)));
    const CartesTirages cartes(TiragesIntervalle(contexte_));
    Avancement avancement(avance, lots, 0, PasRangs(total));
    std::atomic<std::size_t> ecrits = 0;
    std::atomic<std::size_t> faits = 0;
    Repartir(lots, fils, [&](unsigned, auto suivante) {
        CalculRangs calcul(cartes, d, rangs);
        std::size_t n = 0;
        for (std::size_t lot = suivante(); lot < lots && !Terminated(); lot = suivante()) {
            for (std::size_t i = lot * Lot; i < std::min(total, (lot + 1) * Lot); ++i) {
                const std::span<Mot> enregistrement = arene_[i];
                if (!tout && enregistrement[1] != RangNonCalcule) continue;
                calcul.ecrire(enregistrement);
                ++n;
            }
            ++faits;
            avancement.pas();
        }
        ecrits += n;
    });
    nombre_ = ecrits;
    complet_ = faits == lots;
}

TRangsThread::TRangsThread(const ContexteComb& contexte, Puits& puits, Arene& arene,
                           QuelleListe liste)
    : TTravailRangs(contexte, puits, arene, Description(GenreTravail::Rangs, arene, liste)),
      TailleComb(static_cast<Mot>(arene.disposition.taille)) {}

void TRemplirRangsSearch::Rechercher() {
    ecrire(Quoi::RangsVides, JaugePartagee(puits(), &Puits::SetProgress));
}

TRangsAdaptationThread::TRangsAdaptationThread(const ContexteComb& contexte, Puits& puits,
                                               Arene& arene, QuelleListe liste)
    : TTravailRangs(contexte, puits, arene, Description(GenreTravail::Adaptation, arene, liste)),
      TailleComb(static_cast<Mot>(arene.disposition.taille)) {}

void TRemplirRangsAdaptationSearch::Rechercher() {
    ecrire(Quoi::Tout, JaugePartagee(puits(), &Puits::SetStatusProgress));
}

}  // namespace norvane
