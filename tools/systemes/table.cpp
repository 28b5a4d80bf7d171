// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// norvane-systemes-table STOCK: writes STOCK/table.tsv, a line for each key of STOCK/connus.tsv
// with the size of our design beside the best published one, and prints the summary.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>

#include "Dessin.h"

namespace {

using namespace systemes;

constexpr long GrillesMax = 9999;

struct Bilan {
    int presentes = 0;
    int egales = 0;
    int dessous = 0;
    int sansConnu = 0;
    int dessus = 0;
    double exces = 0;
    double pire = 0;
    std::string cePire;
};

struct Tete {
    long blocs = 0;
    std::string methode;
    std::string groupe;
    std::string graine;
    std::string secondes;
};

Tete LireTete(const std::string& racine, const Cle& cle) {
    Tete t;
    int n = 0;
    std::ifstream entree(Chemin(racine, cle));
    entree >> n >> n >> n >> n >> t.blocs >> t.methode >> t.groupe >> t.graine >> t.secondes;
    return t;
}

void Compter(Bilan& b, const Connu& c, long notre) {
    if (notre == 0 || notre > GrillesMax) return;
    ++b.presentes;
    if (c.meilleur == 0) {
        ++b.sansConnu;
    } else if (notre <= c.meilleur) {
        ++(notre < c.meilleur ? b.dessous : b.egales);
    } else {
        ++b.dessus;
        const double exces =
            100.0 * static_cast<double>(notre - c.meilleur) / static_cast<double>(c.meilleur);
        b.exces += exces;
        if (exces > b.pire) {
            b.pire = exces;
            b.cePire = c.garantie + " S=" + std::to_string(c.selection) + " base " +
                       std::to_string(c.base);
        }
    }
}

void Dire(const Bilan& b, std::size_t cles) {
    std::printf(
        "%zu keys: %d present; %d equal to the best published, %d below, %d without one, "
        "%d above (mean excess %.2f %%, worst %.2f %%: %s)\n",
        cles, b.presentes, b.egales, b.dessous, b.sansConnu, b.dessus,
        b.dessus > 0 ? b.exces / b.dessus : 0.0, b.pire, b.cePire.c_str());
}

}  // namespace

int main(int argc, char** argv) {
    try {
        if (argc != 2) throw std::invalid_argument("STOCK");
        const std::string racine = argv[1];
        const std::vector<Connu> connus = LireConnus(racine);
        std::ostringstream table;
        table << "garantie\tselection\tbase\tv\tk\tp\tt\tnotre\tmeilleur\tborne\tmethode\tgroupe\t"
                 "graine\tsecondes\n";
        Bilan bilan;
        std::map<std::string, Bilan> parGarantie;
        std::map<std::string, std::size_t> nombre;
        const auto ouVide = [](long n) { return n > 0 ? std::to_string(n) : std::string(); };
        for (const Connu& c : connus) {
            const Tete t = LireTete(racine, c.cle);
            Compter(bilan, c, t.blocs);
            const std::string genre = c.garantie + " base " + std::to_string(c.base);
            Compter(parGarantie[genre], c, t.blocs);
            ++nombre[genre];
            table << c.garantie << '\t' << c.selection << '\t' << c.base << '\t' << c.cle.v << '\t'
                  << c.cle.k << '\t' << c.cle.p << '\t' << c.cle.t << '\t' << ouVide(t.blocs)
                  << '\t' << ouVide(c.meilleur) << '\t' << c.borne << '\t' << t.methode << '\t'
                  << t.groupe << '\t' << t.graine << '\t' << t.secondes << '\n';
        }
        for (const auto& [genre, b] : parGarantie) {
            std::printf("%s: ", genre.c_str());
            Dire(b, nombre[genre]);
        }
        Dire(bilan, connus.size());
        const std::string chemin = racine + "/table.tsv";
        std::ofstream sortie(chemin + ".tmp");
        sortie << table.str();
        if (!sortie.flush()) throw std::runtime_error("cannot write " + chemin);
        sortie.close();
        std::filesystem::rename(chemin + ".tmp", chemin);
        return 0;
    } catch (const std::exception& e) {
        std::cerr << "norvane-systemes-table: " << e.what() << '\n';
        return 1;
    }
}
