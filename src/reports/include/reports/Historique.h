// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The history of something that comes out: every draw of an interval where it did, or every draw
// with its state, with gaps and runs.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/Base.h"
#include "reports/SujetHistorique.h"
#include "stats/ExportTableau.h"
#include "stats/Noyau.h"
#include "stats/Occurrences.h"

namespace norvane {

/// It keeps the draws of its moment: what happens to the base afterwards does not touch it.
struct Historique {
    SujetHistorique sujet = Element{GenreStats::Numeros, 1};
    int inf = 1, sup = 0;         ///< draws, one-based, inclusive
    std::vector<Tirage> tirages;  ///< those of the interval
    std::vector<bool> sorties;    ///< flags of the same
    ResultatStats stats{};        ///< over the interval; 0 `Sorties` when it never came out
};

/// Draws inf..sup (one-based, 1 <= inf <= sup <= NbTirages).
Historique FaireHistorique(const Base& base, const Occurrences& occ, const SujetHistorique& sujet,
                           int inf, int sup);

/// The five figures.
struct ChiffresHistorique {
    int ecartActuel, ecartMax;
    int ecartMoyen;  ///< mean of all gaps, the present one included, to the nearest whole
    int suiteActuelle, suiteMax;

    friend bool operator==(const ChiffresHistorique&, const ChiffresHistorique&) = default;
};
ChiffresHistorique Chiffres(const Historique& historique);

/// The draws where it came out, or all of them.
enum class VueHistorique { Sorties, Tout };

struct LigneHistorique {
    int numero;  ///< of the draw, one-based
    bool sortie;
    int ecart;  ///< draws without it since the last one with it, or since the start
    int suite;  ///< consecutive draws with it up to this one
};
/// In ascending order.
std::vector<LigneHistorique> Lignes(const Historique& historique, VueHistorique vue);

inline const Tirage& TirageDe(const Historique& historique, const LigneHistorique& ligne) {
    return historique.tirages[static_cast<std::size_t>(ligne.numero - historique.inf)];
}

/// The sum of the numbers and the Chance of a draw.
int Poids(const Tirage& tirage);

// ------------------------------------------------------------------------------------- the table

/// Columns, in order; N1 to N5 stand between Date and Chance.
enum class ColonneHistorique { Tirage, Date, N1, Chance = 7, Ecart, Suite, Poids };
inline constexpr int NbColonnesHistorique = 11;

struct EnteteHistorique {
    const char* texte;  ///< also that of files, where the Chance has no picture
    NatureColonne nature;
};
const std::array<EnteteHistorique, NbColonnesHistorique>& EntetesHistorique();

/// How a cell stands out.
enum class TeinteHistorique {
    Ordinaire,
    Sortie,   ///< of the row of a draw where it came out
    Element,  ///< the very number or Chance that the history is about, on any row
};

struct CelluleHistorique : Cellule {
    TeinteHistorique teinte = TeinteHistorique::Ordinaire;
};
using RangeeHistorique = std::array<CelluleHistorique, NbColonnesHistorique>;

/// The rows of a view. Draw numbers lead to their draw; a Chance of 0 is blank.
std::vector<RangeeHistorique> Rangees(const Historique& historique, VueHistorique vue);

// ------------------------------------------------------------------------------------- the texts

/// "Historique du numéro 7", a name for its file as well.
std::string NomHistorique(const Historique& historique);

/// "Historique du numéro 7, tirages 1 (06/10/2008) à 3214 (24/07/2024)".
std::string TitreHistorique(const Historique& historique);

/// "Ecart Actuel=5, Ecart Max=48, Ecart Moyen=9, Suite Actuelle=0, Suite Max=3".
std::string LigneChiffres(const ChiffresHistorique& chiffres);

/// "Numéro non sorti sur la période...", after what the subject is.
std::string MessageNonSorti(const SujetHistorique& sujet);

/// A view in ascending order, for a file.
TableauExporte ExporterHistorique(const Historique& historique, VueHistorique vue);

}  // namespace norvane
