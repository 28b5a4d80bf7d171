// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <type_traits>

#include "base/Textes.h"
#include "comb/VaroFonc2.h"
#include "Lots.h"
#include "TravauxBornes.h"

namespace norvane {

namespace {

constexpr std::uint64_t SansLimite = std::numeric_limits<std::uint64_t>::max();
constexpr int GaugeCentieme = 100;
constexpr std::uint64_t Mega = 1'000'000;

/// "38 Mo", rounded up.
std::string EnMegaoctets(std::uint64_t octets) {
    return FormaterCompte(static_cast<std::int64_t>((octets + Mega - 1) / Mega)) + " Mo";
}

std::string PhraseTropLongue(std::uint64_t nombre, bool exact, std::uint64_t motsParCombinaison,
                             std::uint64_t octetsMax) {
    return fmt::format(
        "La liste compterait {}{} combinaisons, soit {}{}, et elle doit tenir dans {} (la moitié "
        "de la mémoire libre) : resserrez les bornes ou stockez moins de rangs.",
        exact ? "" : "au moins ", FormaterCompte(static_cast<std::int64_t>(nombre)),
        exact ? "" : "au moins ", EnMegaoctets(nombre * motsParCombinaison * sizeof(Mot)),
        EnMegaoctets(octetsMax));
}

}  // namespace

TRechercheBornes::TRechercheBornes(const ContexteComb& contexte, Puits& puits,
                                   DomaineBornes domaine, int taille, int inf, int sup)
    : TCombThread(puits, {GenreTravail::Bornes, taille, QuelleListe::Memoire}),
      contexte_(contexte),
      disposition_{taille, contexte.mode},
      domaine_(domaine),
      inf_(inf),
      sup_(sup) {
    progres.commencer(JaugeBornes(contexte, taille));
}

void TRechercheBornes::mener(TravailBornes& travail) {
    const auto pas = static_cast<std::uint64_t>(disposition_.mots());
    std::uint64_t octetsMax = contexte_.octetsMax;
    if (octetsMax == 0) octetsMax = MemoireDisponible() / 2;
    // Where the system does not tell, the allocation itself refuses.
    std::uint64_t plafond =
        octetsMax == 0 ? SansLimite / (4 * sizeof(Mot) * pas) : octetsMax / (pas * sizeof(Mot));
    if (compterSeulement) plafond = SansLimite;

    std::uint64_t prevu = limite;
    if (limite == 0 || limite > plafond) {
        prevu = travail.compter(inf_, sup_, plafond);
        if (Terminated()) return;
        if (compterSeulement) {
            nombre_ = prevu;
            return;
        }
        if (limite != 0) prevu = std::min(prevu, limite);
        if (prevu > plafond)
            return refuser(PhraseTropLongue(prevu, travail.compteTout(), pas, octetsMax));
        puits().Reserver(static_cast<std::size_t>(prevu * pas));
    }

    LotMots lot(puits(), static_cast<std::size_t>(pas));
    travail.lister(inf_, sup_, [&](std::span<const Mot> mots) {
        const std::uint64_t place = prevu - nombre_;
        const std::uint64_t donnes = std::min<std::uint64_t>(mots.size() / pas, place);
        if (donnes < mots.size() / pas && limite == 0) {
            refuser("La liste a dépassé la longueur prévue : relancez le calcul.");
            return false;
        }
        lot.ajouter(mots.first(static_cast<std::size_t>(donnes * pas)));
        nombre_ += donnes;
        return nombre_ < prevu && !Terminated();
    });
    lot.vider();
}

void TRechercheBornes::Execute() {
    const Selection& s = contexte_.selection;
    const auto reserve = [&](const std::vector<int>& fixes, const std::vector<int>& numeros) {
        return TravailReserve(contexte_, disposition_, fixes, numeros, puits(), arret());
    };
    switch (domaine_) {
        case DomaineBornes::Tout:
            return mener(*TravailTout(contexte_, disposition_, false, puits(), arret()));
        case DomaineBornes::Series:
            return mener(*TravailTout(contexte_, disposition_, true, puits(), arret()));
        case DomaineBornes::Complement:
            return mener(*reserve(s.SelAbsolue, s.Complement));
        case DomaineBornes::Secondaire:
            return mener(*reserve(s.SelAbsolue, s.SelSecondaire));
        case DomaineBornes::Selection:
            return mener(*reserve({}, s.SelAbsolue));
    }
}

PtrFil<TRechercheBornes> CreerRechercheBornes(const ContexteComb& c, Puits& puits, int taille,
                                              int inf, int sup) {
    const auto creer = [&]<typename T>(std::type_identity<T>) {
        return PtrFil<TRechercheBornes>(new T(c, puits, taille, inf, sup));
    };
    const Selection& s = c.selection;
    if (s.vide())
        return c.series ? creer(std::type_identity<TCombNSuccBornesNewSearch>{})
                        : creer(std::type_identity<TCombNBornesNewSearch>{});
    if (s.NbSelAbsolue == taille) return nullptr;
    if (s.NbSelAbsolue > taille) return creer(std::type_identity<TCombinaisonNBornesSearch>{});
    return s.NbSelSecondaire > 0 ? creer(std::type_identity<TSelectNComplementaireBornesSearch>{})
                                 : creer(std::type_identity<TSelectNBornesSearch>{});
}

int JaugeBornes(const ContexteComb& c, int taille) {
    const int s = c.selection.NbSelAbsolue;
    if (c.selection.vide()) return JaugeExtremes(taille, c.series);
    if (taille > NbBoules) return GaugeCentieme;
    if (s >= taille) return s - 1;
    if (c.selection.NbSelSecondaire > 0) return std::max(c.selection.NbSelSecondaire - 1, 1);
    return NumeroMax - (s + 1);
}

Arene CombinaisonUnique(const ContexteComb& c, int inf, int sup) {
    const auto& selection = c.selection.SelAbsolue;
    const std::vector<Mot> numeros(selection.begin(), selection.end());
    const int taille = static_cast<int>(numeros.size());
    const Masque masque = Ensemble::de(selection).bits();
    const auto n = static_cast<int>(std::ranges::count_if(
        MasquesIntervalle(c), [&](Masque t) { return Compte(t, masque, taille); }));
    Arene liste{{taille, c.mode}, {}};
    if (n >= inf && n <= sup)
        liste.mots = Redacteur(c, liste.disposition).sansStatistiques(numeros, n);
    return liste;
}

}  // namespace norvane
