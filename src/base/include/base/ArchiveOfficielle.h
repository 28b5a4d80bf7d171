// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The game's official history: a table with `;` between fields whose columns are named in its first
// line, alone or as the one file of a ZIP. Its columns and its ways of writing numbers, dates and
// the Joker+ have changed over the years; all are read. Newest draw first, or last.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Base.h"
#include "base/Resultat.h"
#include "base/Travail.h"

namespace norvane {

/// A line that was left out, and why, as the end of a French sentence.
struct LigneRefusee {
    int numero;  ///< from 1, the heading included
    std::string raison;

    friend bool operator==(const LigneRefusee&, const LigneRefusee&) = default;
};

/// A record as an archive tells it. What an archive does not tell is 0, or JokerAbsent.
struct TirageArchive {
    Tirage tirage;
    RapportsTirage rapports{};
};

struct ArchiveOfficielle {
    std::vector<TirageArchive> tirages;  ///< by date, then SousTirage, each once
    std::vector<LigneRefusee> refusees;
};

/// Reads the bytes of a ZIP or of the table itself. Refused whole: what is no such archive, an
/// archive without a sound line, a stop. `nom` names it in the sentences.
Resultat<ArchiveOfficielle> LireArchiveOfficielle(std::string_view octets, std::string_view nom,
                                                  const Suivi& suivi = {});

struct Fusion {
    int ajoutes = 0;
    int modifies = 0;
    int inchanges = 0;
    bool change() const { return ajoutes + modifies > 0; }
};

/// Brings the records of an archive into a base, by date and SousTirage: new ones take their place,
/// others take what the archive tells differently. Precondition: no filter is active. Refused, the
/// base unchanged, beyond NbTiragesMax records.
Resultat<Fusion> FusionnerArchive(Base& base, const ArchiveOfficielle& archive);

}  // namespace norvane
