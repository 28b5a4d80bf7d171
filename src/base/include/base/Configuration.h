// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// NORVANE.INI: what the user has set. Sections CONFIGURATION, MISES, MONNAIE, GAINS, BASE,
// INTERNET.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "base/Resultat.h"

namespace norvane {

inline constexpr const char* NomConfiguration = "NORVANE.INI";

/// Values read at the start; a missing file or key leaves the default written here.
struct Reglages {
    // [CONFIGURATION]
    double DecalageImprimanteBordHaut = 0.0;    ///< millimetres, -50..50
    double DecalageImprimanteBordGauche = 0.0;  ///< millimetres, -50..50
    std::string Apparence = "auto";             ///< auto, claire or sombre
    std::string Fenetre;  ///< place of the main window: x,y,w,h or x,y,w,h,max; empty: none
    // [MISES]
    std::array<double, 5> Mises = {2.2, 13.2, 46.2, 123.2, 277.2};  ///< key montants, `;` between
    // [MONNAIE]
    std::string SymboleMonnaie = "€";  ///< key symbole
    double TauxConversion = 6.55957;   ///< key taux: francs for one euro
    // [GAINS]: nominal prizes of one simple grid with 2, 3, 4, 5 good numbers, euros
    std::array<double, 4> GainsNominaux = {5.0, 20.0, 500.0, 100000.0};  ///< keys G2..G5
    // [BASE]
    bool AnciensTirages = false;  ///< key AnciensTirages=0|1
    // [INTERNET]
    std::string Archive = "https://media.fdj.fr/static-draws/csv/loto/loto_201911.zip";
    std::string Jackpot;
    int DelaiSecondes = 30;  ///< key delai, 1..600
};

/// The file, open for the run: keys that the program does not know are kept on rewriting.
class Configuration {
 public:
    /// Reads `fichier`; a missing one is all defaults. What makes no sense (a word for a number, a
    /// value out of range, a line that is no section, key or comment, bytes that are no UTF-8)
    /// takes its default and is named in `anomalies`; the file itself is never touched here.
    explicit Configuration(std::filesystem::path fichier);
    ~Configuration();
    Configuration(Configuration&&) noexcept;
    Configuration& operator=(Configuration&&) noexcept;

    Reglages reglages;
    /// One short French text for each nonsense found, such as
    /// "[MONNAIE] taux : « beaucoup » n'est pas un nombre".
    std::vector<std::string> anomalies;

    /// One sentence for all anomalies, the first of them named; empty when there are none.
    std::string avertissement() const;

    /// Changes one key and rewrites the file safely, all other lines kept. Refused when the file
    /// on the disk could not be read as a configuration at all.
    Resultat<Rien> ecrire(const std::string& section, const std::string& cle,
                          const std::string& valeur);

 private:
    struct Donnees;
    std::unique_ptr<Donnees> d_;
};

}  // namespace norvane
