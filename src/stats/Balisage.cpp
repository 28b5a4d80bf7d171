// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Balisage.h"

#include <algorithm>

namespace norvane {

namespace {

bool EstControle(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

}  // namespace

std::size_t Largeur(std::string_view texte) {
    return static_cast<std::size_t>(std::count_if(texte.begin(), texte.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

std::string SurUneLigne(std::string_view texte) {
    std::string resultat(texte);
    std::replace_if(resultat.begin(), resultat.end(), EstControle, ' ');
    return resultat;
}

std::string Baliser(std::string_view texte, std::string_view saut, std::string_view blanc) {
    std::string resultat;
    char precedent = '\0';
    for (const char lu : texte) {
        const char c = EstControle(lu) && lu != '\n' ? ' ' : lu;
        switch (c) {
            case '&':
                resultat += "&amp;";
                break;
            case '<':
                resultat += "&lt;";
                break;
            case '>':
                resultat += "&gt;";
                break;
            case '"':
                resultat += "&quot;";
                break;
            case '\n':
                resultat += saut;
                break;
            case ' ':
                resultat += precedent == ' ' ? blanc : std::string_view(" ");
                break;
            default:
                resultat += c;
        }
        precedent = c;
    }
    return resultat;
}

}  // namespace norvane
