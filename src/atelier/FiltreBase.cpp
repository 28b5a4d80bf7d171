// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/FiltreBase.h"

#include "comb/FichiersFiltre.h"

namespace norvane {

namespace {

Refus Echec(const std::string& phrase) {
    return {Refus::Titre::Avertissement, phrase, {}};
}

}  // namespace

IssueBase FiltreBase::appliquer(const CriteresFiltre& criteres) {
    const IssueFiltre issue = FiltrerBase(atelier_.base, criteres, copie_);
    if (issue != IssueFiltre::Applique) {
        const auto [phrase, detail] = MessageRefus(issue);
        return {false, Refus{Refus::Titre::Message, phrase, detail}};
    }
    if (const auto ecartes = EcarterFichiersFiltre(atelier_.Repertoire); !ecartes) {
        RendreBase(atelier_.base, copie_);
        return {false, Echec(ecartes.erreur())};
    }
    atelier_.FiltreActif = true;
    return recalculer();
}

IssueBase FiltreBase::annuler() {
    if (const auto rendus = RendreFichiersFiltre(atelier_.Repertoire); !rendus) {
        return {false, Echec(rendus.erreur())};
    }
    RendreBase(atelier_.base, copie_);
    atelier_.FiltreActif = false;
    return recalculer();
}

IssueBase FiltreBase::recalculer() {
    const auto recalcule = atelier_.recalculer();
    return {true, recalcule ? Reponse{} : Echec(recalcule.erreur())};
}

}  // namespace norvane
