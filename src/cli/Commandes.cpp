// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commandes.h"

#include "CommandeAnalyses.h"
#include "CommandeBulletins.h"
#include "CommandeCombBornes.h"
#include "CommandeFiltre.h"
#include "CommandeHistorique.h"
#include "CommandeImporter.h"
#include "CommandeListe.h"
#include "CommandeNC.h"
#include "CommandeSystemes.h"

namespace norvane {

namespace {

/// A word that only leads to further commands.
CLI::App& Groupe(CLI::App& racine, const char* nom, const char* description) {
    CLI::App* groupe = racine.add_subcommand(nom, description);
    groupe->require_subcommand(1);
    return *groupe;
}

}  // namespace

std::vector<std::unique_ptr<Commande>> DeclarerCommandes(CLI::App& racine) {
    std::vector<std::unique_ptr<Commande>> commandes;
    commandes.push_back(std::make_unique<CommandeBase>(racine));
    commandes.push_back(std::make_unique<CommandeTirages>(racine));
    commandes.push_back(std::make_unique<CommandeFiltre>(racine));
    commandes.push_back(std::make_unique<CommandeImporter>(racine));
    CLI::App& stats =
        Groupe(racine, "stats", "Statistiques des numéros ou des chances sur l'intervalle");
    commandes.push_back(std::make_unique<CommandeStatsNumeros>(stats));
    commandes.push_back(std::make_unique<CommandeStatsChances>(stats));
    CLI::App& comb = Groupe(racine, "comb", "Combinaisons de 2 à 10 numéros sur l'intervalle");
    commandes.push_back(std::make_unique<CommandeCombExtremes>(comb));
    commandes.push_back(std::make_unique<CommandeCombBornes>(comb));
    commandes.push_back(std::make_unique<CommandeCombStats>(comb));
    commandes.push_back(std::make_unique<CommandeListeLire>(
        Groupe(racine, "liste", "Fichiers de listes de combinaisons (*.lst)")));
    commandes.push_back(std::make_unique<CommandeSelectionLire>(
        Groupe(racine, "selection", "Fichiers de sélections de numéros (*.slt)")));
    CLI::App& regles = Groupe(racine, "regles", "Règles des mises et des gains, sans la base");
    for (const CommandeRegle::Regle& regle : CommandeRegle::regles())
        commandes.push_back(std::make_unique<CommandeRegle>(regles, regle));
    commandes.push_back(std::make_unique<CommandeReglesJoker>(regles));
    commandes.push_back(std::make_unique<CommandeVerifier>(racine));
    commandes.push_back(std::make_unique<CommandeBilan>(racine));
    commandes.push_back(std::make_unique<CommandeAleatoire>(racine));
    CLI::App& nc = Groupe(racine, "nc", "Grilles de numéros et de chances sur l'intervalle");
    commandes.push_back(std::make_unique<CommandeNcTable>(nc));
    commandes.push_back(std::make_unique<CommandeNcListe>(nc));
    for (const CommandeNcFiltre::Filtre& filtre : CommandeNcFiltre::filtres())
        commandes.push_back(std::make_unique<CommandeNcFiltre>(nc, filtre));
    commandes.push_back(std::make_unique<CommandeNcJamais>(nc));
    commandes.push_back(std::make_unique<CommandeBulletins>(racine));
    commandes.push_back(std::make_unique<CommandeAnalyses>(racine));
    CLI::App& historique =
        Groupe(racine, "historique", "Les tirages de l'intervalle où un numéro ou une chance sort");
    for (const GenreStats genre : {GenreStats::Numeros, GenreStats::Chances})
        commandes.push_back(std::make_unique<CommandeHistorique>(historique, genre));
    CLI::App& systemes = Groupe(racine, "systemes", "Systèmes réducteurs");
    commandes.push_back(std::make_unique<CommandeSystemesCatalogue>(systemes));
    commandes.push_back(std::make_unique<CommandeSystemesGenerer>(systemes));
    commandes.push_back(std::make_unique<CommandeSystemesLire>(systemes));
    commandes.push_back(std::make_unique<CommandeSystemesVerifier>(systemes));
    return commandes;
}

}  // namespace norvane
