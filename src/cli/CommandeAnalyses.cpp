// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "CommandeAnalyses.h"

#include <fmt/format.h>

#include <ostream>

#include "base/Fichiers.h"
#include "reports/Analyses.h"
#include "reports/DocumentExport.h"

namespace norvane {

CommandeAnalyses::CommandeAnalyses(CLI::App& racine)
    : Commande(
          racine.add_subcommand("analyses", "Le rapport d'analyses des tirages de l'intervalle")) {
    sousCommande().add_option("--format", format_, "texte (par défaut) ou html")->type_name("F");
    sousCommande()
        .add_option("--sortie", sortie_,
                    "Fichier à écrire, avec ses images à côté pour html ;\n"
                    "par défaut la sortie standard")
        ->type_name("FICHIER");
}

Resultat<Rien> CommandeAnalyses::executer(const Contexte& contexte, std::ostream& out) {
    const bool html = format_ == "html";
    if (!html && format_ != "texte")
        return Erreur{
            fmt::format("Le format « {} » n'existe pas : donnez texte ou html.", format_)};
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    const Document document =
        RedigerAnalyses(donnees->base.enUsage(), donnees->de - 1, donnees->a - 1);
    if (!sortie_.empty()) {
        const std::filesystem::path fichier = contexte.repertoire / sortie_;
        return html ? EcrireHtml(document, JeuStyles::RVStyle2, fichier)
                    : EcrireFichier(fichier, EnTexte(document));
    }
    out << (html ? EnHtml(document, JeuStyles::RVStyle2, PlaceImages::DansLaPage)
                 : EnTexte(document));
    return Rien{};
}

}  // namespace norvane
