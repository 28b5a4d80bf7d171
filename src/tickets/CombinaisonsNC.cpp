// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "tickets/CombinaisonsNC.h"

#include <utility>

namespace norvane {

namespace {

bool Complete(const LigneNC& ligne) {
    return TableMises(ligne.numeros.taille(), ligne.chances.taille()) > MiseIncomplete;
}

}  // namespace

Refus SelectionIncomplete() {
    return {Refus::Titre::Message, "Votre sélection n'est pas complète...", {}};
}

Reponse CombinaisonsNC::basculer(GenreStats genre, int valeur) {
    Ensemble& cochees = genre == GenreStats::Numeros ? SelectionNC.numeros : SelectionNC.chances;
    if (!cochees.contient(valeur)) {
        if (auto refus = PeutCocher(genre, NbNumerosNC(), NbChancesNC())) return refus;
    }
    cochees.basculer(valeur);
    return {};
}

void CombinaisonsNC::tirer(GenerateurHasard& hasard, TypeGrille type) {
    const Grille tiree = TirerGrille(hasard, type);
    SelectionNC = {tiree.numeros.ensemble(), tiree.chances.ensemble()};
}

Reponse CombinaisonsNC::valider() {
    if (!Complete(SelectionNC)) return SelectionIncomplete();
    montree = SelectionNC;
    NumerosValides = SelectionNC.numeros;
    choisirType(SelectionNC.type());
    return {};
}

void CombinaisonsNC::choisirType(TypeGrille type) {
    std::vector<LigneNC> liste;
    AfficherListeNE(liste, NumerosValides, type);
    prendre(type, std::move(liste));
}

void CombinaisonsNC::choisirLigne(std::size_t laquelle) {
    ligne = laquelle;
    montree = ListeNC[laquelle];
}

void CombinaisonsNC::filtrerChances() {
    FiltrerChances(ListeNC, SelectionNC.chances);
    ligne.reset();
}

void CombinaisonsNC::filtrerGagnantes(const SortiesNC& sorties) {
    FiltrerGagnantes(ListeNC, sorties);
    ligne.reset();
}

void CombinaisonsNC::filtrerSorties(const SortiesNC& sorties) {
    SupprSorties(ListeNC, sorties);
    ligne.reset();
}

void CombinaisonsNC::prendre(TypeGrille type, std::vector<LigneNC> liste, bool arretee) {
    TypeNC = type;
    ListeNC = std::move(liste);
    partielle = arretee;
    ligne.reset();
}

std::optional<Grille> CombinaisonsNC::grille() const {
    const LigneNC& ticket = montree.vide() ? SelectionNC : montree;
    if (!Complete(ticket)) return std::nullopt;
    return FaireGrille(ticket.numeros, ticket.chances, false);
}

}  // namespace norvane
