// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The filter of the base: which draws of a sub-series are kept, its files *.flt, and the base with
// those draws alone.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "base/Base.h"
#include "base/Resultat.h"

namespace norvane {

inline constexpr const char* ExtensionFiltre = "flt";
inline constexpr const char* DossierFiltres = "Filtres";

/// The four lists of criteria, in the order of their files.
enum class ListeFiltre : std::uint8_t { Tirages, Mois, Dates, Jours };
inline constexpr int NbListesFiltre = 4;
/// How many entries each list has.
inline constexpr std::array<int, NbListesFiltre> EntreesFiltre{5, 12, 31, 7};

/// Entries of ListeFiltre::Tirages, of which one at most is checked.
enum EntreeTirages : std::uint8_t {
    TousTirages,
    AvecChance,
    DepuisSecondTirage,
    DepuisSecondAvecChance,
    DepuisSecondSansChance
};

/// What is checked. A list of which all or no entries are checked keeps every draw.
class CriteresFiltre {
 public:
    bool coche(ListeFiltre liste, int entree) const { return (de(liste) >> entree & 1U) != 0; }
    /// Checking an entry of ListeFiltre::Tirages takes the check off the others.
    void cocher(ListeFiltre liste, int entree, bool oui);
    void vider(ListeFiltre liste) { de(liste) = 0; }

    bool garde(const Tirage& tirage) const;
    /// True where no base could lose a draw: all draws asked for, and no other list that chooses.
    bool gardeTout() const;

    friend bool operator==(const CriteresFiltre&, const CriteresFiltre&) = default;

 private:
    std::uint32_t& de(ListeFiltre liste) { return coches_[static_cast<std::size_t>(liste)]; }
    std::uint32_t de(ListeFiltre liste) const { return coches_[static_cast<std::size_t>(liste)]; }
    bool choisit(ListeFiltre liste) const;
    bool passe(ListeFiltre liste, int entree) const {
        return !choisit(liste) || coche(liste, entree);
    }
    bool passeTirages(const Tirage& tirage) const;

    std::array<std::uint32_t, NbListesFiltre> coches_{};  ///< bit k: entry k is checked
};

/// Reads a *.flt. Refused with a sentence: other than 55 values, a value other than 0 or 1, more
/// than one entry checked of ListeFiltre::Tirages.
Resultat<CriteresFiltre> OuvrirFiltre(const std::filesystem::path& fichier);
Resultat<Rien> SauverFiltre(const CriteresFiltre& criteres, const std::filesystem::path& fichier);

/// The whole base, as long as a filter is on.
struct CopieBase {
    std::vector<Tirage> Tirages;
    std::int32_t NbAnciensTirages = 0;
};

enum class IssueFiltre : std::uint8_t { Applique, ToutGarde, MoinsDeDeux };

/// Leaves the draws that meet the criteria, and the whole base in `copie`; the prizes stay at their
/// positions. On any other answer than Applique nothing changed. Precondition: no filter is on.
IssueFiltre FiltrerBase(Base& base, const CriteresFiltre& criteres, CopieBase& copie);
/// The whole base again; `copie` is empty then.
void RendreBase(Base& base, CopieBase& copie);

/// What the user is told of a filter that was refused: a sentence, and a second paragraph.
struct MessageFiltre {
    const char* phrase;
    const char* detail;
};
/// Any but IssueFiltre::Applique.
MessageFiltre MessageRefus(IssueFiltre issue);

}  // namespace norvane
