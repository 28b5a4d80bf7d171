// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <numeric>
#include <type_traits>

#include "Arbre.h"
#include "Lots.h"
#include "Recherche.h"

namespace norvane {

namespace {

/// Running minimum before the first candidate; raised where every count may lie above it.
constexpr int MinimumDeDepart = 1000;
constexpr int GaugeCentieme = 100;

/// The running extremes: candidates come in lexicographic order.
class Suiveur {
 public:
    Suiveur(const ContexteComb& c, int depart, bool minimum, int taille, SortieExtremes sortie,
            Puits& puits)
        : max(depart),
          min_(std::max(MinimumDeDepart, c.taille())),
          minimum_(minimum),
          lignes_(sortie == SortieExtremes::Lignes),
          lotLignes_(puits),
          lotMots_(puits, static_cast<std::size_t>(taille) + 1) {}

    /// `numeros()` is asked for only when the candidate goes out.
    template <typename Numeros>
    void voir(int c, Numeros numeros) {
        if (c >= max) {
            nbMax_ = c > max ? 1 : nbMax_ + 1;
            max = c;
            emettre(c, numeros());
        }
        if (minimum_ && c <= min_) {
            nbMin_ = c < min_ ? 1 : nbMin_ + 1;
            min_ = c;
            emettre(c, numeros());
        }
    }

    Extremes finir() {
        lotLignes_.vider();
        lotMots_.vider();
        Extremes e{.complet = true, .BorneSup = max, .nombre = nbMax_};
        if (minimum_) {
            e.BorneInf = min_;
            if (min_ != max) e.nombre += nbMin_;
        }
        return e;
    }

    int max;

 private:
    void emettre(int c, std::span<const Mot> numeros) {
        if (lignes_) return lotLignes_.ajouter({Ensemble::de(numeros), c});
        std::array<Mot, TailleCombMax + 1> mots;
        mots[0] = static_cast<Mot>(c);
        std::copy(numeros.begin(), numeros.end(), mots.begin() + 1);
        lotMots_.ajouter({mots.data(), numeros.size() + 1});
    }

    int min_;
    const bool minimum_;
    const bool lignes_;
    std::uint64_t nbMax_ = 0;
    std::uint64_t nbMin_ = 0;
    LotLignes lotLignes_;
    LotMots lotMots_;
};

/// Sizes 2 to 5: the whole tree. Without the minimum, partial combinations below the running
/// maximum are left out.
bool ParcourirTout(const ContexteComb& c, int taille, bool minimum, Suiveur& suivi, Puits* puits,
                   const std::stop_token& arret) {
    std::vector<int> numeros(NumeroMax);
    std::iota(numeros.begin(), numeros.end(), 1);
    const Domaine domaine{
        numeros, ListesNumeros(c.occurrences, numeros, c.IntervalleInf, c.IntervalleSup), taille};
    Marcheur<false> marcheur(c.base, c.occurrences, domaine);
    const int sansSeuil = 0;
    std::array<Mot, NbBoules> mots{};
    const auto longueur = static_cast<std::size_t>(taille);
    for (const Branche& branche : Branches(domaine, false)) {
        if (arret.stop_requested()) return false;
        if (puits != nullptr) puits->SetProgress(static_cast<int>(branche.choix[0]) + 1);
        marcheur.parcourir(branche, minimum ? sansSeuil : suivi.max, [&](const auto& feuille) {
            for (std::size_t j = feuille.premier; j < NumeroMax; ++j)
                suivi.voir(feuille.rangee[j], [&]() -> std::span<const Mot> {
                    for (std::size_t p = 0; p + 1 < longueur; ++p)
                        mots[p] = static_cast<Mot>(feuille.choix[p] + 1);
                    mots[longueur - 1] = static_cast<Mot>(j + 1);
                    return {mots.data(), longueur};
                });
        });
    }
    return true;
}

/// The runs of consecutive numbers.
bool ParcourirSeries(const ContexteComb& c, int taille, Suiveur& suivi, Puits* puits,
                     const std::stop_token& arret) {
    const auto masques = MasquesIntervalle(c);
    for (int a = 1; a + taille - 1 <= NumeroMax; ++a) {
        if (arret.stop_requested()) return false;
        if (puits != nullptr) puits->SetProgress(a);
        const Masque serie = ((Masque{1} << taille) - 1) << (a - 1);
        const auto n =
            std::ranges::count_if(masques, [&](Masque t) { return Compte(t, serie, taille); });
        const NumerosTries numeros{Ensemble(serie)};
        suivi.voir(static_cast<int>(n), [&]() -> std::span<const Mot> { return numeros; });
    }
    return true;
}

Extremes ChercherParListes(const ContexteComb& c, int taille, SortieExtremes sortie, Puits& puits,
                           const std::stop_token& arret) {
    const bool minimum = sortie == SortieExtremes::Enregistrements && taille <= 3;
    const auto parcourir = [&](Suiveur& suivi, Puits* jauge) {
        return c.series ? ParcourirSeries(c, taille, suivi, jauge, arret)
                        : ParcourirTout(c, taille, minimum, suivi, jauge, arret);
    };
    // A combination drawn at least once stands above those never drawn, which need not be walked
    // through: there is one in any interval, but not among the series.
    const int plancher = c.series || minimum ? 0 : 1;
    int depart = std::max(c.etat.BorneSup[static_cast<std::size_t>(taille)], plancher);
    if (depart > plancher) {
        // The bound that is stored may stem from other draws. Where nothing reaches it, it is none.
        PuitsMuet muet;
        Suiveur essai(c, depart, false, taille, SortieExtremes::Lignes, muet);
        if (!parcourir(essai, nullptr)) return {};
        if (essai.finir().nombre == 0) depart = plancher;
    }
    Suiveur suivi(c, depart, minimum, taille, sortie, puits);
    return parcourir(suivi, &puits) ? suivi.finir() : Extremes{};
}

Extremes ChercherGrande(const ContexteComb& c, int taille, Puits& puits,
                        const std::stop_token& arret) {
    const auto trouvees = ChercherExtremesGrandeTaille(TiragesIntervalle(c), taille, CapaciteListe,
                                                       NombreFils(c), arret, JaugePartagee(puits));
    if (trouvees.interrompu) return {};
    LotLignes lot(puits);
    for (const Masque m : trouvees.combinaisons) lot.ajouter({Ensemble(m), trouvees.maximum});
    lot.vider();
    return {.complet = true, .BorneSup = trouvees.maximum, .nombre = trouvees.nombre};
}

}  // namespace

std::vector<Masque> MasquesIntervalle(const ContexteComb& contexte) {
    std::vector<Masque> masques;
    for (const Tirage& t : TiragesIntervalle(contexte))
        masques.push_back(Ensemble::de(t.Numeros).bits());
    return masques;
}

Extremes ChercherExtremes(const ContexteComb& contexte, int taille, SortieExtremes sortie,
                          Puits& puits, const std::stop_token& arret) {
    if (taille > NbBoules && !contexte.series)
        return ChercherGrande(contexte, taille, puits, arret);
    return ChercherParListes(contexte, taille, sortie, puits, arret);
}

TRechercheExtremes::TRechercheExtremes(const ContexteComb& contexte, Puits& puits, int taille,
                                       SortieExtremes sortie, bool series)
    : TCombThread(puits, {GenreTravail::Extremes, taille, QuelleListe::Extremes}),
      contexte_(contexte),
      sortie_(sortie) {
    contexte_.series = series;
    progres.commencer(JaugeExtremes(taille, series));
}

void TRechercheExtremes::Execute() {
    resultat_ = ChercherExtremes(contexte_, description.taille, sortie_, puits(), arret());
}

PtrFil<TRechercheExtremes> CreerRechercheExtremes(const ContexteComb& contexte, Puits& puits,
                                                  int taille) {
    const bool lignes = contexte.taille() <= SeuilExtremes(taille);
    const auto creer = [&]<typename T>(std::type_identity<T>) {
        return PtrFil<TRechercheExtremes>(new T(contexte, puits, taille));
    };
    if (contexte.series)
        return lignes ? creer(std::type_identity<TCombNSuccMaxOnlySearch>{})
                      : creer(std::type_identity<TCombNSuccSearch>{});
    return lignes ? creer(std::type_identity<TCombNMaxOnlySearch>{})
                  : creer(std::type_identity<TCombNSearch>{});
}

int JaugeExtremes(int taille, bool series) {
    return series || taille <= NbBoules ? NumeroMax - 1 : GaugeCentieme;
}

}  // namespace norvane
