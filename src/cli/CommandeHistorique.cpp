// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeHistorique.h"

#include <fmt/format.h>

#include <array>
#include <iterator>
#include <ostream>

#include "base/Fichiers.h"
#include "Options.h"
#include "reports/Historique.h"

namespace norvane {

namespace {

constexpr const char* Tsv = "tsv";

struct Format {
    const char* nom;
    FormatTableau format;
    bool fichier;  // bytes that no terminal should get
};
constexpr std::array<Format, 5> Formats{{{"txt", FormatTableau::Texte, false},
                                         {"html", FormatTableau::Html, false},
                                         {"csv", FormatTableau::Csv, false},
                                         {"xlsx", FormatTableau::Xlsx, true},
                                         {"odt", FormatTableau::OpenDocument, true}}};

std::string EnTsv(const Historique& historique, VueHistorique vue) {
    std::string texte = "Tirage\tDate\tN1\tN2\tN3\tN4\tN5\tChance\tEcart\tSuite\tPoids\n";
    for (const LigneHistorique& ligne : Lignes(historique, vue)) {
        const Tirage& t = TirageDe(historique, ligne);
        fmt::format_to(std::back_inserter(texte), "{}\t{}\t{}\t{}\t{}\t{}\n", ligne.numero,
                       t.DateTirage, fmt::join(t.Numeros, "\t"), t.Chance,
                       fmt::format("{}\t{}", ligne.ecart, ligne.suite), Poids(t));
    }
    return texte;
}

Resultat<std::string> Texte(const Historique& historique, VueHistorique vue,
                            const std::string& nom) {
    for (const Format& format : Formats)
        if (nom == format.nom) return Exporter(ExporterHistorique(historique, vue), format.format);
    return EnTsv(historique, vue);
}

}  // namespace

CommandeHistorique::CommandeHistorique(CLI::App& groupe, GenreStats genre)
    : Commande(groupe.add_subcommand(genre == GenreStats::Numeros ? "numero" : "chance",
                                     genre == GenreStats::Numeros
                                         ? "Les tirages où un numéro est sorti"
                                         : "Les tirages où une chance est sortie")),
      genre_(genre) {
    CLI::App& app = sousCommande();
    AjouterEntier(app, "X", valeur_,
                  genre == GenreStats::Numeros ? "Le numéro, de 1 à 49" : "La chance, de 1 à 10")
        ->required();
    app.add_flag("--tout", tout_, "Tous les tirages de l'intervalle, sortis ou non")
        ->disable_flag_override();
    app.add_option("--format", format_, "tsv (par défaut), txt, html, csv, xlsx ou odt")
        ->type_name("FORMAT")
        ->check([](const std::string& lu) {
            bool connu = lu == Tsv;
            for (const Format& format : Formats) connu = connu || lu == format.nom;
            return connu ? std::string()
                         : fmt::format(
                               "le format « {} » n'existe pas : choisissez tsv, txt, html, "
                               "csv, xlsx ou odt",
                               lu);
        });
    app.add_option("--sortie", sortie_,
                   "Le fichier à écrire au lieu de la sortie standard ; xlsx et odt en veulent un")
        ->type_name("FICHIER");
    app.callback([this] {
        for (const Format& format : Formats)
            if (format.fichier && format_ == format.nom && !sortie_)
                throw CLI::RequiredError("--sortie");
    });
}

Resultat<Rien> CommandeHistorique::executer(const Contexte& contexte, std::ostream& out) {
    const auto valeur =
        EntierDans(valeur_, "X", 1, genre_ == GenreStats::Numeros ? NumeroMax : ChanceMax);
    if (!valeur) return Erreur{valeur.erreur()};
    const auto donnees = contexte.charger();
    if (!donnees) return Erreur{donnees.erreur()};
    Occurrences occurrences;
    ConstruireOccurrences(donnees->base, occurrences);
    const Historique historique = FaireHistorique(
        donnees->base, occurrences, Element{genre_, *valeur}, donnees->de, donnees->a);
    if (historique.stats.Sorties == 0) return Erreur{MessageNonSorti(historique.sujet)};
    const auto texte =
        Texte(historique, tout_ ? VueHistorique::Tout : VueHistorique::Sorties, format_);
    if (!texte) return Erreur{texte.erreur()};
    if (sortie_) return EcrireFichier(contexte.repertoire / *sortie_, *texte);
    out << *texte;
    return Rien{};
}

}  // namespace norvane
