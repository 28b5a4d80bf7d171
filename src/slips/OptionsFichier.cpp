// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The file of the options: how many slips, then one a line, six fields between blanks.
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <span>
#include <string_view>

#include "base/Fichiers.h"
#include "base/Textes.h"
#include "slips/Bulletins.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t OctetsMax = 1 << 18;  ///< two thousand short lines
constexpr std::size_t NbChamps = 6;
using Champs = std::array<int, NbChamps>;

Champs EnChamps(const OptionsBulletin& o) {
    return {o.Semaines, o.Joker1, o.Joker2, o.Lundi, o.Mercredi, o.Samedi};
}

/// Nothing for values that a slip cannot have.
std::optional<OptionsBulletin> EnOptions(const Champs& v) {
    const auto dans = [](int valeur, int min, int max) {
        return valeur == SansOption || (valeur >= min && valeur <= max);
    };
    if (!dans(v[0], 2, 5) || !dans(v[1], 0, 3) || !dans(v[2], 0, 3)) return std::nullopt;
    if (!std::all_of(v.begin() + 3, v.end(), [&](int jour) { return dans(jour, 1, 1); }))
        return std::nullopt;
    const auto jour = [&](std::size_t i) { return static_cast<std::int16_t>(v[i]); };
    return OptionsBulletin{v[0], v[1], v[2], jour(3), jour(4), jour(5)};
}

/// Exactly so many integers between blanks.
bool LireEntiers(std::string_view ligne, std::span<int> valeurs) {
    for (int& valeur : valeurs) {
        ligne = Rogner(ligne);
        const auto [lu, erreur] =
            std::from_chars(ligne.data(), ligne.data() + ligne.size(), valeur);
        ligne.remove_prefix(static_cast<std::size_t>(lu - ligne.data()));
        if (erreur != std::errc{} || (!ligne.empty() && Rogner(ligne.substr(0, 1)).size() == 1))
            return false;
    }
    return Rogner(ligne).empty();
}

}  // namespace

fs::path FichierOptions(const fs::path& grilles) {
    return fs::path(grilles).replace_extension("bul");
}

Resultat<OptionsBulletins> LireOptions(const fs::path& fichier) {
    OptionsBulletins options;
    if (!NomPresent(fichier)) return options;
    const auto texte = LireFichier(fichier, OctetsMax);
    if (!texte) return Erreur{texte.erreur()};
    const auto refus = [&](std::string_view defaut) {
        return Erreur{fmt::format(
            "« {} » : {}. Les bulletins restent sans options : corrigez ce fichier ou retirez-le.",
            fichier.string(), defaut)};
    };
    std::string_view reste = SansMarqueOctets(*texte);
    int nombre = 0;
    for (int numero = 1; !Rogner(reste).empty() || numero == 1; ++numero) {
        const auto fin = std::min(reste.find('\n'), reste.size());
        const std::string_view ligne = reste.substr(0, fin);
        reste.remove_prefix(std::min(fin + 1, reste.size()));
        if (numero == 1) {
            if (!LireEntiers(ligne, {&nombre, 1}) || nombre < 0 || nombre > NbBulletinsMax)
                return refus(
                    fmt::format("la ligne 1 (« {} ») n'est pas un nombre de bulletins, de "
                                "0 à {}",
                                Citer(Rogner(ligne)), NbBulletinsMax));
            continue;
        }
        Champs champs{};
        const auto lues = LireEntiers(ligne, champs) ? EnOptions(champs) : std::nullopt;
        if (!lues)
            return refus(
                fmt::format("la ligne {} (« {} ») ne tient pas les six options d'un "
                            "bulletin",
                            numero, Citer(Rogner(ligne))));
        options.bulletins.push_back(*lues);
        if (options.bulletins.size() > static_cast<std::size_t>(nombre)) break;
    }
    if (options.bulletins.size() != static_cast<std::size_t>(nombre))
        return refus(fmt::format("{} bulletins sont annoncés, et le fichier en tient {}", nombre,
                                 options.bulletins.size() < static_cast<std::size_t>(nombre)
                                     ? fmt::to_string(options.bulletins.size())
                                     : "plus"));
    return options;
}

Resultat<Rien> EcrireOptions(const OptionsBulletins& options, const fs::path& fichier) {
    std::span<const OptionsBulletin> tenues = options.bulletins;
    while (!tenues.empty() && tenues.back() == OptionsBulletin{})
        tenues = tenues.first(tenues.size() - 1);
    std::string texte = fmt::format("{}\n", tenues.size());
    for (const OptionsBulletin& o : tenues)
        texte += fmt::format("{}\n", fmt::join(EnChamps(o), " "));
    return EcrireFichier(fichier, texte);
}

}  // namespace norvane
