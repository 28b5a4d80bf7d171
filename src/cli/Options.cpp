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

Resultat<std::vector<int>> LireNumeros(std::string_view texte, int min, int max) {
    std::vector<int> numeros;
    std::istringstream mots{std::string(texte)};
    for (std::string mot; mots >> mot;) {
        int n = 0;
        const char* fin = mot.data() + mot.size();
        const auto [lu, erreur] = std::from_chars(mot.data(), fin, n);
        if (erreur != std::errc{} || lu != fin || n < 1 || n > NumeroMax)
            return Erreur{fmt::format("« {} » n'est pas un numéro de 1 à {} dans « {} ».", mot,
                                      NumeroMax, texte)};
        if (std::ranges::count(numeros, n) > 0)
            return Erreur{fmt::format("Le numéro {} est donné deux fois dans « {} ».", n, texte)};
        numeros.push_back(n);
    }
    const int nombre = static_cast<int>(numeros.size());
    if (nombre < min || nombre > max)
        return Erreur{fmt::format("« {} » compte {} numéros : il en faut de {} à {}.", texte,
                                  nombre, min, max)};
    std::ranges::sort(numeros);
    return numeros;
}

}  // namespace norvane
