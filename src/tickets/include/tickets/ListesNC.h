// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Lists of tickets of one set of numbers or of many: made, filtered by what came out, written to
// files and read back.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Resultat.h"
#include "base/Travail.h"
#include "tickets/CategoriesNC.h"

namespace norvane {

/// The type of the tickets that "00!" makes: five numbers with all chances.
inline constexpr TypeGrille TypeJamaisSorties{NbBoules, ChanceMax};

/// "N: 03 14 25 31 44   C: 02 07 ", the trailing blank included.
std::string TexteLigneNC(const LigneNC& ligne);

/// One line for each set of type.c chances, in rising lexical order, in place of what `liste`
/// held. No line when `numeros` are not type.n.
void AfficherListeNE(std::vector<LigneNC>& liste, Ensemble numeros, TypeGrille type);
/// The same behind what it holds.
void AfficherListeNEAppend(std::vector<LigneNC>& liste, Ensemble numeros, TypeGrille type);

/// What came out over draws inf..sup (one-based; none when sup is below inf), as far as the filters
/// ask: which numbers met in a draw, and which chances came out.
class SortiesNC {
 public:
    SortiesNC(const Base& base, int inf, int sup);

    /// Two of these numbers met in a draw: a ticket of them made a category 0 to 7 there, whatever
    /// its chances.
    bool gagnante(Ensemble numeros) const;
    /// A draw made a category 0 to 9 of it.
    bool sortie(const LigneNC& ligne) const {
        return gagnante(ligne.numeros) || !ligne.chances.commun(chances_).vide();
    }

 private:
    std::array<Masque, NumeroMax> rencontres_{};  // element n-1: the numbers drawn beside n
    Ensemble chances_;
};

/// Filtre C: keeps the lines whose chances are all among `chances`.
void FiltrerChances(std::vector<LigneNC>& liste, Ensemble chances);
/// Filtre 0: keeps the lines that never made a category 0 to 7.
void FiltrerGagnantes(std::vector<LigneNC>& liste, const SortiesNC& sorties);
/// Keeps the lines that never made a category 0 to 9.
void SupprSorties(std::vector<LigneNC>& liste, const SortiesNC& sorties);

/// What a search found before its end, or before it was stopped.
struct Trouvees {
    std::vector<LigneNC> lignes;
    bool arretee = false;
};

/// "00!": of `nombre` combinations of five numbers, those that with all chances never made a
/// category 0 to 7, in their order. `combinaison` gives the one of an index, 0 to nombre - 1, and
/// is called once each, rising. A stop leaves those found so far. Progress runs 0..100.
Trouvees JamaisSorties(const SortiesNC& sorties, std::size_t nombre,
                       const std::function<Ensemble(std::size_t)>& combinaison,
                       const Suivi& suivi = {});

/// The lines of a list file, one a line.
std::string TexteListeNC(std::span<const LigneNC> liste);
/// Reads such a text; CRLF, a byte order mark and blanks at the end of a line are passed over, and
/// so are empty lines at the end. An error names the first line that is of another form, holds a
/// value out of range, or is of a type that is not sold or not that of the first line; a text
/// without a line is an error too.
Resultat<std::vector<LigneNC>> LireListeNC(std::string_view texte);

/// The same of a file.
Resultat<std::vector<LigneNC>> ChargerListeNC(const std::filesystem::path& fichier);
Resultat<Rien> EnregistrerListeNC(std::span<const LigneNC> liste,
                                  const std::filesystem::path& fichier);

}  // namespace norvane
