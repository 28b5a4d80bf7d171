// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/TableauStats.h"

#include <fmt/format.h>

#include <string_view>

#include "base/Dates.h"
#include "base/Textes.h"
#include "stats/Noyau.h"

namespace norvane {

namespace {

/// What the date of an item that never came out reads, trailing blank included.
constexpr std::string_view PasEncoreSorti = "Pas encore sorti ";

const Tirage& TirageNumero(const Base& base, int numero) {
    return base.Tirages[static_cast<std::size_t>(numero - 1)];
}

/// Zero-based bounds, both inclusive.
LigneStats FaireLigne(Element element, const Base& base, const ResultatStats& r, int premier,
                      int dernier) {
    const int n = dernier - premier + 1;
    const int dernierTirage = dernier + 1;
    const int sortie = dernierTirage - r.Ecart;  // the last appearance, when there is one
    const bool sorti = r.Ecart != n;
    // Half up, in whole hundredths: the table sorts by what it shows.
    const std::int64_t ecarts = r.Sorties + 1;
    const std::int64_t ecartMoyen = (200 * std::int64_t{r.SommeEcarts} + ecarts) / (2 * ecarts);

    LigneStats ligne{};
    const auto cellule = [&](ColonneStats colonne) -> Cellule& {
        return ligne.cellules[static_cast<std::size_t>(colonne)];
    };
    const int chiffres = element.genre == GenreStats::Chances ? 2 : 1;
    cellule(ColonneStats::Num) = {FormaterMasque(element.valeur, chiffres), element.valeur, {}};
    cellule(ColonneStats::NbS) = CelluleEntier(r.Sorties);
    cellule(ColonneStats::Ratio) = CelluleRatio(r.Sorties, n);
    cellule(ColonneStats::Date) =
        CelluleDate(sorti ? TirageNumero(base, sortie).DateTirage : 0, PasEncoreSorti, sortie);
    cellule(ColonneStats::E) = CelluleEntier(r.Ecart);
    cellule(ColonneStats::EM) = {
        FormaterDecimal(static_cast<double>(ecartMoyen) / 100, 1), ecartMoyen, {}};
    cellule(ColonneStats::EcartMax) =
        CelluleMaximum(r.EcartMax, r.NbEcartMax, r.PosEcartMax, premier, dernierTirage);
    cellule(ColonneStats::S) = CelluleEntier(r.Suite);
    cellule(ColonneStats::SuiteMax) =
        CelluleMaximum(r.SuiteMax, r.NbSuiteMax, r.PosSuiteMax, premier, dernierTirage);
    if (sorti) {
        cellule(ColonneStats::Num).cible = element;
        cellule(ColonneStats::E).cible = NumeroTirage{sortie};
    }
    return ligne;
}

template <std::size_t N, typename Positions>
std::vector<LigneStats> Remplir(GenreStats genre, const Base& base,
                                const std::array<ListeOccurrences, N>& listes,
                                const Positions& positions, int premier, int dernier) {
    std::vector<LigneStats> lignes;
    lignes.reserve(N);
    const auto& presences = positions[static_cast<std::size_t>(dernier)];
    for (std::size_t k = 0; k < N; ++k) {
        lignes.push_back(FaireLigne({genre, static_cast<int>(k) + 1}, base,
                                    StatsIntervalle(listes[k], premier, dernier), premier,
                                    dernier));
        lignes.back().present = presences[k] >= 0;
    }
    return lignes;
}

/// The count of draws and what follows it on the next line or lines of a label.
std::string Libelle(const Base& base, int inf, int sup, std::string (*date)(int),
                    std::string_view separateur) {
    const std::string debut = date(TirageNumero(base, inf).DateTirage);
    if (inf == sup) return fmt::format("Statistiques sur 1 tirage\nle {}", debut);
    return fmt::format("Statistiques sur {} tirages\ndu {}{}{}", sup - inf + 1, debut, separateur,
                       date(TirageNumero(base, sup).DateTirage));
}

std::string IndiceBouton(std::string_view genre, std::size_t k, const ResultatStats& r,
                         bool allume) {
    std::string court;
    if (!allume)
        court =
            fmt::format("Sorties: {}, Ecart: {}, Suiteprec: {}", r.Sorties, r.Ecart, r.SuitePrec);
    else if (r.Suite == 1)
        court = fmt::format("Sorties: {}, Ecartprec: {}, Suiteprec: {}", r.Sorties, r.EcartPrec,
                            r.SuitePrec);
    else
        court =
            fmt::format("Sorties: {}, Suite: {}, Ecartprec: {}", r.Sorties, r.Suite, r.EcartPrec);
    return fmt::format("{0}|{1}: {2}, {0}", court, genre, k + 1);
}

}  // namespace

std::vector<LigneStats> RemplirStats(GenreStats genre, const Base& base, const Occurrences& occ,
                                     int premier, int dernier) {
    if (genre == GenreStats::Numeros)
        return Remplir(genre, base, occ.ListeNumeros, occ.PositionNumero, premier, dernier);
    return Remplir(genre, base, occ.ListeChances, occ.PositionChance, premier, dernier);
}

std::string LibelleIntervalle(const Base& base, int inf, int sup) {
    return Libelle(base, inf, sup, DateLongue, "\nau ");
}

std::string LibelleIntervalleCourt(const Base& base, int inf, int sup) {
    return Libelle(base, inf, sup, DateCourte, " au ");
}

std::array<std::string, NumeroMax + ChanceMax> IndicesBoutons(
    const Occurrences& occ, int indice, const std::array<bool, NumeroMax + ChanceMax>& allume) {
    std::array<std::string, NumeroMax + ChanceMax> indices;
    if (indice < 0) return indices;
    std::size_t bouton = 0;
    const auto ajouter = [&](std::string_view genre, const auto& listes) {
        for (std::size_t k = 0; k < listes.size(); ++k, ++bouton)
            indices[bouton] =
                IndiceBouton(genre, k, StatsJusqua(listes[k], indice), allume[bouton]);
    };
    ajouter("Numéro", occ.ListeNumeros);
    ajouter("Chance", occ.ListeChances);
    return indices;
}

}  // namespace norvane
