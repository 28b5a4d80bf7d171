// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "comb/LigneCombinaison.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/Base.h"
#include "base/Fichiers.h"

namespace norvane {

namespace {

constexpr int NbFoisMax = 65535;
/// A full list of the longest lines, with room for line ends; anything larger is no such list.
constexpr std::uint64_t OctetsMax = CapaciteListe * 64;
constexpr std::string_view Marque = " N";

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

std::string_view SansBlancsFinaux(std::string_view ligne) {
    while (!ligne.empty() && (ligne.back() == ' ' || ligne.back() == '\t' || ligne.back() == '\r'))
        ligne.remove_suffix(1);
    return ligne;
}

/// Takes "(112)" off the front.
std::optional<int> LireNbFois(std::string_view& reste) {
    const auto fin = reste.find(')');
    if (!reste.starts_with('(') || fin == reste.npos || fin < 3 || fin > 6) return std::nullopt;
    int valeur = 0;
    for (const char c : reste.substr(1, fin - 1)) {
        if (!EstChiffre(c)) return std::nullopt;
        valeur = valeur * 10 + (c - '0');
    }
    if (valeur > NbFoisMax) return std::nullopt;
    reste.remove_prefix(fin + 1);
    return valeur;
}

}  // namespace

std::string LigneCombinaison(std::span<const Mot> numeros, int nbFois, bool marque) {
    std::string ligne;
    ligne.reserve(numeros.size() * 3 + 10);
    for (const Mot n : numeros) {
        ligne += static_cast<char>('0' + n / 10);
        ligne += static_cast<char>('0' + n % 10);
        ligne += ' ';
    }
    fmt::format_to(std::back_inserter(ligne), " ({:02})", nbFois);
    if (marque) ligne += Marque;
    return ligne;
}

std::string LigneEnregistrement(std::span<const Mot> enregistrement, Disposition disposition) {
    return LigneCombinaison(enregistrement.subspan(static_cast<std::size_t>(disposition.numeros())),
                            enregistrement[static_cast<std::size_t>(disposition.premierRang())]);
}

std::optional<Combinaison> LireLigneCombinaison(std::string_view ligne) {
    Combinaison lue;
    int dernier = 0;
    std::string_view reste = SansBlancsFinaux(ligne);
    while (reste.size() >= 3 && EstChiffre(reste[0]) && EstChiffre(reste[1]) && reste[2] == ' ') {
        const int n = (reste[0] - '0') * 10 + (reste[1] - '0');
        if (n > NumeroMax || n <= dernier) return std::nullopt;
        lue.numeros.ajouter(dernier = n);
        reste.remove_prefix(3);
    }
    const int taille = lue.numeros.taille();
    if (taille < TailleCombMin || taille > TailleCombMax || !reste.starts_with(' '))
        return std::nullopt;
    reste.remove_prefix(1);
    const auto nbFois = LireNbFois(reste);
    if (!nbFois || (!reste.empty() && reste != Marque)) return std::nullopt;
    lue.NbFois = *nbFois;
    lue.marque = !reste.empty();
    return lue;
}

Resultat<std::vector<Combinaison>> LireListe(const std::filesystem::path& fichier, int taille) {
    std::vector<Combinaison> lignes;
    if (!NomPresent(fichier)) return lignes;
    const auto contenu = LireFichier(fichier, OctetsMax);
    if (!contenu) return Erreur{contenu.erreur()};

    std::string_view reste = SansMarqueOctets(*contenu);
    for (int numero = 1; !reste.empty(); ++numero) {
        const auto fin = std::min(reste.find('\n'), reste.size());
        const std::string_view ligne = SansBlancsFinaux(reste.substr(0, fin));
        reste.remove_prefix(std::min(fin + 1, reste.size()));
        if (ligne.empty() && SansBlancsFinaux(reste).empty()) break;
        const auto lue = LireLigneCombinaison(ligne);
        if (!lue || lue->numeros.taille() != taille)
            return Erreur{fmt::format(
                "Ligne {} du fichier « {} » illisible : une combinaison de {} numéros y est "
                "attendue. Supprimez ce fichier, puis relancez le calcul.",
                numero, fichier.string(), taille)};
        lignes.push_back(*lue);
    }
    if (lignes.size() > CapaciteListe)
        return Erreur{fmt::format(
            "Le fichier « {} » compte {} lignes, plus que les {} d'une liste. Supprimez ce "
            "fichier, puis relancez le calcul.",
            fichier.string(), lignes.size(), CapaciteListe)};
    return lignes;
}

Resultat<Rien> EcrireListe(const std::filesystem::path& fichier,
                           std::span<const Combinaison> lignes) {
    std::string texte;
    for (const Combinaison& ligne : lignes) {
        texte += LigneCombinaison(ligne);
        texte += '\n';
    }
    return EcrireFichier(fichier, texte);
}

}  // namespace norvane
