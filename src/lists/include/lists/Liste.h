// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A list of combinations: the main list, the three buffers and the extremes alike.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "comb/Combinaison.h"
#include "comb/Enregistrement.h"

namespace norvane {

enum class TypeTri : std::uint16_t { Simple = 0, Profondeur = 1, Gain = 2, Sans = 65535 };

/// The word of a block that a sort looks at.
enum class Critere : std::uint8_t { NbFois = 0, Ecart, EcartMax, Suite, SuiteMax };

/// How the lines of a list were last sorted.
struct EtatTri {
    TypeTri TypeTriListe = TypeTri::Sans;
    Critere CritereTri = Critere::NbFois;
    bool OrdreCroissant = false;
    int RangTri = 0;  ///< good numbers that a depth sort starts from

    friend bool operator==(const EtatTri&, const EtatTri&) = default;
};

/// How a list is cut into numbered sub-lists. It goes with the list: a new one is not cut.
struct Division {
    bool enPreparation = false;       ///< their size is being chosen
    std::size_t TailleSousListe = 0;  ///< lines of each but the last, which may have fewer
    std::size_t NbSousListes = 0;     ///< 0: not cut

    friend bool operator==(const Division&, const Division&) = default;
};

/// Lines are zero-based and go through the order; records are indices of the arena. Who changes a
/// list works through the operations below or leaves it in a state they could have left.
struct Liste {
    Arene arene{{0, ModeStockage::PremierRang}, {}};  ///< size 0: nothing was ever listed
    std::vector<std::uint32_t> ordre;  ///< record of each line; empty: the order of the arena
    std::vector<bool> marques;         ///< by record: brought by a new draw; empty: none was
    int DebutListe = 0;                ///< interval it speaks of, one-based, inclusive
    int FinListe = 0;
    std::size_t NbCombRangs = 0;  ///< records whose lower ranks are filled
    EtatTri tri;
    Division division;
    bool partielle = false;   ///< its search was stopped
    bool melangee = false;    ///< stopped on the way to its interval: some records are of another
    std::uint64_t total = 0;  ///< combinations found where only the first were kept; else 0
    std::optional<double> secondes{};  ///< that the last work on it took, where it comes from one

    int taille() const { return arene.disposition.taille; }
    ModeStockage mode() const { return arene.disposition.mode; }
    std::size_t nombre() const { return arene.nombre(); }
    bool vide() const { return arene.mots.empty(); }
    /// Combinations there were, those not kept included.
    std::uint64_t nombreTotal() const { return std::max<std::uint64_t>(total, nombre()); }
    bool entiere() const { return !partielle && nombreTotal() == nombre(); }

    std::size_t indice(std::size_t ligne) const { return ordre.empty() ? ligne : ordre[ligne]; }
    std::span<const Mot> enregistrement(std::size_t ligne) const { return arene[indice(ligne)]; }
    /// Count of the first rank.
    int nbFois(std::size_t ligne) const {
        return enregistrement(ligne)[static_cast<std::size_t>(arene.disposition.premierRang())];
    }
    std::span<const Mot> numeros(std::size_t ligne) const {
        return enregistrement(ligne).subspan(static_cast<std::size_t>(arene.disposition.numeros()));
    }
    bool marque(std::size_t ligne) const { return !marques.empty() && marques[indice(ligne)]; }
    /// The line as a value: its numbers, its count, its mark.
    Combinaison combinaison(std::size_t ligne) const {
        return {Ensemble::de(numeros(ligne)), nbFois(ligne), marque(ligne)};
    }
};

/// Zero-based lines, ascending, each once.
using LignesChoisies = std::span<const std::size_t>;

/// A list of extremes from its lines: records that hold the count alone, in their order.
Liste ListeDeCombinaisons(int taille, std::span<const Combinaison> lignes);

/// Whether lines of `source` may go to `cible`: an empty list takes any, another one those of its
/// own size, mode of storage and interval.
bool Compatibles(const Liste& source, const Liste& cible);

struct Transfert {
    enum class Issue : std::uint8_t {
        Fait,
        Incompatible,  ///< nothing changed
        Plein          ///< the target has reached CapaciteListe with lines left over
    };
    Issue issue = Issue::Fait;
    std::size_t faits = 0;  ///< lines copied or moved, the first ones
};
/// Appends lines of the source to the target, up to CapaciteListe records. An empty target takes
/// the type and the interval of the source. A list onto itself, or no line, does nothing.
Transfert Copier(const Liste& source, LignesChoisies lignes, Liste& cible);
/// The same; the lines that arrived leave the source.
Transfert Deplacer(Liste& source, LignesChoisies lignes, Liste& cible);

/// The other lines stay in their order. Without any line left the list is empty of everything.
void Supprimer(Liste& liste, LignesChoisies lignes);
/// Keeps the first `n` lines, as they stand.
void Couper(Liste& liste, std::size_t n);
/// Drops the records (not the lines) that are not kept; the other lines stay in their order.
void Garder(Liste& liste, const std::vector<bool>& enregistrements);
/// Counts NbCombRangs anew, from the records.
void CompterRangs(Liste& liste);
/// The record of each line, written out.
std::vector<std::uint32_t> OrdreDesLignes(const Liste& liste);
/// No record, no size, no interval.
void Vider(Liste& liste);

/// By the numbers, the first difference deciding; lines with equal numbers keep their order.
void TrierLexico(Liste& liste, bool croissant);
/// The highest count of the first rank first; lines with equal counts by their numbers, ascending.
void TrierFrequence(Liste& liste);
/// Sorts by the numbers, ascending, and of lines with equal numbers keeps the last. How many went.
std::size_t RetirerDoublons(Liste& liste);

/// Lines that a sub-list may have at most, as many as a buffer holds; 0 for an empty list.
std::size_t TailleSousListeMax(const Liste& liste);
/// Cuts the list into sub-lists of `taille` lines, 1..TailleSousListeMax. Nothing is copied.
void Diviser(Liste& liste, std::size_t taille);
/// Puts a copy of sub-list `numero` (from 1) of a list that was cut in place of what `cible` holds:
/// empty when the list has become too short for it.
void ExtraireSousListe(const Liste& liste, std::size_t numero, Liste& cible);

/// The line that has these numbers, ascending.
std::optional<std::size_t> Position(const Liste& liste, std::span<const Mot> numeros);

}  // namespace norvane
