// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A directory of its own for each test, gone with it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace norvane {

class DossierTemporaire {
 public:
    DossierTemporaire() {
        std::string modele = (std::filesystem::temp_directory_path() / "norvane-XXXXXX").string();
        chemin_ = mkdtemp(modele.data());
    }
    ~DossierTemporaire() {
        std::error_code erreur;
        std::filesystem::remove_all(chemin_, erreur);
    }
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;

    const std::filesystem::path& chemin() const { return chemin_; }

    void ecrire(const std::string& nom, const std::string& contenu) const {
        std::ofstream(chemin_ / nom, std::ios::binary) << contenu;
    }

    static std::string lire(const std::filesystem::path& fichier) {
        std::ifstream flux(fichier, std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }

    /// Name and content of every file in it.
    std::map<std::string, std::string> contenu() const {
        std::map<std::string, std::string> fichiers;
        for (const auto& entree : std::filesystem::directory_iterator(chemin_))
            fichiers[entree.path().filename().string()] = lire(entree.path());
        return fichiers;
    }

 private:
    std::filesystem::path chemin_;
};

}  // namespace norvane
