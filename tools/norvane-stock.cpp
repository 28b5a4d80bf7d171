// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// norvane-stock DATA STOCK.cpp: turns the files of designs (DATA/dessins) into the table that the
// program embeds, those of at most 9999 blocks. Stops at the first file that is not well formed.
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "Dessin.h"

namespace {

constexpr std::size_t BlocsMax = 9999;

/// The file without its first line, as C++ string literals.
std::string Litteral(const std::string& chemin) {
    std::ifstream entree(chemin);
    std::string texte;
    std::getline(entree, texte);
    std::string sortie;
    while (std::getline(entree, texte)) sortie.append("\n    \"").append(texte).append("\\n\"");
    return sortie;
}

void Convertir(const std::string& racine, std::ostream& sortie) {
    sortie << "// Made by norvane-stock: do not edit.\n#include \"Stock.h\"\n\n"
              "namespace norvane {\n\nnamespace {\n\nconstexpr DessinStocke Dessins[] = {\n";
    int dessins = 0;
    for (const systemes::Dessin& dessin : systemes::LireTous(racine)) {
        const systemes::Cle& c = dessin.cle;
        const std::size_t blocs = Developper(dessin).size();
        if (blocs > BlocsMax) continue;
        sortie << "  {" << c.v << ", " << c.k << ", " << c.p << ", " << c.t << ", " << blocs << ","
               << Litteral(Chemin(racine, c)) << "},\n";
        ++dessins;
    }
    if (dessins == 0) throw std::runtime_error(racine + " holds no design");
    sortie << "};\n\n}  // namespace\n\n"
              "std::span<const DessinStocke> Stock() {\n    return Dessins;\n}\n\n"
              "}  // namespace norvane\n";
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "norvane-stock DATA STOCK.cpp\n";
        return EXIT_FAILURE;
    }
    try {
        std::ostringstream texte;
        Convertir(argv[1], texte);
        std::ofstream sortie(argv[2]);
        sortie << texte.str();
        if (!sortie.flush()) throw std::runtime_error(std::string("cannot write ") + argv[2]);
    } catch (const std::exception& e) {
        std::cerr << e.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
