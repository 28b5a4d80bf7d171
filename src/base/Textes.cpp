// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Textes.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace norvane {

namespace {

constexpr std::string_view EspaceMilliers = "\u00A0";
constexpr std::string_view BlancsAscii = " \t\n\r\f\v";
/// Blanks that people and other programs put between thousands.
constexpr std::array<std::string_view, 5> Blancs = {" ", "\t", "\u00A0", "\u202F", "\u2009"};
/// What may stand behind an amount.
constexpr std::array<std::string_view, 12> Monnaies = {
    "€", "euros", "euro", "Euros", "Euro", "EUR", "eur", "F", "FRF", "$", "£", "CHF"};

bool EstChiffre(char c) {
    return c >= '0' && c <= '9';
}

/// A number rounded to two decimals, as text.
struct Arrondi {
    bool negatif;
    std::string entier;     ///< without leading zeros but for a lone one
    std::string decimales;  ///< two digits
};

/// Rounds half away from zero what a person reads, that is the shortest decimal text of the
/// number: 2.675 becomes 2,68 although the nearest binary value lies a little lower.
Arrondi Arrondir(double x) {
    std::array<char, 400> tampon;  // the longest double in fixed notation has 309 digits
    const char* fin = std::to_chars(tampon.data(), tampon.data() + tampon.size(), std::fabs(x),
                                    std::chars_format::fixed)
                          .ptr;
    const std::string_view texte(tampon.data(), static_cast<std::size_t>(fin - tampon.data()));
    const std::size_t point = std::min(texte.find('.'), texte.size());
    std::string chiffres(texte.substr(0, point));
    std::string decimales(texte.substr(std::min(point + 1, texte.size())));
    decimales.resize(std::max<std::size_t>(decimales.size(), 3), '0');
    const bool monte = decimales[2] >= '5';
    chiffres.append(decimales, 0, 2);
    if (monte) {
        auto c = chiffres.rbegin();
        while (c != chiffres.rend() && *c == '9') *c++ = '0';
        if (c == chiffres.rend()) {
            chiffres.insert(0, 1, '1');
        } else {
            ++*c;
        }
    }
    const bool nul = chiffres.find_first_not_of('0') == std::string::npos;
    const std::size_t coupe = chiffres.size() - 2;
    return {std::signbit(x) && !nul, chiffres.substr(0, coupe), chiffres.substr(coupe)};
}

std::string SeparerMilliers(std::string_view chiffres) {
    std::string texte;
    for (std::size_t i = 0; i < chiffres.size(); ++i) {
        if (i > 0 && (chiffres.size() - i) % 3 == 0) texte += EspaceMilliers;
        texte += chiffres[i];
    }
    return texte;
}

/// Length of the blank at the start of `texte`, 0 when there is none.
std::size_t LongueurBlanc(std::string_view texte) {
    for (const std::string_view blanc : Blancs) {
        if (texte.starts_with(blanc)) return blanc.size();
    }
    return 0;
}

void SauterBlancs(std::string_view& texte) {
    while (const std::size_t longueur = LongueurBlanc(texte)) texte.remove_prefix(longueur);
}

std::string_view PrendreChiffres(std::string_view& texte) {
    const auto fin = std::ranges::find_if_not(texte, EstChiffre);
    const std::string_view chiffres =
        texte.substr(0, static_cast<std::size_t>(fin - texte.begin()));
    texte.remove_prefix(chiffres.size());
    return chiffres;
}

/// The whole part of an amount, its thousands joined: "1 234" gives "1234". Groups behind a
/// blank have three digits, or the text is no number: nothing.
std::optional<std::string> PrendreEntier(std::string_view& texte) {
    std::string chiffres(PrendreChiffres(texte));
    const std::size_t premier = chiffres.size();
    for (;;) {
        const std::size_t blanc = LongueurBlanc(texte);
        if (blanc == 0 || blanc == texte.size() || !EstChiffre(texte[blanc])) return chiffres;
        texte.remove_prefix(blanc);
        const std::string_view groupe = PrendreChiffres(texte);
        if (groupe.size() != 3 || premier == 0 || premier > 3) return std::nullopt;
        chiffres += groupe;
    }
}

}  // namespace

std::string FormaterCompte(std::int64_t n) {
    if (n == 0) return {};
    const std::string texte = std::to_string(n);
    if (n > 0) return SeparerMilliers(texte);
    return '-' + SeparerMilliers(std::string_view(texte).substr(1));
}

std::string FormaterMontant(double montant) {
    const Arrondi arrondi = Arrondir(montant);
    std::string texte = arrondi.negatif ? "-" : "";
    return texte.append(SeparerMilliers(arrondi.entier)).append(1, ',').append(arrondi.decimales);
}

std::string FormaterMasque(std::int64_t n, int chiffres) {
    const std::string texte = std::to_string(n);
    const std::size_t signe = n < 0 ? 1 : 0;
    const auto largeur = static_cast<std::size_t>(std::max(chiffres, 0)) + signe;
    std::string masque = texte;
    if (texte.size() < largeur) masque.insert(signe, largeur - texte.size(), '0');
    return masque;
}

std::string FormaterDecimal(double x, int chiffres) {
    const Arrondi arrondi = Arrondir(x);
    const auto largeur = static_cast<std::size_t>(std::max(chiffres, 1));
    std::string texte = arrondi.negatif ? "-" : "";
    if (arrondi.entier.size() < largeur) texte.append(largeur - arrondi.entier.size(), '0');
    return texte + arrondi.entier + ',' + arrondi.decimales;
}

std::optional<double> LireMontant(std::string_view texte) {
    SauterBlancs(texte);
    const bool negatif = texte.starts_with('-');
    if (negatif || texte.starts_with('+')) texte.remove_prefix(1);
    std::optional<std::string> nombre = PrendreEntier(texte);
    if (!nombre) return std::nullopt;
    std::string_view decimales;
    if (texte.starts_with(',') || texte.starts_with('.')) {
        texte.remove_prefix(1);
        decimales = PrendreChiffres(texte);
    }
    if (nombre->empty() && decimales.empty()) return std::nullopt;
    SauterBlancs(texte);
    const auto monnaie = std::ranges::find_if(Monnaies, [&](std::string_view symbole) {
        std::string_view reste = texte;
        if (!reste.starts_with(symbole)) return false;
        reste.remove_prefix(symbole.size());
        SauterBlancs(reste);
        return reste.empty();
    });
    if (!texte.empty() && monnaie == Monnaies.end()) return std::nullopt;

    const std::string decimal = fmt::format("{}.{}", *nombre, decimales);
    double valeur = 0.0;
    const auto lu = std::from_chars(decimal.data(), decimal.data() + decimal.size(), valeur,
                                    std::chars_format::fixed);
    if (lu.ec != std::errc{}) return std::nullopt;
    return negatif ? -valeur : valeur;
}

std::string_view Rogner(std::string_view texte) {
    const std::size_t debut = texte.find_first_not_of(BlancsAscii);
    if (debut == std::string_view::npos) return {};
    return texte.substr(debut, texte.find_last_not_of(BlancsAscii) - debut + 1);
}

std::string Citer(std::string_view texte) {
    constexpr std::size_t montre = 24;
    std::string debut(texte.substr(0, montre));
    for (char& c : debut) {
        if (c < ' ' || c > '~') c = '?';
    }
    return texte.size() > montre ? debut + "..." : debut;
}

}  // namespace norvane
