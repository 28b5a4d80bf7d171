// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The two chapters of parts: one for each place of a number in the ascending draw, one for each
// number.
#include <fmt/format.h>

#include <array>
#include <string>
#include <vector>

#include "AnalysesMatiere.h"

namespace norvane {

namespace {

constexpr int NbColonnes = 5;        // of every box table
constexpr int LargeurCellule = 11;   // characters between two bars
constexpr int NbRangees = 10;        // of the table of numbers
constexpr int NumerosParLigne = 10;  // of those that never came out

/// One row of a case: a number that stood there, or never did.
struct Rangee {
    int fois, dernier, numero;
};

/// "┌───┬───┐", of the three characters for its start, its crossings and its end.
std::string Bord(const char* debut, const char* croix, const char* fin) {
    std::string ligne = debut;
    for (int c = 0; c < NbColonnes; ++c) {
        for (int i = 0; i < LargeurCellule; ++i) ligne += "─";
        ligne += c + 1 < NbColonnes ? croix : fin;
    }
    return ligne;
}

void BordHaut(Redacteur& r) {
    r.centree(Style::Table, Bord("┌", "┬", "┐"));
}

void BordBas(Redacteur& r) {
    r.centree(Style::Table, Bord("└", "┴", "┘"));
}

void RangeeVide(Redacteur& r) {
    r.centree(Style::Table, "│");
    for (int c = 0; c < NbColonnes; ++c)
        r.suite(Style::Table, std::string(LargeurCellule, ' ') + "│");
}

/// A row whose cells `cellule(colonne)` writes, each `largeur` characters wide.
template <typename Cellule>
void RangeeTable(Redacteur& r, int largeur, Cellule cellule) {
    const int gauche = (LargeurCellule - largeur) / 2;
    const std::string avant(static_cast<std::size_t>(gauche), ' ');
    const std::string apres(static_cast<std::size_t>(LargeurCellule - largeur - gauche), ' ');
    r.centree(Style::Table, "│");
    for (int c = 0; c < NbColonnes; ++c) {
        r.suite(Style::Table, avant);
        cellule(c);
        r.suite(Style::Table, apres + "│");
    }
}

void LigneRetour(Redacteur& r, bool centree, const char* texte, const char* cible) {
    centree ? r.centree(Style::Retour, {}) : r.ligne(Style::Retour, {});
    r.lien(Style::Retour, fmt::format(" {}", texte), cible, texte, Image::Retour);
}

/// The 49 rows of a case, the highest count first.
std::vector<Rangee> RangeesDe(const std::array<CaseSortie, NumeroMax + 1>& place) {
    std::vector<Rangee> rangees;
    rangees.reserve(NumeroMax);
    for (int n = 1; n <= NumeroMax; ++n) {
        const CaseSortie& sortie = place[static_cast<std::size_t>(n)];
        rangees.push_back({sortie.fois, sortie.dernier, n});
    }
    TrierParCompte(rangees, &Rangee::fois);
    return rangees;
}

/// The highest and the lowest count of the numbers that stood in a case; 0 where none did.
struct Extremes {
    int haut, bas;
};
Extremes ExtremesDe(const std::vector<Rangee>& sorties) {
    if (sorties.empty()) return {0, 0};
    return {sorties.front().fois, sorties.back().fois};
}

void RedigerJamais(Redacteur& r, std::vector<Rangee> jamais) {
    std::ranges::sort(jamais, {}, &Rangee::numero);
    r.ligne(Style::Corps, "Les numéros jamais sortis : ");
    int places = 0;
    for (const Rangee& rangee : jamais) {
        if (places == NumerosParLigne) {
            r.ligne(Style::Corps, std::string(28, ' '));
            places = 0;
        }
        r.suite(Style::Corps, fmt::format("{:2} ", rangee.numero));
        ++places;
    }
}

/// `rangees` are sorted: those that came out stand before the others.
void RedigerCase(Redacteur& r, std::vector<Rangee> rangees) {
    const auto fin = std::ranges::find(rangees, 0, &Rangee::fois);
    const std::vector<Rangee> jamais(fin, rangees.end());
    rangees.erase(fin, rangees.end());
    const std::size_t m = rangees.size();
    r.ligne(Style::Total,
            m == 1 ? "1 numéro sorti au total" : fmt::format("{} numéros sortis au total", m));
    r.ligne(Style::TitreTable, "Détail");
    r.vide();
    for (const Rangee& rangee : rangees) {
        r.ligne(Style::Corps, fmt::format("Le numéro {:2} est sorti {:3} fois ({:4})",
                                          rangee.numero, rangee.fois, rangee.dernier));
    }
    const Extremes extremes = ExtremesDe(rangees);
    r.ligne(Style::Corps, "Les numéros le plus sortis : ");
    for (const Rangee& rangee : rangees) {
        if (rangee.fois == extremes.haut)
            r.suite(Style::Corps, fmt::format("{:2} ", rangee.numero));
    }
    r.ligne(Style::Corps, fmt::format("Les numéros sortis {} fois  : ", extremes.bas));
    for (auto i = rangees.rbegin(); i != rangees.rend() && i->fois == extremes.bas; ++i)
        r.suite(Style::Corps, fmt::format("{:2} ", i->numero));
    const auto [minimum, maximum] = std::ranges::minmax_element(rangees, {}, &Rangee::numero);
    if (m > 0) {
        r.ligne(Style::Corps,
                fmt::format("Minima: {}    Maxima: {}    Différentiel: {}", minimum->numero,
                            maximum->numero, maximum->numero - minimum->numero));
    }
    RedigerJamais(r, jamais);
    LigneRetour(r, false, "Retour au choix des cases", "cases");
}

void RedigerChoixNumeros(Redacteur& r) {
    r.centree(Style::TitreTable, "Choix des numéros");
    BordHaut(r);
    for (int rangee = 1; rangee <= NbRangees; ++rangee) {
        if (rangee > 1) r.centree(Style::Table, Bord("├", "┼", "┤"));
        RangeeTable(r, 2, [&](int c) {
            const int n = rangee + NbRangees * c;
            if (n > NumeroMax) {
                r.suite(Style::Table, "  ");
                return;
            }
            // The blank beside a single digit stays out of the link.
            if (n < 10) r.suite(Style::Table, " ");
            r.lien(Style::LienTable, std::to_string(n), fmt::format("numero{}", n),
                   fmt::format("Numéro {}", n));
        });
    }
    BordBas(r);
}

/// The count of a number in a case with its mark, four characters.
std::string CelluleRayonnement(int fois, const Extremes& extremes) {
    if (fois == 0) return "    ";
    const char* marque = fois == extremes.haut ? "↑" : fois == extremes.bas ? "↓" : " ";
    return fmt::format("{:3}{}", fois, marque);
}

void RedigerNumero(Redacteur& r, const MatiereAnalyses& m,
                   const std::array<Extremes, NbBoules>& extremes, int numero) {
    std::array<CaseSortie, NbBoules> places;
    int total = 0;
    for (std::size_t k = 0; k < NbBoules; ++k) {
        places[k] = m.comptes.Cases[k][static_cast<std::size_t>(numero)];
        total += places[k].fois;
    }
    r.vide();
    r.ancre(fmt::format("numero{}", numero));
    r.centree(Style::TitreChapitre, fmt::format("Rayonnement N°{}", numero));
    r.vide();
    BordHaut(r);
    RangeeTable(r, 4, [&](int c) {
        const auto k = static_cast<std::size_t>(c);
        r.suite(Style::Table, CelluleRayonnement(places[k].fois, extremes[k]));
    });
    BordBas(r);
    r.centree(Style::Corps, fmt::format("Nombre d'apparitions au total : {:3}", total));
    r.centree(Style::TitreTable, "Détail");
    for (std::size_t k = 0; k < NbBoules; ++k) {
        if (places[k].fois == 0) continue;
        r.centree(Style::Corps, fmt::format("{:3} fois en position {:2}  ({:4})", places[k].fois,
                                            k + 1, places[k].dernier));
    }
    LigneRetour(r, true, "Retour au choix des numéros", "rayonnement");
}

}  // namespace

void RedigerCases(Redacteur& r, const MatiereAnalyses& m) {
    r.centree(Style::TitreTable, "Choix des cases");
    BordHaut(r);
    RangeeVide(r);
    RangeeTable(r, 8, [&](int c) {
        r.lien(Style::LienTable, fmt::format("CASE N°{}", c + 1), fmt::format("case{}", c + 1),
               fmt::format("Case N°{}", c + 1));
    });
    RangeeVide(r);
    BordBas(r);
    for (std::size_t k = 0; k < NbBoules; ++k) {
        r.vide();
        r.ancre(fmt::format("case{}", k + 1));
        r.centree(Style::TitreChapitre, fmt::format("CASE N°{}", k + 1));
        RedigerCase(r, RangeesDe(m.comptes.Cases[k]));
    }
}

void RedigerRayonnement(Redacteur& r, const MatiereAnalyses& m) {
    std::array<Extremes, NbBoules> extremes{};
    for (std::size_t k = 0; k < NbBoules; ++k) {
        std::vector<Rangee> rangees = RangeesDe(m.comptes.Cases[k]);
        rangees.erase(std::ranges::find(rangees, 0, &Rangee::fois), rangees.end());
        extremes[k] = ExtremesDe(rangees);
    }
    RedigerChoixNumeros(r);
    for (int n = 1; n <= NumeroMax; ++n) RedigerNumero(r, m, extremes, n);
}

}  // namespace norvane
