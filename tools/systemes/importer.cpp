// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// norvane-systemes-importer STOCK FILE: takes in designs written as blocks of lines
//   design v k p t blocks fixed cycles multiplier base_blocks
// and then the base blocks on points 0..v-1 under the group of those cycles.
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>

#include "Groupe.h"

int main(int argc, char** argv) {
    using namespace systemes;
    try {
        if (argc != 3) throw std::invalid_argument("STOCK FILE");
        std::ifstream entree(argv[2]);
        int ecrits = 0;
        for (std::string texte; std::getline(entree, texte);) {
            std::istringstream mots(texte);
            std::string mot;
            Dessin d;
            int blocs = 0;
            int fixes = 0;
            int cycles = 0;
            int facteur = 0;
            int bases = 0;
            if (!(mots >> mot) || mot != "design") continue;
            mots >> d.cle.v >> d.cle.k >> d.cle.p >> d.cle.t >> blocs >> fixes >> cycles >>
                facteur >> bases;
            std::ostringstream nom;
            nom << "C:" << fixes << ':' << cycles << ':' << facteur << ":0";
            Groupe groupe = FaireGroupe(nom.str(), d.cle.v);
            d.methode = "orbites";
            d.groupe = groupe.nom;
            d.generateurs = std::move(groupe.generateurs);
            for (int i = 0; i < bases; ++i) {
                Bloc bloc = 0;
                for (int j = 0, point = 0; j < d.cle.k && entree >> point; ++j)
                    bloc |= Bloc{1} << point;
                d.bases.push_back(bloc);
            }
            if (Developper(d).size() != static_cast<std::size_t>(blocs))
                throw std::runtime_error("not that many blocks: " + texte);
            if (EcrireSiMieux(argv[1], d)) ++ecrits;
        }
        std::cout << ecrits << " designs\n";
        return 0;
    } catch (const std::exception& e) {
        std::cerr << "norvane-systemes-importer: " << e.what() << '\n';
        return 1;
    }
}
