// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Filtre.h"

#include <fmt/format.h>

#include <bit>
#include <iterator>
#include <sstream>
#include <string_view>
#include <utility>

#include "base/Dates.h"
#include "base/Fichiers.h"
#include "base/Textes.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t NbValeurs = 5 + 12 + 31 + 7;
/// Fifty-five digits; anything larger is no filter.
constexpr std::uint64_t OctetsFiltreMax = 1 << 12;
constexpr int TiragesMin = 2;  ///< below, nothing can be computed of a base

constexpr std::array<ListeFiltre, NbListesFiltre> Listes{ListeFiltre::Tirages, ListeFiltre::Mois,
                                                         ListeFiltre::Dates, ListeFiltre::Jours};

constexpr int Entrees(ListeFiltre liste) {
    return EntreesFiltre[static_cast<std::size_t>(liste)];
}

Erreur Refuser(const fs::path& fichier, std::string_view defaut) {
    return {fmt::format("« {} » : {}. Rien n'est chargé : choisissez un autre fichier.",
                        fichier.string(), defaut)};
}

}  // namespace

void CriteresFiltre::cocher(ListeFiltre liste, int entree, bool oui) {
    if (oui && liste == ListeFiltre::Tirages) vider(liste);
    const std::uint32_t masque = 1U << entree;
    de(liste) = oui ? de(liste) | masque : de(liste) & ~masque;
}

bool CriteresFiltre::choisit(ListeFiltre liste) const {
    const int cochees = std::popcount(de(liste));
    return cochees != 0 && cochees != Entrees(liste);
}

bool CriteresFiltre::passeTirages(const Tirage& tirage) const {
    const bool chance = tirage.Chance != 0;
    const bool depuis = tirage.DateTirage >= DateSecondTirage;
    const auto exige = [this](EntreeTirages e) { return coche(ListeFiltre::Tirages, e); };
    if (exige(AvecChance)) return chance;
    if (exige(DepuisSecondTirage)) return depuis;
    if (exige(DepuisSecondAvecChance)) return depuis && chance;
    if (exige(DepuisSecondSansChance)) return depuis && !chance;
    return true;
}

bool CriteresFiltre::garde(const Tirage& tirage) const {
    const int date = tirage.DateTirage;
    return passeTirages(tirage) && passe(ListeFiltre::Mois, date / 100 % 100 - 1) &&
           passe(ListeFiltre::Dates, date % 100 - 1) &&
           passe(ListeFiltre::Jours, JourSemaine(date));
}

bool CriteresFiltre::gardeTout() const {
    return coche(ListeFiltre::Tirages, TousTirages) && !choisit(ListeFiltre::Mois) &&
           !choisit(ListeFiltre::Dates) && !choisit(ListeFiltre::Jours);
}

Resultat<CriteresFiltre> OuvrirFiltre(const fs::path& fichier) {
    const auto texte = LireFichier(fichier, OctetsFiltreMax);
    if (!texte) return Erreur{texte.erreur()};
    std::istringstream flux{std::string(SansMarqueOctets(*texte))};
    const std::vector<std::string> mots{std::istream_iterator<std::string>(flux), {}};
    if (mots.size() != NbValeurs) {
        return Refuser(fichier, fmt::format("un filtre tient en {} valeurs, et le fichier en a {}",
                                            NbValeurs, mots.size()));
    }
    CriteresFiltre criteres;
    std::size_t place = 0;
    for (const ListeFiltre liste : Listes) {
        int cochees = 0;
        for (int entree = 0; entree < Entrees(liste); ++entree) {
            const std::string& mot = mots[place++];
            if (mot != "0" && mot != "1") {
                return Refuser(fichier, fmt::format("la valeur {} (« {} ») n'est ni 0 ni 1", place,
                                                    Citer(mot)));
            }
            if (mot == "0") continue;
            criteres.cocher(liste, entree, true);
            ++cochees;
        }
        if (liste == ListeFiltre::Tirages && cochees > 1) {
            return Refuser(
                fichier,
                fmt::format("{} choix de tirages y sont cochés, il en faut un au plus", cochees));
        }
    }
    return criteres;
}

Resultat<Rien> SauverFiltre(const CriteresFiltre& criteres, const fs::path& fichier) {
    std::string texte;
    for (const ListeFiltre liste : Listes) {
        for (int entree = 0; entree < Entrees(liste); ++entree) {
            if (!texte.empty()) texte += ' ';
            texte += criteres.coche(liste, entree) ? '1' : '0';
        }
    }
    return EcrireFichier(fichier, texte);
}

IssueFiltre FiltrerBase(Base& base, const CriteresFiltre& criteres, CopieBase& copie) {
    if (criteres.gardeTout()) return IssueFiltre::ToutGarde;
    std::vector<Tirage> gardes;
    std::int32_t anciens = 0;
    for (std::size_t i = 0; i < static_cast<std::size_t>(base.NbTirages); ++i) {
        if (!criteres.garde(base.Tirages[i])) continue;
        gardes.push_back(base.Tirages[i]);
        if (i < static_cast<std::size_t>(base.NbAnciensTirages)) ++anciens;
    }
    const auto nombre = static_cast<std::int32_t>(gardes.size());
    if (nombre == base.NbTirages) return IssueFiltre::ToutGarde;
    if (nombre < TiragesMin) return IssueFiltre::MoinsDeDeux;
    base.NbTiragesTotal = base.NbTirages;
    copie.NbAnciensTirages = std::exchange(base.NbAnciensTirages, anciens);
    copie.Tirages = std::exchange(base.Tirages, std::move(gardes));
    base.NbTirages = nombre;
    return IssueFiltre::Applique;
}

void RendreBase(Base& base, CopieBase& copie) {
    base.NbTirages = base.NbTiragesTotal;
    base.NbAnciensTirages = copie.NbAnciensTirages;
    base.Tirages = std::exchange(copie.Tirages, {});
}

MessageFiltre MessageRefus(IssueFiltre issue) {
    if (issue == IssueFiltre::MoinsDeDeux) {
        return {"Le filtre choisi a laissé moins de 2 tirages dans la base...",
                "Rappel: La base doit contenir au moins 2 tirages...\nCe filtre a donc été annulé, "
                "choisissez en un autre en affinant vos critères."};
    }
    return {"Tous les tirages ont été conservés suite au filtre défini...",
            "Vous pouvez choisir un autre filtre en affinant vos critères."};
}

}  // namespace norvane
