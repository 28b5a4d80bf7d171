// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Aide.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace norvane {

namespace {

/// Left column and explanation of each entry; an explanation may take several lines.
using Entrees = std::vector<std::pair<std::string, std::string>>;

std::string Section(std::string_view titre, const Entrees& entrees) {
    if (entrees.empty()) return {};
    std::size_t largeur = 0;
    for (const auto& [gauche, texte] : entrees) largeur = std::max(largeur, gauche.size());
    const std::string retrait = '\n' + std::string(largeur + 4, ' ');

    std::string section = fmt::format("\n{} :\n", titre);
    for (const auto& [gauche, texte] : entrees) {
        section += fmt::format("  {:<{}}  ", gauche, largeur);
        for (const char c : texte) section += c == '\n' ? retrait : std::string(1, c);
        section += '\n';
    }
    return section;
}

bool EstPositionnelle(const CLI::Option& option) {
    return option.get_positional();
}

bool EstInformation(const CLI::Option& option) {
    return option.get_name() == "--help" || option.get_name() == "--version";
}

}  // namespace

std::string LigneUsage(const CLI::App& commande) {
    std::vector<const CLI::App*> chaine;
    for (const CLI::App* app = &commande; app != nullptr; app = app->get_parent())
        chaine.insert(chaine.begin(), app);

    std::string ligne = "Usage :";
    for (const CLI::App* app : chaine) {
        ligne += ' ' + app->get_name();
        const auto options = app->get_options();
        if (std::any_of(options.begin(), options.end(), [](const CLI::Option* option) {
                return !EstPositionnelle(*option) && !EstInformation(*option);
            }))
            ligne += " [OPTIONS]";
        for (const CLI::Option* option : options)
            if (EstPositionnelle(*option)) ligne += ' ' + option->get_name(true);
    }
    if (!commande.get_subcommands({}).empty()) ligne += " COMMANDE";
    return ligne;
}

std::string Aide::make_help(const CLI::App* commande, std::string /*nom*/,
                            CLI::AppFormatMode /*mode*/) const {
    Entrees arguments, options, commandes;
    for (const CLI::Option* option : commande->get_options()) {
        const bool positionnelle = EstPositionnelle(*option);
        std::string gauche = option->get_name(positionnelle);
        if (!positionnelle && option->get_items_expected_max() > 0)
            gauche += ' ' + option->get_type_name();
        (positionnelle ? arguments : options).emplace_back(gauche, option->get_description());
    }
    for (const CLI::App* sous : commande->get_subcommands({}))
        commandes.emplace_back(sous->get_name(), sous->get_description());

    std::string aide =
        fmt::format("{}\n\n{}\n", commande->get_description(), LigneUsage(*commande));
    aide += Section("Arguments", arguments) + Section("Options", options) +
            Section("Commandes", commandes);
    if (commande->get_parent() != nullptr)
        aide += "\nLes options globales se placent avant la commande : norvane-cli --help.\n";
    return aide;
}

}  // namespace norvane
