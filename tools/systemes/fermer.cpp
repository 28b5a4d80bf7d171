// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// norvane-systemes-fermer STOCK [MEMORY]: lets each design of the stock improve its neighbours
// until nothing changes. The file MEMORY keeps what was tried, so that the next run only looks at
// what changed since.
#include <fstream>
#include <iostream>
#include <stdexcept>

#include "Fermeture.h"

int main(int argc, char** argv) {
    using namespace systemes;
    try {
        if (argc < 2 || argc > 3) throw std::invalid_argument("STOCK [MEMORY]");
        std::set<std::string> essayes;
        if (argc == 3) {
            std::ifstream entree(argv[2]);
            for (std::string ligne; std::getline(entree, ligne);) essayes.insert(ligne);
        }
        Fermeture fermeture(argv[1], std::move(essayes), std::random_device()());
        std::cout << "closure: " << fermeture.fermer() << " improved" << std::endl;
        if (argc == 3) {
            std::ofstream sortie(argv[2]);
            for (const std::string& ligne : fermeture.essayes()) sortie << ligne << '\n';
        }
        return 0;
    } catch (const std::exception& e) {
        std::cerr << "norvane-systemes-fermer: " << e.what() << '\n';
        return 1;
    }
}
