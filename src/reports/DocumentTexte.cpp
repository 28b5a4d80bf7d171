// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>

#include "reports/DocumentExport.h"

namespace norvane {

namespace {

bool EstDebut(char octet) {
    return (static_cast<unsigned char>(octet) & 0xC0U) != 0x80U;
}

std::size_t Longueur(std::string_view texte) {
    return static_cast<std::size_t>(std::ranges::count_if(texte, EstDebut));
}

/// Bytes of the first `caracteres` characters.
std::size_t Octets(std::string_view texte, std::size_t caracteres) {
    std::size_t place = 0;
    for (; place < texte.size(); ++place) {
        if (EstDebut(texte[place]) && caracteres-- == 0) break;
    }
    return place;
}

/// Adds a line, in pieces where it is too long. The blank that it is broken at goes.
void Couper(std::string& sortie, std::string_view ligne) {
    while (Longueur(ligne) > LargeurTexte) {
        // One more character than fits: a blank there is as good as one before.
        const std::string_view debut = ligne.substr(0, Octets(ligne, LargeurTexte + 1));
        const std::size_t blanc = debut.find_last_of(' ');
        const bool mot = blanc == std::string_view::npos || blanc == 0;
        const std::size_t fin = mot ? Octets(ligne, LargeurTexte) : blanc;
        sortie.append(ligne.substr(0, fin)) += '\n';
        ligne.remove_prefix(mot ? fin : fin + 1);
    }
    sortie.append(ligne) += '\n';
}

}  // namespace

std::string EnTexte(const Document& document) {
    std::string sortie;
    for (const Bloc& bloc : document.blocs) {
        if (bloc.filet) {
            for (int i = 0; i < LargeurTexte; ++i) sortie += "─";
            sortie += '\n';
            continue;
        }
        const std::string texte = bloc.texte();
        const std::size_t longueur = Longueur(texte);
        if (bloc.centre && longueur < LargeurTexte)
            sortie.append((LargeurTexte - longueur) / 2, ' ');
        Couper(sortie, texte);
    }
    return sortie;
}

}  // namespace norvane
