// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <chrono>
#include <limits>
#include <ostream>

#include "Commandes.h"
#include "Options.h"
#include "tickets/FichiersGrilles.h"
#include "tickets/GrillesHasard.h"

namespace norvane {

CommandeAleatoire::CommandeAleatoire(CLI::App& racine)
    : Commande(racine.add_subcommand("aleatoire",
                                     "Des grilles tirées au hasard, en liste de grilles (*.grl)")) {
    CLI::App& app = sousCommande();
    app.add_option("TYPE", type_, "Grilles à tirer, de \"05 + 01C\" à \"09 + 01C\"")->required();
    AjouterEntier(app, "NOMBRE", nombre_, "Combien de grilles, de 0 à 9999")->required();
    AjouterEntier(app, "--graine", graine_,
                  "Départ du hasard : le même donne les mêmes grilles ; par défaut l'heure");
}

Resultat<Rien> CommandeAleatoire::executer(const Contexte& /*contexte*/, std::ostream& out) {
    const auto type = LireType(type_);
    if (!type) return Erreur{type.erreur()};
    const auto nombre = EntierDans(nombre_, "NOMBRE", 0, NbGrillesMax);
    if (!nombre) return Erreur{nombre.erreur()};
    constexpr long graineMax = std::numeric_limits<std::uint32_t>::max();
    const long graine =
        graine_.value_or(std::chrono::system_clock::now().time_since_epoch().count() & graineMax);
    if (graine < 0 || graine > graineMax)
        return Erreur{fmt::format("--graine va de 0 à {}, pas {}.", graineMax, graine)};

    GenerateurHasard hasard(static_cast<std::uint32_t>(graine));
    std::vector<Grille> grilles;
    AjouterGrillesHasard(grilles, hasard, *type, *nombre);
    out << TexteGrilles(grilles);
    return Rien{};
}

}  // namespace norvane
