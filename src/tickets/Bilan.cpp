// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/Bilan.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <future>
#include <iterator>
#include <thread>

#include "base/Textes.h"
#include "Cumulateur.h"
#include "Redaction.h"
#include "stats/TableauStats.h"

namespace norvane {

namespace {

// A block takes well under a millisecond. The cut is fixed, so that sums by block do not depend
// on the number of threads.
constexpr std::size_t GrillesParBloc = 16;

std::size_t NombreBlocs(std::span<const Grille> grilles) {
    return (grilles.size() + GrillesParBloc - 1) / GrillesParBloc;
}

/// Calls traiter(bloc, k) for each ticket k, blocks shared out among threads. False when stopped.
template <typename Traiter>
bool ParBlocs(std::span<const Grille> grilles, const SuiviBilan& suivi, Traiter traiter) {
    const std::size_t nbBlocs = NombreBlocs(grilles);
    std::atomic<std::size_t> suivant = 0;
    const auto travailler = [&](bool raconte) {
        for (int dit = 0;;) {
            const std::size_t bloc = suivant.fetch_add(1);
            if (bloc >= nbBlocs || suivi.arret.stop_requested()) return;
            const int pourcent = static_cast<int>(bloc * 100 / nbBlocs);
            if (raconte && pourcent > dit) suivi.progres(dit = pourcent);
            const std::size_t debut = bloc * GrillesParBloc;
            const std::size_t fin = std::min(debut + GrillesParBloc, grilles.size());
            for (std::size_t k = debut; k < fin; ++k) traiter(bloc, k);
        }
    };
    if (suivi.progres) suivi.progres(0);
    const std::size_t fils =
        suivi.fils > 0 ? suivi.fils : std::max(1U, std::thread::hardware_concurrency());
    std::vector<std::future<void>> autres;
    for (std::size_t f = 1; f < std::min(fils, nbBlocs); ++f)
        autres.push_back(std::async(std::launch::async, travailler, false));
    travailler(static_cast<bool>(suivi.progres));
    for (auto& autre : autres) autre.get();
    return !suivi.arret.stop_requested();
}

/// What one block of tickets gives to the report.
struct Partie {
    std::string texte;
    double investi = 0, gagne = 0;  ///< euros
};

class Redacteur {
 public:
    Redacteur(const Cumulateur& cumulateur, const Monnaie& monnaie)
        : cumulateur_(cumulateur), monnaie_(monnaie) {}

    void ajouter(std::size_t k, const Grille& grille, Partie& partie) const {
        const BilanGrille bilan = cumulateur_.cumuler(grille);
        const double investi =
            Convertir(grille[0] * static_cast<double>(cumulateur_.nbTirages()), monnaie_.taux)
                .enEuros();

        partie.texte += LigneGrille(k + 1, grille, monnaie_);
        fmt::format_to(std::back_inserter(partie.texte),
                       "Pour {}{} sur toute la période; Investissement= {}\n"
                       "\nDétail des rangs de gain :\n",
                       FormaterMontant(Convertir(grille[0], monnaie_.taux).enEuros()),
                       LibelleMonnaie(monnaie_.symbole, grille[0] == 1), montantEtFrancs(investi));
        double gagne = 0;
        if (cumulateur_.avecPremierTirage())
            gagne += redigerRangs(bilan.BilanRangs, LibellesRangLoto, partie.texte);
        if (cumulateur_.avecSecondTirage()) {
            partie.texte += "Option 2nd Tirage :\n";
            gagne += redigerRangs(bilan.Bilan2nd, LibellesRang2nd, partie.texte);
        }
        fmt::format_to(std::back_inserter(partie.texte),
                       "Total des gains pour tous les rangs de la grille {} = {}\n\n", k + 1,
                       montantEtFrancs(gagne));
        partie.investi += investi;
        partie.gagne += gagne;
    }

    /// "1 234,56 Euros  (8 098,18 F)", with two blanks.
    std::string montantEtFrancs(double montant) const {
        return fmt::format("{}  ({} F)",
                           LibelleMontant(montant, monnaie_.symbole, monnaie_.taux, false),
                           FormaterMontant(Convertir(montant, monnaie_.taux).enFrancs()));
    }

 private:
    /// All ranks, won or not; gives back the sum.
    template <typename Cumuls, typename Libelles>
    double redigerRangs(const Cumuls& cumuls, const Libelles& libelles, std::string& texte) const {
        double somme = 0;
        for (std::size_t rang = 0; rang < cumuls.size(); ++rang) {
            fmt::format_to(
                std::back_inserter(texte), "{}{} fois ; gain= {}\n", libelles[rang],
                cumuls[rang].fois,
                LibelleMontant(cumuls[rang].gain, monnaie_.symbole, monnaie_.taux, false));
            somme += cumuls[rang].gain;
        }
        return somme;
    }

    const Cumulateur& cumulateur_;
    const Monnaie& monnaie_;
};

}  // namespace

std::optional<std::vector<BilanGrille>> CumulerGains(const Base& base, int premier, int dernier,
                                                     std::span<const Grille> grilles,
                                                     const SuiviBilan& suivi) {
    const Cumulateur cumulateur(base, premier, dernier, grilles);
    std::vector<BilanGrille> bilans(grilles.size());
    if (!ParBlocs(grilles, suivi, [&](std::size_t /*bloc*/, std::size_t k) {
            bilans[k] = cumulateur.cumuler(grilles[k]);
        }))
        return std::nullopt;
    if (suivi.progres) suivi.progres(100);
    return bilans;
}

std::optional<std::string> RedigerBilan(const Base& base, int premier, int dernier,
                                        std::span<const Grille> grilles, const Monnaie& monnaie,
                                        const SuiviBilan& suivi) {
    const Cumulateur cumulateur(base, premier, dernier, grilles);
    const Redacteur redacteur(cumulateur, monnaie);
    std::vector<Partie> parties(NombreBlocs(grilles));
    if (!ParBlocs(grilles, suivi, [&](std::size_t bloc, std::size_t k) {
            redacteur.ajouter(k, grilles[k], parties[bloc]);
        }))
        return std::nullopt;

    std::string texte =
        LibelleIntervalle(base, premier, dernier) +
        "\n\n\n\nBILAN DES GAINS (pour toutes les combinaisons et tous les rangs de gain) :\n\n";
    double investi = 0, gagne = 0;
    for (const Partie& partie : parties) {
        texte += partie.texte;
        investi += partie.investi;
        gagne += partie.gagne;
    }
    if (grilles.size() > 1)
        texte +=
            "\nInvestissement total pour toutes les grilles = " +
            redacteur.montantEtFrancs(investi) +
            "\n\n\nCumul des gains de toutes les grilles = " + redacteur.montantEtFrancs(gagne);
    if (suivi.progres) suivi.progres(100);
    return texte;
}

}  // namespace norvane
