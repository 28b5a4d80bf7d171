// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A folder of its own for one test, gone with it, and short ways to fill and read its files.
#pragma once

#include <stdlib.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

class Dossier {
 public:
    Dossier() {
        std::string modele = (std::filesystem::temp_directory_path() / "norvane-XXXXXX").string();
        chemin_ = ::mkdtemp(modele.data());
    }
    ~Dossier() {
        std::error_code ec;
        std::filesystem::remove_all(chemin_, ec);
    }
    Dossier(const Dossier&) = delete;
    Dossier& operator=(const Dossier&) = delete;

    const std::filesystem::path& chemin() const { return chemin_; }
    std::filesystem::path operator/(const char* nom) const { return chemin_ / nom; }

    /// Names of all that the folder holds, in order.
    std::vector<std::string> noms() const {
        std::vector<std::string> trouves;
        for (const auto& entree : std::filesystem::directory_iterator(chemin_))
            trouves.push_back(entree.path().filename().string());
        std::sort(trouves.begin(), trouves.end());
        return trouves;
    }

 private:
    std::filesystem::path chemin_;
};

inline std::string lire(const std::filesystem::path& fichier) {
    std::ifstream flux(fichier, std::ios::binary);
    return {std::istreambuf_iterator<char>(flux), {}};
}

inline void poser(const std::filesystem::path& fichier, std::string_view contenu) {
    std::ofstream(fichier, std::ios::binary)
        .write(contenu.data(), static_cast<std::streamsize>(contenu.size()));
}

/// Every file of a test's folder: its name and what it holds.
inline std::map<std::string, std::string> Contenu(const Dossier& dossier) {
    std::map<std::string, std::string> fichiers;
    for (const auto& nom : dossier.noms()) fichiers[nom] = lire(dossier.chemin() / nom);
    return fichiers;
}

/// What a child answers; -1 when a signal ended it.
template <typename Travail>
int DansUnEnfant(Travail travail) {
    const pid_t enfant = ::fork();
    if (enfant == 0) ::_exit(travail());
    int etat = -1;
    ::waitpid(enfant, &etat, 0);
    return WIFEXITED(etat) ? WEXITSTATUS(etat) : -1;
}

/// No file of this process may grow beyond `octets` from here on: stands in for a full disk.
inline void LimiterLesFichiers(rlim_t octets) {
    const rlimit limite{octets, octets};
    ::setrlimit(RLIMIT_FSIZE, &limite);
}

}  // namespace norvane
