// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/ostream.h>

#include <ostream>
#include <span>

#include "Commandes.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"

namespace norvane {

namespace {

void EcrireStats(std::ostream& out, std::span<const ListeOccurrences> listes, int premier,
                 int dernier) {
    out << "n\tSorties\tEcart\tEcartMax\tNbEcartMax\tPosEcartMax\tSuite\tSuiteMax\tNbSuiteMax\t"
           "PosSuiteMax\tEcartPrec\tSuitePrec\tSommeEcarts\n";
    for (std::size_t k = 0; k < listes.size(); ++k) {
        const ResultatStats r = StatsIntervalle(listes[k], premier, dernier);
        fmt::print(out, "{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\n", k + 1, r.Sorties,
                   r.Ecart, r.EcartMax, r.NbEcartMax, r.PosEcartMax, r.Suite, r.SuiteMax,
                   r.NbSuiteMax, r.PosSuiteMax, r.EcartPrec, r.SuitePrec, r.SommeEcarts);
    }
}

template <typename Listes>
Resultat<Rien> EcrireListe(const Contexte& contexte, std::ostream& out,
                           Listes Occurrences::*listes) {
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    Occurrences occurrences;
    ConstruireOccurrences(donnees->base, occurrences);
    EcrireStats(out, occurrences.*listes, donnees->de - 1, donnees->a - 1);
    return Rien{};
}

}  // namespace

CommandeStatsNumeros::CommandeStatsNumeros(CLI::App& stats)
    : Commande(stats.add_subcommand("numeros", "Les douze résultats de chacun des 49 numéros")) {}

Resultat<Rien> CommandeStatsNumeros::executer(const Contexte& contexte, std::ostream& out) {
    return EcrireListe(contexte, out, &Occurrences::ListeNumeros);
}

CommandeStatsChances::CommandeStatsChances(CLI::App& stats)
    : Commande(stats.add_subcommand("chances", "Les douze résultats de chacune des 10 chances")) {}

Resultat<Rien> CommandeStatsChances::executer(const Contexte& contexte, std::ostream& out) {
    return EcrireListe(contexte, out, &Occurrences::ListeChances);
}

}  // namespace norvane
