// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "TravauxBornes.h"

#include <algorithm>
#include <atomic>
#include <numeric>

#include "Arbre.h"
#include "EnOrdre.h"
#include "IndexTirages.h"

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
          pieces_(pieces()),
          fils_(static_cast<unsigned>(
              std::min<std::size_t>(NombreFils(c), std::max<std::size_t>(nombrePieces(), 1)))),
          redacteur_(c, d) {}

    Prevision prevoir(int inf, int sup) override {
        std::atomic<std::uint64_t> total = 0;
        Repartir(nombrePieces(), fils_, [&](unsigned, auto suivante) {
            Marcheur<false> marcheur(contexte.base, contexte.occurrences, domaine_);
            std::uint64_t n = 0;
            for (std::size_t i = suivante(); i < nombrePieces(); i = suivante())
                for (const Branche& branche : piece(i)) {
                    if (arret.stop_requested()) return;
                    marcheur.parcourir(branche, inf, [&](const auto& feuille) {
                        for (std::size_t j = feuille.premier; j < domaine_.alphabet.size(); ++j) {
                            const int c = feuille.rangee[colonne(j)];
                            n += static_cast<std::uint64_t>(c >= inf && c <= sup);
                        }
                    });
                }
            total += n;
        });
        return Prevision::exactement(total);
    }

    bool lister(const DemandeBornes& demande, const Recevoir& recevoir) override {
        return EnOrdre(
            nombrePieces(), fils_, arret, [&] { return Ouvrier(*this, demande.inf, demande.sup); },
            [&](std::size_t i, const Ouvrier& ouvrier) {
                puits.SetProgress(static_cast<int>(piece(i).back().choix[0]) + 1);
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
            for (const Branche& branche : travail.piece(i)) {
                if (travail.arret.stop_requested()) return false;
                marcheur.parcourir(branche, inf_, [&](const auto& feuille) { ajouter(feuille); });
            }
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

    /// Measured: below some hundred thousand combinations, which take milliseconds, a second thread
    /// brings less than it costs.
    std::vector<std::size_t> pieces() const {
        constexpr std::uint64_t Assez = 1 << 16;
        const auto n = static_cast<int>(domaine_.alphabet.size());
        return Couper(branches_.size(), Assez, [&](std::size_t i) {
            const auto longueur = static_cast<std::size_t>(branches_[i].longueur);
            const int derniere =
                longueur == 0 ? -1 : static_cast<int>(branches_[i].choix[longueur - 1]);
            return Binomial(n - 1 - derniere, domaine_.profondeur - static_cast<int>(longueur));
        });
    }
    std::size_t nombrePieces() const { return pieces_.size() - 1; }
    std::span<const Branche> piece(std::size_t i) const {
        return std::span(branches_).subspan(pieces_[i], pieces_[i + 1] - pieces_[i]);
    }

    const std::vector<int> fixes_;
    const Domaine domaine_;
    const std::vector<Branche> branches_;
    const std::vector<std::size_t> pieces_;  ///< first branch of each, and the end
    const unsigned fils_;
    const Redacteur redacteur_;
};

/// The 50 - N runs of consecutive numbers.
class TravailSeries final : public TravailBornes {
 public:
    using TravailBornes::TravailBornes;

    Prevision prevoir(int inf, int sup) override {
        std::uint64_t n = 0;
        parcourir(inf, sup, [&](Masque, ListeTirages) { return ++n > 0; });
        return Prevision::exactement(n);
    }

    bool lister(const DemandeBornes& demande, const Recevoir& recevoir) override {
        const Redacteur redacteur(contexte, disposition);
        std::vector<Mot> mots;
        return parcourir(demande.inf, demande.sup, [&](Masque serie, ListeTirages liste) {
            mots.clear();
            redacteur.ajouter(mots, NumerosTries(Ensemble(serie)), liste);
            return recevoir(mots);
        });
    }

 private:
    template <typename Visite>
    bool parcourir(int inf, int sup, Visite visite) {
        const auto masques = MasquesIntervalle(contexte);
        const int taille = disposition.taille;
        for (int a = 1; a + taille - 1 <= NumeroMax; ++a) {
            if (arret.stop_requested()) return false;
            puits.SetProgress(a);
            const Masque serie = ((Masque{1} << taille) - 1) << (a - 1);
            ListeOccurrences liste;
            for (std::size_t d = 0; d < masques.size(); ++d)
                if (Compte(masques[d], serie, taille))
                    liste.push_back(static_cast<Occurrence>(
                        d + static_cast<std::size_t>(contexte.IntervalleInf - 1)));
            const int c = static_cast<int>(liste.size());
            if (c >= inf && c <= sup && !visite(serie, liste)) return false;
        }
        return true;
    }
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
            modele_[static_cast<std::size_t>(bloc) * MotsParBloc + 1] = RangNonCalcule;
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
    std::vector<int> tous(NumeroMax);
    std::iota(tous.begin(), tous.end(), 1);
    return TravailReserve(c, d, {}, std::move(tous), puits, std::move(arret));
}

std::unique_ptr<TravailBornes> TravailReserve(const ContexteComb& c, Disposition d,
                                              std::vector<int> fixes, std::vector<int> reserve,
                                              Puits& puits, std::stop_token arret) {
    if (d.taille > NbBoules)
        return TravailGrandeTaille(c, d, fixes, reserve, puits, std::move(arret));
    auto racines = RacinesReserve(c, fixes, reserve);
    const int profondeur = d.taille - static_cast<int>(fixes.size());
    return std::make_unique<TravailListes>(
        c, d, std::move(fixes), Domaine{std::move(reserve), std::move(racines), profondeur}, puits,
        std::move(arret));
}

}  // namespace norvane
