// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// norvane-table TABLE.csv TABLE.cpp: turns the table of draws into constant arrays of integers,
// the built-in base. Stops with the line number at the first row that is not as it should be,
// so that a slip in the data never reaches a program.
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr int NbRangs = 9;
constexpr int NbChamps = 11;                   ///< fields of a draw, in the order of the record
constexpr std::int64_t PresentJeu = 20081006;  ///< first draw with prizes
constexpr std::string_view Titre =
    "date;sous_tirage;annee_numero;n1;n2;n3;n4;n5;chance;forclusion;joker;"
    "g1;r1;g2;r2;g3;r3;g4;r4;g5;r5;g6;r6;g7;r7;g8;r8;g9;r9";

struct Ligne {
    std::array<std::int64_t, NbChamps> tirage{};  ///< n1..n5, chance, forclusion, ...
    std::array<std::int64_t, std::size_t{2} * NbRangs>
        rapports{};  ///< winners and cents, rank by rank
};

std::string citer(std::string_view texte) {
    std::string citation(1, '"');
    return citation.append(texte).append(1, '"');
}

[[noreturn]] void refuser(const std::string& quoi) {
    throw std::runtime_error(quoi);
}

std::int64_t entier(std::string_view texte, std::int64_t min, std::int64_t max) {
    std::int64_t n = 0;
    const auto [fin, erreur] = std::from_chars(texte.data(), texte.data() + texte.size(), n);
    if (erreur != std::errc{} || fin != texte.data() + texte.size() || n < min || n > max) {
        refuser(citer(texte) + " is not a whole number from " + std::to_string(min) + " to " +
                std::to_string(max));
    }
    return n;
}

/// An amount with at most two decimals, in cents: so kept, it is exact.
std::int64_t centimes(std::string_view texte) {
    const std::size_t point = texte.find('.');
    const std::int64_t euros = entier(texte.substr(0, point), 0, 42'000'000);
    if (point == std::string_view::npos) return euros * 100;
    std::string decimales(texte.substr(point + 1));
    if (decimales.empty() || decimales.size() > 2) {
        refuser(citer(texte) + " does not have one or two decimals");
    }
    decimales.resize(2, '0');
    return euros * 100 + entier(decimales, 0, 99);
}

std::vector<std::string_view> separer(std::string_view ligne) {
    std::vector<std::string_view> champs;
    for (;;) {
        const std::size_t fin = ligne.find(';');
        champs.push_back(ligne.substr(0, fin));
        if (fin == std::string_view::npos) return champs;
        ligne.remove_prefix(fin + 1);
    }
}

Ligne lireLigne(std::string_view texte) {
    const auto champs = separer(texte);
    if (champs.size() != NbChamps + 2 * NbRangs) {
        refuser(std::to_string(champs.size()) + " fields instead of " +
                std::to_string(NbChamps + 2 * NbRangs));
    }
    Ligne ligne;
    auto& t = ligne.tirage;
    t[8] = entier(champs[0], 19760519, 99991231);
    t[9] = entier(champs[1], 1, 2);
    t[7] = entier(champs[2], 1976001, 99999999);
    std::int64_t precedent = 0;
    for (std::size_t i = 0; i < 5; ++i) {
        t[i] = precedent = entier(champs[3 + i], precedent + 1, 49);
    }
    const bool chance = t[8] >= PresentJeu && t[9] == 1;
    t[5] = entier(champs[8], chance ? 1 : 0, chance ? 10 : 0);
    // The published last days to claim hold slips of their own, such as 19441205: only their form
    // is checked, nothing reads them back.
    t[6] = champs[9].empty() ? 0 : entier(champs[9], 10000101, 99991231);
    t[10] = champs[10].empty() ? -1 : entier(champs[10], 0, 9'999'999);
    for (std::size_t r = 0; r < NbRangs; ++r) {
        ligne.rapports[2 * r] = entier(champs[11 + 2 * r], 0, t[8] < PresentJeu ? 0 : 99'999'999);
        ligne.rapports[2 * r + 1] = centimes(champs[12 + 2 * r]);
    }
    return ligne;
}

std::vector<Ligne> lireTable(std::istream& flux) {
    std::vector<Ligne> lignes;
    std::string texte;
    int numero = 1;
    try {
        if (!std::getline(flux, texte) || texte != Titre) refuser("not the expected heading");
        while (std::getline(flux, texte)) {
            ++numero;
            Ligne ligne = lireLigne(texte);
            if (!lignes.empty()) {
                const auto& avant = lignes.back().tirage;
                const auto& t = ligne.tirage;
                if (t[8] < avant[8] || (t[8] == avant[8] && t[9] <= avant[9])) {
                    refuser("not after the draw of the line before");
                }
            }
            lignes.push_back(ligne);
        }
        if (lignes.empty()) refuser("no draw at all");
    } catch (const std::runtime_error& erreur) {
        refuser("line " + std::to_string(numero) + ": " + erreur.what());
    }
    return lignes;
}

template <std::size_t N>
void ecrireLigne(std::ostream& flux, const std::array<std::int64_t, N>& valeurs) {
    char separateur = '{';
    for (const std::int64_t valeur : valeurs) {
        flux << separateur << valeur;
        separateur = ',';
    }
    flux << "},\n";
}

std::string produire(const std::vector<Ligne>& lignes) {
    std::ostringstream flux;
    std::size_t anciens = 0;
    while (anciens < lignes.size() && lignes[anciens].tirage[8] < PresentJeu) ++anciens;
    flux << "// Made by norvane-table; changes belong in the table of draws.\n"
            "#include \"TableIntegree.h\"\n\nnamespace norvane {\nnamespace {\n\n"
            "const std::int32_t tirages[][11] = {\n";
    for (const Ligne& ligne : lignes) ecrireLigne(flux, ligne.tirage);
    flux << "};\n\nconst std::uint32_t rapports[][18] = {\n";
    for (std::size_t i = anciens; i < lignes.size(); ++i) ecrireLigne(flux, lignes[i].rapports);
    // A table without a present draw still needs an array of one row.
    if (anciens == lignes.size()) ecrireLigne(flux, Ligne{}.rapports);
    flux << "};\n\n}  // namespace\n\nconst TableIntegree tableIntegree = {" << anciens << ", "
         << lignes.size() - anciens << ", tirages, rapports};\n\n}  // namespace norvane\n";
    return flux.str();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: norvane-table TABLE.csv TABLE.cpp\n";
        return EXIT_FAILURE;
    }
    try {
        std::ifstream entree(argv[1]);
        if (!entree) refuser("cannot be read");
        const std::string texte = produire(lireTable(entree));
        std::ofstream sortie(argv[2], std::ios::binary | std::ios::trunc);
        sortie << texte;
        sortie.close();
        if (!sortie) refuser(std::string(argv[2]) + " cannot be written");
    } catch (const std::exception& erreur) {
        std::cerr << "norvane-table: " << argv[1] << ": " << erreur.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
