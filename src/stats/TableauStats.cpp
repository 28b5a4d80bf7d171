// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "stats/TableauStats.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <string_view>

#include "base/Dates.h"
#include "base/Textes.h"

namespace norvane {

namespace {

const Tirage& TirageNumero(const Base& base, int numero) {
    return base.Tirages[static_cast<std::size_t>(numero - 1)];
}

LigneStats FaireLigne(GenreStats genre, const Base& base, int element, const ResultatStats& r,
                      int premier, int dernier) {
    const int n = dernier - premier + 1;
    const double pourcentage = r.Sorties * 100.0 / n;
    const int dernierTirage = dernier + 1;

    LigneStats ligne{.element = element,
                     .resultat = r,
                     .ratioGraphique = static_cast<int>(std::trunc(pourcentage * 100 + 0.5)),
                     .present = false,
                     .cellules = {}};
    const auto cellule = [&](ColonneStats colonne) -> std::string& {
        return ligne.cellules[static_cast<std::size_t>(colonne)];
    };
    cellule(ColonneStats::Num) = FormaterMasque(element, genre == GenreStats::Chances ? 2 : 1);
    cellule(ColonneStats::NbS) = fmt::to_string(r.Sorties);
    cellule(ColonneStats::Ratio) = FormaterDecimal(pourcentage, 2) + "% ";
    cellule(ColonneStats::Date) =
        r.Ecart == n ? std::string(PasEncoreSorti)
                     : DateLongue(TirageNumero(base, dernierTirage - r.Ecart).DateTirage);
    cellule(ColonneStats::E) = fmt::to_string(r.Ecart);
    cellule(ColonneStats::EM) =
        FormaterDecimal(static_cast<double>(r.SommeEcarts) / (r.Sorties + 1), 1);
    cellule(ColonneStats::EcartMax) =
        CelluleMaximum(r.EcartMax, r.NbEcartMax, r.PosEcartMax, dernierTirage);
    cellule(ColonneStats::S) = fmt::to_string(r.Suite);
    cellule(ColonneStats::SuiteMax) =
        CelluleMaximum(r.SuiteMax, r.NbSuiteMax, r.PosSuiteMax, dernierTirage);
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
        lignes.push_back(FaireLigne(genre, base, static_cast<int>(k) + 1,
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

std::string CelluleMaximum(int valeur, int nombre, int position, int dernierTirage) {
    const int chiffres = dernierTirage < 10     ? 1
                         : dernierTirage < 100  ? 2
                         : dernierTirage < 1000 ? 3
                                                : 4;
    return fmt::format("{}  ({} {})", FormaterMasque(valeur, 2), FormaterMasque(nombre, 2),
                       FormaterMasque(position, chiffres));
}

MaximumLu LireCelluleMaximum(std::string_view cellule) {
    const auto ouvrante = cellule.find('(');
    const auto fermante = cellule.find(')', ouvrante == cellule.npos ? 0 : ouvrante);
    if (ouvrante == cellule.npos || fermante == cellule.npos) return {0, 0};
    const std::string_view dedans = Rogner(cellule.substr(ouvrante + 1, fermante - ouvrante - 1));
    const auto blanc = dedans.find(' ');
    if (blanc == dedans.npos) return {0, 0};

    const auto entier = [](std::string_view texte, int& valeur) {
        const auto fin = texte.data() + texte.size();
        const auto [lu, erreur] = std::from_chars(texte.data(), fin, valeur);
        return erreur == std::errc{} && lu == fin;
    };
    MaximumLu lu{};
    if (!entier(dedans.substr(0, blanc), lu.nombre) ||
        !entier(Rogner(dedans.substr(blanc)), lu.position))
        return {0, 0};
    return lu;
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
