// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// fuzz_<name> SECONDS FOLDER: runs the target on its seeds, on the files of FOLDER, then for so
// long on random changes of them: the same ones in the same order at every run. The input that a
// promise is broken on stays in a file of its own.
#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>

#include "cible.h"

namespace {

/// The input under trial, for the last words of the program.
const std::string* enEssai = nullptr;

void garderEntree(int signal) {
    const std::string nom = "fuzz-" + std::to_string(::getpid()) + ".entree";
    std::ofstream(nom, std::ios::binary) << *enEssai;
    std::fprintf(stderr, "input kept in %s\n", nom.c_str());
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

void essayer(const std::string& entree) {
    enEssai = &entree;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(entree.data()), entree.size());
}

/// One to eight changes: bytes, pieces cut out, doubled or taken from another seed.
std::string changer(std::string entree, const std::string& autre, std::mt19937& alea) {
    const auto jusqua = [&](std::size_t n) { return n == 0 ? 0 : alea() % (n + 1); };
    const bool surPlace = alea() % 2 == 0;  // a format of fixed places must keep its length
    for (std::size_t fois = 1 + alea() % 8; fois > 0; --fois) {
        const std::size_t place = jusqua(entree.size());
        const std::size_t longueur = jusqua(std::min<std::size_t>(entree.size() - place, 64));
        static constexpr std::string_view signes = ";,.-=[]\n\r\0#/09AeN\"\xFF\xC3";
        switch (surPlace ? 5 : alea() % 6) {
            case 0:
                entree.insert(place, 1, static_cast<char>(alea()));
                break;
            case 1:
                entree.insert(place, 1, signes[alea() % signes.size()]);
                break;
            case 2:
                entree.erase(place, longueur);
                break;
            case 3:
                entree.insert(place, entree.substr(place, longueur));
                break;
            case 4:
                entree.insert(place, autre.substr(std::min(place, autre.size()), longueur));
                break;
            default:
                if (place < entree.size()) entree[place] = static_cast<char>(alea());
        }
    }
    if (!surPlace && alea() % 16 == 0) entree.resize(jusqua(entree.size()));
    return entree;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3 || !std::filesystem::is_directory(argv[2])) {
        std::fprintf(stderr, "usage: %s SECONDS FOLDER\n", argv[0]);
        return 2;
    }
    std::vector<std::string> corpus = graines();
    std::set<std::filesystem::path> chemins;  // in the same order at every run
    for (const auto& entree : std::filesystem::directory_iterator(argv[2]))
        chemins.insert(entree.path());
    for (const auto& chemin : chemins) {
        std::ifstream flux(chemin, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(flux), std::istreambuf_iterator<char>());
    }
    ::signal(SIGABRT, garderEntree);
    for (const std::string& entree : corpus) essayer(entree);

    using Horloge = std::chrono::steady_clock;
    const auto fin = Horloge::now() + std::chrono::seconds(std::strtol(argv[1], nullptr, 10));
    std::mt19937 alea(20240724);
    unsigned long nombre = 0;
    for (; Horloge::now() < fin; ++nombre) {
        const std::string& entree = corpus[alea() % corpus.size()];
        const std::string& autre = corpus[alea() % corpus.size()];
        essayer(changer(entree, autre, alea));
    }
    std::printf("%zu files, %zu seeds, %lu changes\n", chemins.size(), corpus.size(), nombre);
    // A corpus that got lost must not pass for a run.
    return chemins.empty() || nombre == 0 ? 1 : 0;
}
