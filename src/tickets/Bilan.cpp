// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/Bilan.h"

#include <fmt/format.h>

#include <algorithm>
#include <atomic>
#include <iterator>

#include "base/Repartition.h"
#include "base/Textes.h"
#include "Cumulateur.h"
#include "Redaction.h"
#include "stats/TableauStats.h"

namespace norvane {

namespace {

// A block takes well under a millisecond. The cut is fixed, so that sums by block do not depend
// on the number of threads.
constexpr std::size_t GrillesParBloc = 16;
constexpr std::size_t PourcentBlocs = 99;  ///< the last percent is that of the whole

std::size_t NombreBlocs(std::span<const Grille> grilles) {
    return (grilles.size() + GrillesParBloc - 1) / GrillesParBloc;
}

/// Calls traiter(bloc, k) for each ticket k, blocks shared out among threads. False when stopped.
template <typename Traiter>
bool ParBlocs(std::span<const Grille> grilles, const Suivi& suivi, Traiter traiter) {
    const std::size_t nbBlocs = NombreBlocs(grilles);
    std::atomic<std::size_t> faits = 0;
    const auto travailler = [&](unsigned /*fil*/, const auto& suivante) {
        for (std::size_t bloc = suivante(); bloc < nbBlocs && !suivi.arrete(); bloc = suivante()) {
            const std::size_t debut = bloc * GrillesParBloc;
            const std::size_t fin = std::min(debut + GrillesParBloc, grilles.size());
            for (std::size_t k = debut; k < fin; ++k) traiter(bloc, k);
            suivi.poser(static_cast<int>(++faits * PourcentBlocs / nbBlocs));
        }
    };
    const auto fils = static_cast<unsigned>(std::min<std::size_t>(suivi.nombreFils(), nbBlocs));
    Repartir(nbBlocs, fils, travailler);
    return !suivi.arrete();
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
            Convertir(grille.mise * static_cast<double>(cumulateur_.nbTirages()), monnaie_.taux)
                .enEuros();

        partie.texte += LigneGrille(k + 1, grille, monnaie_);
        fmt::format_to(std::back_inserter(partie.texte),
                       "Pour {}{} sur toute la période; Investissement= {}\n"
                       "\nDétail des rangs de gain :\n",
                       FormaterMontant(Convertir(grille.mise, monnaie_.taux).enEuros()),
                       LibelleMonnaie(monnaie_.symbole, grille.mise == 1),
                       montantEtFrancs(investi));
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

std::optional<std::string> RedigerBilan(const Base& base, int premier, int dernier,
                                        std::span<const Grille> grilles, const Monnaie& monnaie,
                                        const Suivi& suivi) {
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
    suivi.poser(100);
    return texte;
}

}  // namespace norvane
