// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/ostream.h>
#include <fmt/ranges.h>

#include <charconv>
#include <ostream>

#include "base/Dates.h"
#include "Commandes.h"
#include "Options.h"
#include "tickets/Rangs.h"

namespace norvane {

namespace {

using Valeurs = std::span<const int>;
using Argument = CommandeRegle::Argument;

template <typename Comptes>
std::string Texte(const std::optional<Comptes>& comptes) {
    return comptes ? fmt::format("{}", fmt::join(*comptes, " ")) : "aucun";
}

Resultat<std::string> Mise(Valeurs v, bool option2nd) {
    return fmt::format("{:g}", MiseGrille(v[0], v[1], option2nd));
}

Resultat<std::string> Rangs(Valeurs v, bool /*option*/) {
    if (!DateValide(v[4]))
        return Erreur{fmt::format("{} n'est pas une date de la forme aaaammjj.", v[4])};
    return Texte(RangsResultat(v[0], v[2], v[1], v[3], v[4]));
}

Resultat<std::string> Rangs2nd(Valeurs v, bool /*option*/) {
    return Texte(ChercherRangs2nd(v[0], v[1]));
}

Resultat<std::array<int, 7>> LireJoker(const std::string& texte) {
    const auto joker = LireChiffresJoker(texte);
    if (joker) return *joker;
    return Erreur{fmt::format("« {} » n'est pas un numéro Joker+ de sept chiffres.", texte)};
}

}  // namespace

std::span<const CommandeRegle::Regle> CommandeRegle::regles() {
    static const Argument n = {"N", "Numéros de la grille", 0, NumeroMax};
    static const Argument g = {"g", "Numéros de la grille parmi les cinq tirés", 0, NbBoules};
    static const std::array<Regle, 3> regles = {{
        {"mise",
         "La mise d'une grille de N numéros et C chances, en euros",
         {{"N", "Numéros de la grille", 0, 9}, {"C", "Chances de la grille", 0, ChanceMax}},
         "--2nd",
         "Avec l'option 2nd Tirage",
         Mise},
        {"rangs",
         "Les gains d'un résultat, rang par rang, à la date d'un tirage",
         {n,
          {"C", "Chances de la grille", 0, ChanceMax},
          g,
          {"gc", "Chances de la grille tirées", 0, 1},
          {"DATE", "Date du tirage, aaaammjj", 0, 9999'12'31}},
         nullptr,
         nullptr,
         Rangs},
        {"rangs2",
         "Les gains d'un résultat à un 2nd Tirage, rang par rang",
         {n, g},
         nullptr,
         nullptr,
         Rangs2nd},
    }};
    return regles;
}

CommandeRegle::CommandeRegle(CLI::App& groupe, const Regle& regle)
    : Commande(groupe.add_subcommand(regle.nom, regle.description)),
      regle_(regle),
      valeurs_(regle.arguments.size()) {
    for (std::size_t i = 0; i < valeurs_.size(); ++i)
        AjouterEntier(sousCommande(), regle.arguments[i].nom, valeurs_[i],
                      regle.arguments[i].description)
            ->required();
    if (regle.option != nullptr)
        sousCommande().add_flag(regle.option, option_, regle.sensOption)->disable_flag_override();
}

Resultat<Rien> CommandeRegle::executer(const Contexte& /*contexte*/, std::ostream& out) {
    std::vector<int> valeurs;
    for (std::size_t i = 0; i < valeurs_.size(); ++i) {
        const Argument& argument = regle_.arguments[i];
        const auto valeur = EntierDans(valeurs_[i], argument.nom, argument.min, argument.max);
        if (!valeur) return Erreur{valeur.erreur()};
        valeurs.push_back(*valeur);
    }
    const auto ligne = regle_.calculer(valeurs, option_);
    if (!ligne) return Erreur{ligne.erreur()};
    out << *ligne << '\n';
    return Rien{};
}

CommandeReglesJoker::CommandeReglesJoker(CLI::App& groupe)
    : Commande(groupe.add_subcommand(
          "joker",
          "Ce que gagne un numéro Joker+ : chiffres à gauche, à droite, tolérances, gain")) {
    CLI::App& app = sousCommande();
    app.add_option("JOUE", joue_, "Numéro joué, sept chiffres")->required();
    AjouterEntier(app, "CODE", code_, "Mise : 1 ou 2 pour 1 € ou 2 €, 3 ou 4 avec l'option +OU-1")
        ->required();
    app.add_option("TIRE", tire_, "Numéro tiré, sept chiffres")->required();
}

Resultat<Rien> CommandeReglesJoker::executer(const Contexte& /*contexte*/, std::ostream& out) {
    const auto joue = LireJoker(joue_);
    const auto tire = LireJoker(tire_);
    const auto code = EntierDans(code_, "CODE", 1, 4);
    for (const std::string* erreur :
         {joue ? nullptr : &joue.erreur(), code ? nullptr : &code.erreur(),
          tire ? nullptr : &tire.erreur()})
        if (erreur != nullptr) return Erreur{*erreur};
    const ResultatJoker r = GainJokerLigne({*joue, *code}, *tire);
    fmt::print(out, "{}\t{}\t{}\t{}\t{}\n", r.gauche, r.droite, r.toleranceGauche,
               r.toleranceDroite, r.gain());
    return Rien{};
}

}  // namespace norvane
