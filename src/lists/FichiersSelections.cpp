// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "lists/FichiersSelections.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

#include "base/Fichiers.h"
#include "base/Textes.h"
#include "comb/Combinaison.h"
#include "LecteurEntiers.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t NbValeurs = 1 + NumeroMax;
constexpr std::uint32_t EtatMax = 2;
/// Fifty short words; anything larger is no selection.
constexpr std::uint64_t OctetsSelectionMax = 1 << 16;
/// A full list of the longest lines, with room for their ends.
constexpr std::uint64_t OctetsSelectionsMax = CapaciteListe * 128;
constexpr std::string_view FinLigne = " N°)";

Erreur Refus(const fs::path& fichier, std::string_view defaut) {
    return {fmt::format("« {} » : {}. Rien n'est chargé : choisissez un autre fichier.",
                        fichier.string(), defaut)};
}

std::ptrdiff_t Nombre(const GrilleSelection& grille, Priorite priorite) {
    return std::ranges::count(grille, priorite);
}

}  // namespace

Resultat<GrilleSelection> OuvrirSelection(const fs::path& fichier) {
    const auto texte = LireFichier(fichier, OctetsSelectionMax);
    if (!texte) return Erreur{texte.erreur()};
    LecteurEntiers entiers(SansMarqueOctets(*texte));
    GrilleSelection grille{};
    std::uint32_t annonces = 0;
    std::size_t lus = 0;
    for (; entiers.suivant(); ++lus) {
        if (lus == NbValeurs)
            return Refus(
                fichier,
                fmt::format("une sélection tient en {} valeurs, et le fichier continue par "
                            "« {} »",
                            NbValeurs, Citer(entiers.mot())));
        const std::uint32_t max = lus == 0 ? NumeroMax : EtatMax;
        const auto lu = entiers.entier(max);
        if (!lu)
            return Refus(fichier, fmt::format("la valeur {} (« {} ») n'est pas un entier de 0 à {}",
                                              lus + 1, Citer(entiers.mot()), max));
        if (lus == 0) {
            annonces = *lu;
        } else {
            grille[lus - 1] = static_cast<Priorite>(*lu);
        }
    }
    if (lus < NbValeurs)
        return Refus(fichier,
                     fmt::format("une sélection tient en {} valeurs, et le fichier s'arrête après "
                                 "{}",
                                 NbValeurs, lus));
    const auto absolus = Nombre(grille, Priorite::Absolue);
    if (absolus != annonces)
        return Refus(fichier, fmt::format("{} numéros en priorité absolue sont annoncés, et {} "
                                          "cochés",
                                          annonces, absolus));
    return grille;
}

Resultat<Rien> SauverSelection(const GrilleSelection& grille, const fs::path& fichier) {
    std::string texte = fmt::format("{}", Nombre(grille, Priorite::Absolue));
    for (const Priorite priorite : grille) texte += fmt::format(" {}", static_cast<int>(priorite));
    return EcrireFichier(fichier, texte + '\n');
}

std::string LigneSelection(Ensemble numeros) {
    std::string ligne;
    for (const int n : numeros) ligne += fmt::format("{:02} ", n);
    return ligne + fmt::format(" ({}{}", numeros.taille(), FinLigne);
}

std::optional<Ensemble> LireLigneSelection(std::string_view ligne) {
    const std::size_t parenthese = std::min(ligne.find('('), ligne.size());
    Ensemble numeros;
    LecteurEntiers entiers(ligne.substr(0, parenthese));
    while (entiers.suivant()) {
        const auto n = entiers.entier(NumeroMax);
        if (!n || *n == 0 || numeros.contient(static_cast<int>(*n))) return std::nullopt;
        numeros.ajouter(static_cast<int>(*n));
    }
    const int taille = numeros.taille();
    const bool compte = Rogner(ligne.substr(parenthese)) == fmt::format("({}{}", taille, FinLigne);
    if (!compte || taille < NumerosSelectionMin || taille > NumerosSelectionMax)
        return std::nullopt;
    return numeros;
}

Resultat<std::vector<Ensemble>> OuvrirSelections(const fs::path& fichier) {
    const auto texte = LireFichier(fichier, OctetsSelectionsMax);
    if (!texte) return Erreur{texte.erreur()};
    std::vector<Ensemble> selections;
    std::string_view reste = SansMarqueOctets(*texte);
    for (int numero = 1; !Rogner(reste).empty(); ++numero) {
        const auto fin = std::min(reste.find('\n'), reste.size());
        const std::string_view ligne = reste.substr(0, fin);
        reste.remove_prefix(std::min(fin + 1, reste.size()));
        const auto lue = LireLigneSelection(ligne);
        if (!lue)
            return Refus(fichier,
                         fmt::format("la ligne {} (« {} ») n'est pas une sélection de {} à {} "
                                     "numéros suivis de leur nombre, comme « {} »",
                                     numero, Citer(Rogner(ligne)), NumerosSelectionMin,
                                     NumerosSelectionMax, LigneSelection({1, 7, 49})));
        selections.push_back(*lue);
    }
    if (selections.empty()) return Refus(fichier, "le fichier ne contient aucune sélection");
    if (selections.size() > CapaciteListe)
        return Refus(fichier, fmt::format("il compte {} lignes, plus que les {} d'une liste",
                                          selections.size(), CapaciteListe));
    return selections;
}

Resultat<Rien> SauverSelections(std::span<const Ensemble> selections, const fs::path& fichier) {
    std::string texte;
    for (const Ensemble numeros : selections) texte += LigneSelection(numeros) + '\n';
    return EcrireFichier(fichier, texte);
}

}  // namespace norvane
