// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <ostream>

#include "base/Dates.h"
#include "Commandes.h"
#include "Options.h"
#include "tickets/Bilan.h"
#include "tickets/FichiersGrilles.h"
#include "tickets/Verification.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

void AjouterFichier(CLI::App& app, std::string& fichier) {
    app.add_option("FICHIER", fichier, "Liste de grilles *.grl ou reçu de jeu *.rdj")->required();
}

/// Tickets of either kind of file; a list of grids has no Joker+ lines.
Resultat<RecuDeJeu> LireBillets(const fs::path& fichier) {
    const GenreBillets genre = GenreDuFichier(fichier);
    if (genre == GenreBillets::Recu) return ChargerRecu(fichier);
    if (genre == GenreBillets::Autre)
        return Erreur{
            fmt::format("« {} » n'est ni une liste de grilles ni un reçu : son nom doit finir par "
                        ".grl ou .rdj.",
                        fichier.string())};
    auto grilles = ChargerGrilles(fichier);
    if (!grilles) return Erreur{grilles.erreur()};
    return RecuDeJeu{*std::move(grilles), {}};
}

/// The money of NORVANE.INI in the current directory, or the default one.
Monnaie LireMonnaie(const Contexte& contexte) {
    const Reglages reglages = contexte.lireReglages();
    return {reglages.SymboleMonnaie, reglages.TauxConversion};
}

/// The first draw of the date that a receipt is named after.
Resultat<int> TirageDuRecu(const fs::path& fichier, const Base& base) {
    const auto date = DateRecu(fichier);
    if (!date)
        return Erreur{
            fmt::format("Le nom du reçu « {} » n'est pas une date aaaammjj : donnez le "
                        "numéro du tirage avec --tirage.",
                        fichier.string())};
    const int indice = TirageParDate(base.Tirages, *date, base.NbTirages).indice;
    if (indice < 0)
        return Erreur{fmt::format("La base n'a aucun tirage à la date du reçu « {} », {}.",
                                  fichier.string(), DateLongue(*date))};
    return indice + 1;
}

/// The draw that the tickets are checked against, one-based.
Resultat<int> ChoisirTirage(std::optional<long> tirage, const fs::path& fichier, const Base& base) {
    if (!tirage && GenreDuFichier(fichier) != GenreBillets::Recu)
        return Erreur{
            "Une liste de grilles n'a pas de date : donnez le numéro du tirage avec "
            "--tirage."};
    if (!tirage) return TirageDuRecu(fichier, base);
    return EntierDans(tirage, "--tirage", 1, base.NbTirages);
}

}  // namespace

CommandeVerifier::CommandeVerifier(CLI::App& racine)
    : Commande(racine.add_subcommand("verifier", "Les gains de grilles ou d'un reçu à un tirage")) {
    AjouterFichier(sousCommande(), fichier_);
    AjouterEntier(sousCommande(), "--tirage", tirage_,
                  "Numéro du tirage dans la base ; par défaut, pour un reçu,\n"
                  "le premier de la date qu'il a pour nom");
}

Resultat<Rien> CommandeVerifier::executer(const Contexte& contexte, std::ostream& out) {
    const fs::path fichier = contexte.repertoire / fichier_;
    const auto billets = LireBillets(fichier);
    if (!billets) return Erreur{billets.erreur()};
    if (billets->grilles.empty())
        return Erreur{fmt::format("« {} » ne contient aucune grille.", fichier.string())};
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const auto numero = ChoisirTirage(tirage_, fichier, donnees->base);
    if (!numero) return Erreur{numero.erreur()};
    out << RedigerVerification(donnees->base, *numero, billets->grilles, billets->jokers,
                               LireMonnaie(contexte));
    return Rien{};
}

CommandeBilan::CommandeBilan(CLI::App& racine)
    : Commande(racine.add_subcommand(
          "bilan", "Ce que des grilles auraient gagné et coûté sur l'intervalle")) {
    AjouterFichier(sousCommande(), fichier_);
}

Resultat<Rien> CommandeBilan::executer(const Contexte& contexte, std::ostream& out) {
    const auto billets = LireBillets(contexte.repertoire / fichier_);
    if (!billets) return Erreur{billets.erreur()};
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const auto texte = RedigerBilan(donnees->base, donnees->de, donnees->a, billets->grilles,
                                    LireMonnaie(contexte));
    out << *texte;
    return Rien{};
}

}  // namespace norvane
