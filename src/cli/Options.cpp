// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Options.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <sstream>

#include "base/Tirage.h"

namespace norvane {

namespace {

bool LireEntier(std::string_view texte, std::optional<long>& valeur) {
    long lu = 0;
    const char* fin = texte.data() + texte.size();
    const auto [suite, erreur] = std::from_chars(texte.data(), fin, lu);
    if (suite != fin || erreur == std::errc::invalid_argument) return false;
    if (erreur == std::errc::result_out_of_range)
        lu = texte.front() == '-' ? std::numeric_limits<long>::min()
                                  : std::numeric_limits<long>::max();
    valeur = lu;
    return true;
}

}  // namespace

CLI::Option* AjouterEntier(CLI::App& app, const char* nom, std::optional<long>& valeur,
                           const char* description) {
    return app
        .add_option_function<std::string>(
            nom,
            [nom, &valeur](const std::string& texte) {
                if (!LireEntier(texte, valeur))
                    throw CLI::ValidationError(
                        nom, fmt::format("« {} » n'est pas un nombre entier", texte));
            },
            description)
        ->type_name("N");
}

Resultat<int> EntierDans(const std::optional<long>& valeur, std::string_view nom, int min,
                         int max) {
    if (*valeur < min || *valeur > max)
        return Erreur{fmt::format("{} va de {} à {}, pas {}.", nom, min, max, *valeur)};
    return static_cast<int>(*valeur);
}

namespace {

/// What is read, as its refusals call it.
struct Mots {
    const char* le;  ///< with its article
    const char* un;
    const char* pluriel;
    const char* donne;
    int max;
};
constexpr Mots MotsNumeros{"Le numéro", "un numéro", "numéros", "donné", NumeroMax};
constexpr Mots MotsChances{"La chance", "une chance", "chances", "donnée", ChanceMax};

Resultat<std::vector<int>> LireValeurs(std::string_view texte, int min, int max,
                                       const Mots& objet) {
    std::vector<int> valeurs;
    std::istringstream mots{std::string(texte)};
    for (std::string mot; mots >> mot;) {
        int n = 0;
        const char* fin = mot.data() + mot.size();
        const auto [lu, erreur] = std::from_chars(mot.data(), fin, n);
        if (erreur != std::errc{} || lu != fin || n < 1 || n > objet.max)
            return Erreur{fmt::format("« {} » n'est pas {} de 1 à {} dans « {} ».", mot, objet.un,
                                      objet.max, texte)};
        if (std::ranges::count(valeurs, n) > 0)
            return Erreur{fmt::format("{} {} est {} deux fois dans « {} ».", objet.le, n,
                                      objet.donne, texte)};
        valeurs.push_back(n);
    }
    const int nombre = static_cast<int>(valeurs.size());
    if (nombre < min || nombre > max)
        return Erreur{fmt::format("« {} » compte {} {} : il en faut de {} à {}.", texte, nombre,
                                  objet.pluriel, min, max)};
    std::ranges::sort(valeurs);
    return valeurs;
}

}  // namespace

Resultat<std::vector<int>> LireNumeros(std::string_view texte, int min, int max) {
    return LireValeurs(texte, min, max, MotsNumeros);
}

Resultat<std::vector<int>> LireChances(std::string_view texte, int min, int max) {
    return LireValeurs(texte, min, max, MotsChances);
}

Resultat<TypeGrille> LireType(std::string_view libelle) {
    if (const auto type = LireTypeGrille(libelle)) return *type;
    return Erreur{fmt::format("« {} » n'est pas une grille vendue : les types vont de {} à {}.",
                              libelle, LibelleType(TypesVendus.front()),
                              LibelleType(TypesVendus.back()))};
}

}  // namespace norvane
