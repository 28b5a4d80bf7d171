// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "TravauxBornes.h"

#include <algorithm>
#include <atomic>
#include <numeric>
#include <optional>

#include "Arbre.h"
#include "EnOrdre.h"
#include "Residus.h"

namespace norvane {

namespace {

/// Sizes 1 to 5 from an alphabet, with or without fixed numbers in front.
class TravailListes final : public TravailBornes {
 public:
    TravailListes(const ContexteComb& c, Disposition d, std::vector<int> fixes, Domaine domaine,
                  Puits& p, std::stop_token a)
        : TravailBornes(c, d, p, std::move(a)),
          fixes_(std::move(fixes)),
          domaine_(std::move(domaine)),
          branches_(Branches(domaine_, true)),
          redacteur_(c, d) {}

    std::uint64_t compter(int inf, int sup, std::uint64_t /*plafond*/) override {
        std::atomic<std::uint64_t> total = 0;
        Repartir(branches_.size(), NombreFils(contexte), [&](unsigned, auto suivante) {
            Marcheur<false> marcheur(contexte.base, contexte.occurrences, domaine_);
            std::uint64_t n = 0;
            for (std::size_t i = suivante(); i < branches_.size(); i = suivante()) {
                if (arret.stop_requested()) return;
                marcheur.parcourir(branches_[i], inf, [&](const auto& feuille) {
                    for (std::size_t j = feuille.premier; j < domaine_.alphabet.size(); ++j) {
                        const int c = feuille.rangee[colonne(j)];
                        n += static_cast<std::uint64_t>(c >= inf && c <= sup);
                    }
                });
            }
            total += n;
        });
        return total;
    }

    bool compteTout() const override { return true; }

    void lister(int inf, int sup, const Recevoir& recevoir) override {
        EnOrdre(
            branches_.size(), NombreFils(contexte), arret, [&] { return Ouvrier(*this, inf, sup); },
            [&](std::size_t i, Ouvrier& ouvrier) {
                const int place = static_cast<int>(branches_[i].choix[0]) + 1;
                if (place > place_) puits.SetProgress(place_ = place);
                return ouvrier.mots.empty() || recevoir(ouvrier.mots);
            });
    }

 private:
    struct Ouvrier {
        Ouvrier(const TravailListes& t, int inf, int sup)
            : travail(t),
              marcheur(t.contexte.base, t.contexte.occurrences, t.domaine_),
              inf_(inf),
              sup_(sup) {}
        bool produire(std::size_t i) {
            mots.clear();
            marcheur.parcourir(travail.branches_[i], inf_,
                               [&](const auto& feuille) { ajouter(feuille); });
            return true;
        }
        template <typename Feuille>
        void ajouter(const Feuille& feuille) {
            const auto& alphabet = travail.domaine_.alphabet;
            std::array<Mot, TailleCombMax> numeros{};
            const std::size_t taille = travail.fixes_.size() + feuille.choix.size() + 1;
            for (std::size_t j = feuille.premier; j < alphabet.size(); ++j) {
                const std::size_t k = travail.colonne(j);
                const int c = feuille.rangee[k];
                if (c < inf_ || c > sup_) continue;
                std::size_t n = 0;
                for (const std::size_t i : feuille.choix)
                    numeros[n++] = static_cast<Mot>(alphabet[i]);
                numeros[n++] = static_cast<Mot>(alphabet[j]);
                if (!travail.fixes_.empty()) {
                    for (const int f : travail.fixes_) numeros[n++] = static_cast<Mot>(f);
                    std::sort(numeros.begin(), numeros.begin() + static_cast<std::ptrdiff_t>(n));
                }
                travail.redacteur_.ajouter(
                    mots, {numeros.data(), taille},
                    c == 0 ? ListeTirages{} : feuille.listes(k, feuille.rangee));
            }
        }
        const TravailListes& travail;
        Marcheur<true> marcheur;
        std::vector<Mot> mots;
        const int inf_;
        const int sup_;
    };

    std::size_t colonne(std::size_t j) const {
        return static_cast<std::size_t>(domaine_.alphabet[j] - 1);
    }

    const std::vector<int> fixes_;
    const Domaine domaine_;
    const std::vector<Branche> branches_;
    const Redacteur redacteur_;
    int place_ = -1;
};

/// The 50 - N runs of consecutive numbers.
class TravailSeries final : public TravailBornes {
 public:
    using TravailBornes::TravailBornes;

    std::uint64_t compter(int inf, int sup, std::uint64_t /*plafond*/) override {
        std::uint64_t n = 0;
        parcourir(inf, sup, [&](Masque, ListeTirages) { return ++n > 0; });
        return n;
    }

    void lister(int inf, int sup, const Recevoir& recevoir) override {
        const Redacteur redacteur(contexte, disposition);
        parcourir(inf, sup, [&](Masque serie, ListeTirages liste) {
            std::vector<Mot> mots;
            redacteur.ajouter(mots, NumerosTries(Ensemble(serie)), liste);
            return recevoir(mots);
        });
    }

 private:
    template <typename Visite>
    void parcourir(int inf, int sup, Visite visite) {
        const auto masques = MasquesIntervalle(contexte);
        const int taille = disposition.taille;
        for (int a = 1; a + taille - 1 <= NumeroMax && !arret.stop_requested(); ++a) {
            puits.SetProgress(a);
            const Masque serie = ((Masque{1} << taille) - 1) << (a - 1);
            ListeOccurrences liste;
            for (std::size_t d = 0; d < masques.size(); ++d)
                if (Compte(masques[d], serie, taille))
                    liste.push_back(static_cast<Occurrence>(
                        d + static_cast<std::size_t>(contexte.IntervalleInf - 1)));
            const int c = static_cast<int>(liste.size());
            if (c >= inf && c <= sup && !visite(serie, liste)) return;
        }
    }
};

/// Sizes 6 to 10 over all numbers.
class TravailGrand final : public TravailBornes {
 public:
    using TravailBornes::TravailBornes;

    std::uint64_t compter(int inf, int sup, std::uint64_t plafond) override {
        return CompterBornesGrandeTaille(TiragesIntervalle(contexte), disposition.taille, inf, sup,
                                         plafond, arret);
    }

    void lister(int inf, int sup, const Recevoir& recevoir) override {
        const Redacteur redacteur(contexte, disposition);
        std::vector<Mot> mots;
        ListeOccurrences liste;
        const auto premier = static_cast<std::size_t>(contexte.IntervalleInf - 1);
        ListerBornesGrandeTaille(TiragesIntervalle(contexte), disposition.taille, inf, sup,
                                 NombreFils(contexte), arret, JaugePartagee(puits),
                                 [&](Masque m, std::span<const std::uint16_t> places) {
                                     liste.clear();
                                     for (const std::uint16_t p : places)
                                         liste.push_back(static_cast<Occurrence>(p + premier));
                                     mots.clear();
                                     redacteur.ajouter(mots, NumerosTries(Ensemble(m)), liste);
                                     return recevoir(mots);
                                 });
    }
};

/// Sizes 6 to 10 made of fixed numbers and a choice of others.
class TravailResidus final : public TravailBornes {
 public:
    TravailResidus(const ContexteComb& c, Disposition d, const std::vector<int>& fixes,
                   const std::vector<int>& reserve, Puits& p, std::stop_token a)
        : TravailBornes(c, d, p, std::move(a)),
          fixes_(Ensemble::de(fixes).bits()),
          permis_(fixes_ | Ensemble::de(reserve).bits()),
          residus_(MasquesIntervalle(c), fixes, reserve, d.taille - static_cast<int>(fixes.size())),
          redacteur_(c, d) {}

    std::uint64_t compter(int inf, int sup, std::uint64_t plafond) override {
        if (!parmiToutes(inf, sup)) return residus_.compter(inf, sup, plafond, arret);
        std::uint64_t n = 0;
        PuitsMuet muet;
        listerParmiToutes(inf, sup, muet,
                          [&](Masque, std::span<const std::uint16_t>) { return ++n <= plafond; });
        return n;
    }

    void lister(int inf, int sup, const Recevoir& recevoir) override {
        std::vector<Mot> mots;
        ListeOccurrences liste;
        const auto premier = static_cast<std::size_t>(contexte.IntervalleInf - 1);
        const auto rediger = [&](Masque m, std::span<const std::uint16_t> places) {
            liste.clear();
            for (const std::uint16_t p : places)
                liste.push_back(static_cast<Occurrence>(p + premier));
            mots.clear();
            redacteur_.ajouter(mots, NumerosTries(Ensemble(m | fixes_)), liste);
            return recevoir(mots);
        };
        if (parmiToutes(inf, sup)) return listerParmiToutes(inf, sup, puits, rediger);
        residus_.lister(inf, sup, arret, JaugePartagee(puits), rediger);
    }

 private:
    /// With many choices and few combinations that reach `inf` at all, it is faster to find those
    /// among all numbers and to keep the ones within the selection. Measured: a hundred million
    /// choices take about a second and a half.
    bool parmiToutes(int inf, int sup) {
        constexpr std::uint64_t ChoixMax = 100'000'000;
        constexpr std::uint64_t ToutesMax = 2'000'000;
        if (!parmiToutes_)
            parmiToutes_ =
                inf >= 2 && residus_.choixPossibles() > ChoixMax &&
                CompterBornesGrandeTaille(TiragesIntervalle(contexte), disposition.taille, inf, sup,
                                          ToutesMax, arret) <= ToutesMax;
        return *parmiToutes_;
    }

    template <typename Visite>
    void listerParmiToutes(int inf, int sup, Puits& jauge, Visite visite) {
        ListerBornesGrandeTaille(TiragesIntervalle(contexte), disposition.taille, inf, sup,
                                 NombreFils(contexte), arret, JaugePartagee(jauge),
                                 [&](Masque m, std::span<const std::uint16_t> places) {
                                     const bool dedans = (fixes_ & ~m) == 0 && (m & ~permis_) == 0;
                                     return !dedans || visite(m, places);
                                 });
    }

    const Masque fixes_;
    const Masque permis_;
    const Residus residus_;
    const Redacteur redacteur_;
    std::optional<bool> parmiToutes_;
};

/// The list of each number of the reserve among the draws that hold all fixed ones.
std::vector<ListeTirages> RacinesReserve(const ContexteComb& c, const std::vector<int>& fixes,
                                         const std::vector<int>& reserve) {
    const Selection& s = c.selection;
    if (fixes.empty())
        return ListesNumeros(c.occurrences, reserve, c.IntervalleInf, c.IntervalleSup);
    const auto& listes = reserve == s.SelSecondaire ? s.ListesSecondaire : s.ListesComplement;
    return {listes.begin(), listes.end()};
}

}  // namespace

Redacteur::Redacteur(const ContexteComb& c, Disposition d)
    : disposition_(d),
      modele_(static_cast<std::size_t>(d.mots())),
      inf_(c.IntervalleInf),
      sup_(c.IntervalleSup),
      jamais_(StatistiquesListe({}, inf_, sup_)) {
    for (int bloc = 0; bloc < d.blocs(); ++bloc)
        if (bloc * MotsParBloc != d.premierRang())
            modele_[static_cast<std::size_t>(bloc * MotsParBloc + 1)] = RangNonCalcule;
}

void Redacteur::ajouter(std::vector<Mot>& mots, std::span<const Mot> numeros,
                        ListeTirages liste) const {
    const StatsBreves s = liste.empty() ? jamais_ : StatistiquesListe(liste, inf_, sup_);
    const std::size_t debut = mots.size();
    mots.insert(mots.end(), modele_.begin(), modele_.end());
    Mot* bloc = mots.data() + debut + disposition_.premierRang();
    bloc[0] = static_cast<Mot>(liste.size());
    bloc[1] = s.Ecart;
    bloc[2] = s.EcartMax;
    bloc[3] = s.Suite;
    bloc[4] = s.SuiteMax;
    std::copy(numeros.begin(), numeros.end(), mots.data() + debut + disposition_.numeros());
}

std::vector<Mot> Redacteur::sansStatistiques(std::span<const Mot> numeros, int nbFois) const {
    std::vector<Mot> mots = modele_;
    mots[static_cast<std::size_t>(disposition_.premierRang())] = static_cast<Mot>(nbFois);
    std::copy(numeros.begin(), numeros.end(), mots.begin() + disposition_.numeros());
    return mots;
}

std::unique_ptr<TravailBornes> TravailTout(const ContexteComb& c, Disposition d, bool series,
                                           Puits& puits, std::stop_token arret) {
    if (series) return std::make_unique<TravailSeries>(c, d, puits, std::move(arret));
    if (d.taille > NbBoules) return std::make_unique<TravailGrand>(c, d, puits, std::move(arret));
    std::vector<int> tous(NumeroMax);
    std::iota(tous.begin(), tous.end(), 1);
    return TravailReserve(c, d, {}, std::move(tous), puits, std::move(arret));
}

std::unique_ptr<TravailBornes> TravailReserve(const ContexteComb& c, Disposition d,
                                              std::vector<int> fixes, std::vector<int> reserve,
                                              Puits& puits, std::stop_token arret) {
    if (d.taille > NbBoules)
        return std::make_unique<TravailResidus>(c, d, fixes, reserve, puits, std::move(arret));
    auto racines = RacinesReserve(c, fixes, reserve);
    const int profondeur = d.taille - static_cast<int>(fixes.size());
    return std::make_unique<TravailListes>(
        c, d, std::move(fixes), Domaine{std::move(reserve), std::move(racines), profondeur}, puits,
        std::move(arret));
}

}  // namespace norvane
