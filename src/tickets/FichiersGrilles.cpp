// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/FichiersGrilles.h"

#include <fmt/format.h>

#include <charconv>
#include <cstdint>
#include <iterator>
#include <system_error>
#include <utility>

#include "base/Dates.h"
#include "base/Fichiers.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr const char* ExtensionGrilles = ".grl";
constexpr const char* ExtensionRecu = ".rdj";
/// Well above 9999 grids of nine numbers and a long list of Joker+ lines.
constexpr std::uint64_t TailleMax = std::uint64_t{16} << 20;

Resultat<Rien> CreerDossier(const fs::path& dossier) {
    std::error_code erreur;
    fs::create_directories(dossier, erreur);
    if (!erreur) return Rien{};
    return Erreur{fmt::format(
        "Impossible de créer le dossier « {} » : vérifiez les droits sur le dossier où il doit se "
        "trouver et qu'aucun fichier ne porte ce nom.",
        dossier.string())};
}

Erreur TropGrand(const fs::path& fichier, std::string_view conseil) {
    return {
        fmt::format("« {} » dépasserait les {} octets qu'un fichier de billets peut tenir : {}.",
                    fichier.string(), TailleMax, conseil)};
}

Resultat<Rien> EcrireDansDossier(const fs::path& fichier, std::string_view texte) {
    const auto dossier = CreerDossier(fichier.parent_path());
    return dossier ? EcrireFichier(fichier, texte) : dossier;
}

template <typename Contenu>
Resultat<Contenu> Charger(const fs::path& fichier, Resultat<Contenu> (*lire)(std::string_view)) {
    const auto texte = LireFichier(fichier, TailleMax);
    if (!texte) return Erreur{texte.erreur()};
    auto contenu = lire(*texte);
    if (!contenu) return Erreur{fmt::format("« {} » : {}", fichier.string(), contenu.erreur())};
    return contenu;
}

/// The receipt of the file, then `recu`.
Resultat<RecuDeJeu> Fusionner(const fs::path& fichier, const RecuDeJeu& recu) {
    auto tout = ChargerRecu(fichier);
    if (!tout) return tout;
    const std::size_t nombre = tout->grilles.size() + recu.grilles.size();
    if (nombre > NbGrillesMax)
        return Erreur{
            fmt::format("« {} » tiendrait {} grilles, un reçu en tient {} au plus : "
                        "remplacez-le au lieu d'y ajouter.",
                        fichier.string(), nombre, NbGrillesMax)};
    tout->grilles.insert(tout->grilles.end(), recu.grilles.begin(), recu.grilles.end());
    tout->jokers.insert(tout->jokers.end(), recu.jokers.begin(), recu.jokers.end());
    return tout;
}

}  // namespace

std::string TexteGrilles(std::span<const Grille> grilles) {
    std::string texte = fmt::format("{}\n", grilles.size());
    const auto suite = std::back_inserter(texte);
    const auto ecrire = [&suite](const auto& cochees) {
        fmt::format_to(suite, " {}", cochees.taille());
        for (const int valeur : cochees) fmt::format_to(suite, " {}", valeur);
    };
    for (const Grille& grille : grilles) {
        // `g` is the default conversion of a stream: six significant digits, no trailing zeros.
        fmt::format_to(suite, "{:g}", grille.mise);
        ecrire(grille.numeros);
        ecrire(grille.chances);
        texte += '\n';
    }
    return texte;
}

std::string TexteRecu(const RecuDeJeu& recu) {
    std::string texte = TexteGrilles(recu.grilles);
    texte += fmt::format("{}\n", recu.jokers.size());
    for (const LigneJoker& ligne : recu.jokers)
        texte += fmt::format("{} {} \n", fmt::join(ligne.chiffres, " "), ligne.code);
    return texte;
}

GenreBillets GenreDuFichier(const fs::path& fichier) {
    const fs::path extension = fichier.extension();
    if (extension == ExtensionGrilles) return GenreBillets::Grilles;
    return extension == ExtensionRecu ? GenreBillets::Recu : GenreBillets::Autre;
}

Resultat<std::vector<Grille>> ChargerGrilles(const fs::path& fichier) {
    return Charger(fichier, LireGrilles);
}

Resultat<RecuDeJeu> ChargerRecu(const fs::path& fichier) {
    return Charger(fichier, LireRecu);
}

Resultat<Rien> EnregistrerGrilles(std::span<const Grille> grilles, const fs::path& fichier) {
    return EcrireFichier(fichier, TexteGrilles(grilles));
}

Resultat<Rien> SauverGrillesSecours(std::span<const Grille> grilles, const fs::path& repertoire) {
    const fs::path copie = repertoire / DossierGrilles / NomGrillesSecours;
    const std::string texte = TexteGrilles(grilles);
    std::error_code erreur;
    if (fs::is_regular_file(copie, erreur)) {
        const auto ancienne = LireFichier(copie, TailleMax);
        if (ancienne && *ancienne == texte) return Rien{};
        if (!ancienne) return Erreur{ancienne.erreur()};
        const fs::path garde = fs::path(copie) += "~";
        if (auto gardee = EcrireFichier(garde, *ancienne); !gardee) return gardee;
    }
    return EcrireDansDossier(copie, texte);
}

fs::path FichierRecu(const fs::path& repertoire, int date) {
    return repertoire / DossierGrilles / fmt::format("{:08}{}", date, ExtensionRecu);
}

std::optional<int> DateRecu(const fs::path& fichier) {
    const std::string nom = fichier.stem().string();
    if (nom.size() != 8) return std::nullopt;
    int date = 0;
    const char* fin = nom.data() + nom.size();
    const auto lu = std::from_chars(nom.data(), fin, date);
    if (lu.ec != std::errc{} || lu.ptr != fin || !DateValide(date)) return std::nullopt;
    return date;
}

Resultat<Rien> EnregistrerRecu(const RecuDeJeu& recu, const fs::path& repertoire, int date,
                               bool ajouter) {
    const fs::path fichier = FichierRecu(repertoire, date);
    if (!ajouter || !NomPresent(fichier)) {
        const std::string texte = TexteRecu(recu);
        if (texte.size() > TailleMax) return TropGrand(fichier, "répartissez-le en plusieurs");
        return EcrireDansDossier(fichier, texte);
    }
    const auto tout = Fusionner(fichier, recu);
    if (!tout) return Erreur{tout.erreur()};
    const std::string texte = TexteRecu(*tout);
    if (texte.size() > TailleMax) return TropGrand(fichier, "remplacez-le au lieu d'y ajouter");
    return EcrireFichier(fichier, texte);
}

}  // namespace norvane
