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

std::string Entier(std::uint64_t n) {
    return FormaterCompte(static_cast<std::int64_t>(n));
}

/// "38 Mo", rounded up.
std::string EnMegaoctets(std::uint64_t octets) {
    return Entier((octets + Mega - 1) / Mega) + " Mo";
}

/// Rounded to three figures, as far as an estimate goes.
std::uint64_t Arrondi(std::uint64_t n) {
    std::uint64_t pas = 1;
    while (n / pas >= 1000) pas *= 10;
    return (n + pas / 2) / pas * pas;
}

}  // namespace

/// Why a list is refused: "" or "environ " or "plus de " `nombre` combinations.
std::string TRechercheBornes::phraseTropLongue(const char* combien, std::uint64_t nombre,
                                               std::uint64_t octetsMax) const {
    const auto octets = [&](ModeStockage mode) {
        const Disposition d{disposition_.taille, mode, disposition_.gains};
        return nombre * static_cast<std::uint64_t>(d.mots()) * sizeof(Mot);
    };
    bool moinsDeRangs = false;
    for (const ModeStockage mode : {ModeStockage::PremierRang, ModeStockage::RangsDeGain})
        moinsDeRangs = moinsDeRangs || (mode < disposition_.mode && octets(mode) <= octetsMax);
    return fmt::format(
        "La liste compterait {}{} combinaisons, soit {}{}, et elle doit tenir dans {} (la moitié "
        "de la mémoire libre) : {}{}.",
        combien, Entier(nombre), combien, EnMegaoctets(octets(disposition_.mode)),
        EnMegaoctets(octetsMax),
        inf_ < sup_ ? "resserrez les bornes" : "choisissez d'autres bornes",
        moinsDeRangs ? " ou stockez moins de rangs" : "");
}

TRechercheBornes::TRechercheBornes(const ContexteComb& contexte, Puits& puits,
                                   DomaineBornes domaine, int taille, int inf, int sup)
    : TCombThread(puits, {GenreTravail::Bornes, taille, QuelleListe::Memoire}),
      contexte_(contexte),
      disposition_{taille, contexte.mode, contexte.gains},
      domaine_(domaine),
      inf_(inf),
      sup_(sup) {
    progres.commencer(JaugeBornes(contexte, taille));
}

void TRechercheBornes::mener(TravailBornes& travail) {
    if (compterSeulement) {
        nombre_ = travail.compter(inf_, sup_);
        complet_ = !Terminated();
        return;
    }
    const auto pas = static_cast<std::uint64_t>(disposition_.mots());
    std::uint64_t octetsMax = contexte_.octetsMax;
    if (octetsMax == 0) octetsMax = MemoireDisponible() / 2;
    // Where the system does not tell, the allocation itself refuses.
    const std::uint64_t plafond =
        octetsMax == 0 ? SansLimite / (4 * sizeof(Mot) * pas) : octetsMax / (pas * sizeof(Mot));
    const std::uint64_t demandes = limite == 0 ? SansLimite : limite;

    const Prevision prevision = travail.prevoir(inf_, sup_);
    if (Terminated()) return;
    if (std::min(prevision.minimum, demandes) > plafond) {
        const bool exacte = prevision.exacte();
        return refuser(phraseTropLongue(exacte ? "" : "environ ",
                                        exacte ? prevision.nombre : Arrondi(prevision.nombre),
                                        octetsMax));
    }
    puits().Reserver(
        static_cast<std::size_t>(std::min({prevision.maximum, demandes, plafond}) * pas));

    LotMots lot(puits(), static_cast<std::size_t>(pas));
    const bool fini = travail.lister({inf_, sup_, demandes}, [&](std::span<const Mot> mots) {
        const std::uint64_t donnes = std::min(mots.size() / pas, demandes - nombre_);
        if (nombre_ + donnes > plafond) {
            refuser(phraseTropLongue("plus de ", plafond, octetsMax));
            return false;
        }
        lot.ajouter(mots.first(static_cast<std::size_t>(donnes * pas)));
        nombre_ += donnes;
        return nombre_ < demandes && !Terminated();
    });
    lot.vider();
    complet_ = fini || nombre_ == demandes;
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
    Arene liste{{taille, c.mode, c.gains}, {}};
    if (n >= inf && n <= sup)
        liste.mots = Redacteur(c, liste.disposition).sansStatistiques(numeros, n);
    return liste;
}

}  // namespace norvane
