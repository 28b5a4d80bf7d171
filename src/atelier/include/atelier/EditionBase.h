// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The editing of the base by hand: a record is opened or begun, filled in, and validated.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "atelier/FiltreBase.h"

namespace norvane {

/// Where an edit takes place.
struct PlaceTirage {
    int indice = -1;     ///< record on show; -1: none, one is to be added
    int precedent = -1;  ///< where there is none: the record it comes after, -1 for the first place
    int date = 0;        ///< yyyymmdd
    int SousTirage = 1;
};

/// The cells of a prize table, rank by rank; nothing for an empty one.
struct RapportSaisi {
    std::optional<double> Gagnants, Gain;

    friend bool operator==(const RapportSaisi&, const RapportSaisi&) = default;
};
using RapportsSaisis = std::array<RapportSaisi, NbRangsLoto>;
enum class ColonneRapport { Gagnants, Gain };

/// The record in hand.
struct SaisieTirage {
    bool ajout = false;
    int place = 0;  ///< index of the record, or where it will be put
    int date = 0;
    int SousTirage = 1;
    Cases cases;
    int annee = 0, numero = 0;
    std::string joker;       ///< digits typed; empty where none is known
    bool sansJoker = false;  ///< none need be known
    RapportsSaisis rapports;

    /// Ranks of its prize table.
    int rangs() const {
        return SousTirage == 2 && date >= DateSecondTirage ? NbRangs2nd : NbRangsLoto;
    }
};

/// What a validation leads to.
struct IssueValidation {
    enum class Genre { Refuse, JokerAttendu, Fait } genre = Genre::Refuse;
    int indice = -1;  ///< of the record, once it is in the base
    Reponse aDire;    ///< the refusal; once it is done, what did not go well beside
};

/// The state of the mode is Atelier::edition: MiseAJour, and AjoutLibre from the first addition or
/// change on, which only a new start of the program ends. One for an atelier. Main thread, while no
/// worker runs. A change of the base is saved at once, and the engine's state with it.
class EditionBase {
 public:
    explicit EditionBase(Atelier& atelier) : atelier_(atelier) {}

    bool enMode() const { return atelier_.edition != Edition::Aucune; }
    bool ModificationEnCours() const { return saisie_.has_value(); }
    /// Only while a change is under way.
    const SaisieTirage& saisie() const { return *saisie_; }

    /// Refused while the base is filtered.
    Reponse entrer();
    /// Opens the record of a place, or one that is to be added there with what can be proposed.
    /// Refused: an addition to a full base.
    Reponse ouvrir(const PlaceTirage& place);
    /// Gives up what is under way; the base is as it was.
    void abandonner();

    // The record in hand.
    Reponse basculer(GenreStats genre, int valeur);
    void decocherTout() { saisie_->cases = {}; }
    void poserJoker(std::string_view chiffres) { saisie_->joker = chiffres; }
    /// Takes the text of a cell; an empty one empties it. False for one that is no count of
    /// winners, or no amount: the cell is as it was.
    bool poserRapport(int rang, ColonneRapport colonne, std::string_view texte);
    void ViderRapports();
    bool ChampsVidesRapports() const;

    IssueValidation valider();
    /// Deletes a record, while no change is under way. Refused: a base that would be too small.
    IssueBase supprimer(int indice);

 private:
    bool chanceRequise() const;
    Reponse refusValidation() const;
    Tirage tirage() const;
    Reponse changer();

    Atelier& atelier_;
    std::optional<SaisieTirage> saisie_;
    bool changee_ = false;  ///< the base is another one than at the start of the mode
};

}  // namespace norvane
