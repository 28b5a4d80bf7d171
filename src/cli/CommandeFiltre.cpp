// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeFiltre.h"

#include <algorithm>

#include "base/Filtre.h"
#include "base/TableCsv.h"

namespace norvane {

CommandeFiltre::CommandeFiltre(CLI::App& racine)
    : Commande(racine.add_subcommand("filtre", "Les tirages qu'un filtre *.flt garde, en CSV")) {
    sousCommande().add_option("FICHIER", fichier_, "Filtre de base *.flt")->required();
}

Resultat<Rien> CommandeFiltre::executer(const Contexte& contexte, std::ostream& out) {
    const auto criteres = OuvrirFiltre(contexte.repertoire / fichier_);
    if (!criteres) return Erreur{criteres.erreur()};
    auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const Base& base = donnees->base;
    const auto gardes = [&](int premier, int dernier) {
        return static_cast<int>(std::count_if(base.Tirages.begin() + premier,
                                              base.Tirages.begin() + dernier,
                                              [&](const Tirage& t) { return criteres->garde(t); }));
    };
    // The interval speaks of the whole base; what is kept of it has other numbers.
    const int avant = gardes(0, donnees->de - 1);
    const int dedans = gardes(donnees->de - 1, donnees->a);
    CopieBase copie;
    const IssueFiltre issue = FiltrerBase(donnees->base, *criteres, copie);
    if (issue != IssueFiltre::Applique) return Erreur{MessageRefus(issue).phrase};
    EcrireTableCsv(out, base, avant, avant + dedans - 1);
    return Rien{};
}

}  // namespace norvane
