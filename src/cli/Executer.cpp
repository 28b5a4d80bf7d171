// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Executer.h"

#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <ostream>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "Aide.h"
#include "Commandes.h"
#include "Options.h"
#include "Phrases.h"
#include "Progression.h"

namespace norvane {

namespace {

constexpr const char* NomProgramme = "norvane-cli";

void DeclarerOptions(CLI::App& app, OptionsGlobales& options) {
    app.set_help_flag("--help", "Affiche cette aide");
    app.set_version_flag("--version", fmt::format("{} {}", NomProgramme, NORVANE_VERSION),
                         "Affiche la version");
    app.add_option("--base", options.base,
                   "Base des tirages, *.db ou *.csv ; par défaut norvane.db du dossier\n"
                   "courant s'il existe, sinon la base intégrée")
        ->type_name("FICHIER");
    app.add_flag("--globale", options.globale,
                 "Base intégrée : avec les tirages de l'ancien jeu, depuis 1976")
        ->disable_flag_override();
    AjouterEntier(app, "--de", options.de, "Premier tirage de l'intervalle ; par défaut 1");
    AjouterEntier(app, "--a", options.a, "Dernier tirage de l'intervalle ; par défaut le dernier");
}

/// The innermost command that the line names.
const CLI::App& CommandeNommee(const CLI::App& racine) {
    const CLI::App* app = &racine;
    while (!app->get_subcommands().empty()) app = app->get_subcommands().front();
    return *app;
}

/// What is wrong with the line, in French: the parser's own sentences are not shown.
std::string RaisonUsage(const CLI::App& racine, const CLI::ParseError& erreur) {
    const auto restants = racine.remaining(true);
    if (!restants.empty()) {
        const std::string& mot = restants.front();
        const std::string option = mot.substr(0, mot.find('='));
        if (option.starts_with("--") && racine.get_option_no_throw(option) != nullptr)
            return fmt::format("l'option globale {} se place avant la commande", option);
        return fmt::format("argument inattendu « {} »", mot);
    }
    const std::string_view texte = erreur.what();  // begins with the option's name
    const std::string nom(texte.substr(0, texte.find_first_of(": ")));
    if (dynamic_cast<const CLI::RequiredError*>(&erreur) != nullptr)
        return CommandeNommee(racine).get_option_no_throw(nom) == nullptr
                   ? "il manque la commande"
                   : fmt::format("il manque l'argument {}", nom);
    if (dynamic_cast<const CLI::ValidationError*>(&erreur) != nullptr)
        return fmt::format("{} {} :{}", nom.starts_with('-') ? "option" : "argument", nom,
                           texte.substr(std::min(nom.size() + 1, texte.size())));
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&erreur) != nullptr)
        return fmt::format("option {}{} : nombre de valeurs incorrect",
                           nom.starts_with('-') ? "" : "--", nom);
    return fmt::format("option {} mal employée", nom);
}

int Refuser(std::ostream& err, std::string_view phrase) {
    EcrirePhrase(err, phrase);
    return StatutRefus;
}

/// Writes a text to its end, or tells that `quoi` was not.
int Sortir(std::ostream& out, std::ostream& err, std::string_view texte, std::string_view quoi) {
    out << texte << std::flush;
    if (!out) return Refuser(err, fmt::format("{} sur la sortie standard.", quoi));
    return StatutFait;
}

int ExecuterCommande(Commande& commande, const Contexte& contexte, std::ostream& out,
                     std::ostream& err) {
    std::ostringstream tampon;  // nothing reaches the output of a command that fails half-way
    const auto fait = commande.executer(contexte, tampon);
    contexte.progression.effacer();
    if (!fait) return Refuser(err, fait.erreur());
    return Sortir(out, err, std::move(tampon).str(), "Les résultats n'ont pas pu être écrits");
}

int Analyser(std::span<const std::string> args, std::ostream& out, std::ostream& err,
             const std::filesystem::path& repertoire) {
    CLI::App racine{"Les calculs de Norvane en ligne de commande, sur la base des tirages du Loto.",
                    NomProgramme};
    Contexte contexte{{}, repertoire, out, err, Progression(err)};
    racine.formatter(std::make_shared<Aide>());
    racine.require_subcommand(1);
    DeclarerOptions(racine, contexte.options);
    const auto commandes = DeclarerCommandes(racine);

    try {
        racine.parse(std::vector<std::string>(args.rbegin(), args.rend()));
    } catch (const CLI::CallForHelp&) {
        return Sortir(out, err, CommandeNommee(racine).help(), "L'aide n'a pas pu être écrite");
    } catch (const CLI::CallForVersion& version) {
        return Sortir(out, err, fmt::format("{}\n", version.what()),
                      "La version n'a pas pu être écrite");
    } catch (const CLI::ParseError& erreur) {
        EcrirePhrase(err, fmt::format("{} : {}", NomProgramme, RaisonUsage(racine, erreur)));
        err << LigneUsage(CommandeNommee(racine)) << '\n';
        return StatutUsage;
    }
    const auto choisie = std::find_if(commandes.begin(), commandes.end(),
                                      [](const auto& commande) { return commande->choisie(); });
    return ExecuterCommande(**choisie, contexte, out, err);
}

}  // namespace

int Executer(std::span<const std::string> args, std::ostream& out, std::ostream& err,
             const std::filesystem::path& repertoire) {
    try {
        return Analyser(args, out, err, repertoire);
    } catch (const std::exception& erreur) {
        return Refuser(err, fmt::format("Arrêt sur une erreur interne : {}.", erreur.what()));
    }
}

}  // namespace norvane
