// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>
#include <fmt/ostream.h>

#include <ostream>

#include "comb/LigneCombinaison.h"
#include "comb/Reduction.h"
#include "comb/StatsCombinaison.h"
#include "Commandes.h"
#include "EtabliComb.h"
#include "Options.h"

namespace norvane {

namespace {

/// Keeps the results and shows how far the search is.
class CollecteMontree : public Collecte {
 public:
    CollecteMontree(Progression& progression, int max) : progression_(progression), max_(max) {}
    void SetProgress(int valeur) override { progression_.montrer(valeur, max_); }

 private:
    Progression& progression_;
    const int max_;
};

}  // namespace

CommandeCombExtremes::CommandeCombExtremes(CLI::App& comb)
    : Commande(comb.add_subcommand(
          "extremes", "Les combinaisons de N numéros les plus (et les moins) sorties")) {
    CLI::App& app = sousCommande();
    AjouterEntier(app, "N", taille_, "Numéros d'une combinaison, de 2 à 10")->required();
    app.add_flag("--series", series_, "Numéros consécutifs seulement")->disable_flag_override();
}

Resultat<Rien> CommandeCombExtremes::executer(const Contexte& contexte, std::ostream& out) {
    const auto taille = TailleComb(taille_);
    if (!taille) return Erreur{taille.erreur()};
    auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const EtabliComb atelier(*std::move(donnees));

    CollecteMontree collecte(contexte.progression, JaugeExtremes(*taille, series_));
    const auto fil = CreerRechercheExtremes(atelier.contexte(series_, ModeStockage::PremierRang),
                                            collecte, *taille);
    auto mene = Mener(*fil);
    if (!mene) return mene;
    const Extremes& e = fil->resultat();
    fmt::print(out, "{}\t{}\t{}\t{}\n", *taille, e.BorneInf, e.BorneSup, e.nombre);
    for (const auto& ligne : ReduireExtremes(collecte, *taille, e))
        out << LigneCombinaison(ligne) << '\n';
    return Rien{};
}

CommandeCombStats::CommandeCombStats(CLI::App& comb)
    : Commande(
          comb.add_subcommand("stats", "Les statistiques d'une combinaison, par bons numéros")) {
    sousCommande()
        .add_option("NUMEROS", numeros_, "Les numéros, de 2 à 10, séparés par des blancs")
        ->required();
}

Resultat<Rien> CommandeCombStats::executer(const Contexte& contexte, std::ostream& out) {
    const auto numeros = LireNumeros(numeros_, TailleCombMin, TailleCombMax);
    if (!numeros) return Erreur{numeros.erreur()};
    auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const EtabliComb atelier(*std::move(donnees));
    out << "k\tNbFois\tDate\tEcart\tEcartMax\tNbEcartMax\tPosEcartMax\tSuite\tSuiteMax\t"
           "NbSuiteMax\tPosSuiteMax\n";
    const std::vector<Mot> mots(numeros->begin(), numeros->end());
    for (const auto& ligne : StatsCombinaison(atelier.donnees.base, atelier.occurrences, mots,
                                              atelier.donnees.de, atelier.donnees.a)) {
        const ResultatStats& r = ligne.resultat;
        fmt::print(out, "{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\t{}\n", ligne.bons, ligne.NbFois,
                   ligne.date == 0 ? "-" : fmt::to_string(ligne.date), r.Ecart, r.EcartMax,
                   r.NbEcartMax, r.PosEcartMax, r.Suite, r.SuiteMax, r.NbSuiteMax, r.PosSuiteMax);
    }
    return Rien{};
}

}  // namespace norvane
