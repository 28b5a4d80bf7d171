// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "atelier/Selections.h"

#include <utility>

#include "atelier/Atelier.h"
#include "lists/FichiersSelections.h"
#include "tickets/GrillesHasard.h"

namespace norvane {

namespace {

Priorite& Case(GrilleSelection& grille, int numero) {
    return grille.at(static_cast<std::size_t>(numero - 1));
}

}  // namespace

Ensemble NumerosDe(const GrilleSelection& grille, Priorite priorite) {
    Ensemble numeros;
    for (int n = 1; n <= NumeroMax; ++n)
        if (grille[static_cast<std::size_t>(n - 1)] == priorite) numeros.ajouter(n);
    return numeros;
}

GrilleSelection GrilleAbsolue(Ensemble numeros) {
    GrilleSelection grille{};
    for (const int n : numeros) Case(grille, n) = Priorite::Absolue;
    return grille;
}

GrilleSelection GrilleAleatoire(int absolus, int secondaires, std::uint32_t graine) {
    GrilleSelection grille{};
    GenerateurHasard hasard(graine);
    for (const auto& [priorite, nombre] :
         {std::pair{Priorite::Absolue, absolus}, std::pair{Priorite::Secondaire, secondaires}}) {
        for (int tires = 0; tires < nombre;) {
            Priorite& tiree = Case(grille, hasard.tirer(NumeroMax) + 1);
            if (tiree != Priorite::Aucune) continue;
            tiree = priorite;
            ++tires;
        }
    }
    return grille;
}

const GrilleSelection& GrilleMontree(const Atelier& atelier) {
    const SaisieSelection& saisie = atelier.saisieSelection;
    return saisie.enCours ? saisie.grille : atelier.grilleSelection;
}

void EditerSelection(Atelier& atelier) {
    SaisieSelection& saisie = atelier.saisieSelection;
    saisie.grille = GrilleMontree(atelier);
    saisie.enCours = true;
}

Resultat<Rien> ValiderSelection(Atelier& atelier, const GrilleSelection& grille) {
    auto tables = ConstruireSelection(grille, atelier.base, atelier.occurrences);
    if (!tables) return Erreur{tables.erreur()};
    atelier.selection = *std::move(tables);
    atelier.grilleSelection = grille;
    atelier.saisieSelection.enCours = false;
    return Rien{};
}

void RevaliderSelection(Atelier& atelier) {
    if (ValiderSelection(atelier, GrilleMontree(atelier))) return;
    const bool enCours = atelier.saisieSelection.enCours;
    // One that was accepted once is accepted over any draws.
    (void)ValiderSelection(atelier, atelier.grilleSelection);
    atelier.saisieSelection.enCours = enCours;
}

bool SelectionASauver(const Atelier& atelier) {
    return atelier.selection.NbSelAbsolue > 0 &&
           atelier.grilleSelection != atelier.saisieSelection.GrilleSauvee;
}

NumerosAjoutes SelectionEnForce(const Atelier& atelier) {
    const int nombre = atelier.selection.NbSelAbsolue;
    if (nombre == 0) {
        return {{},
                "Pas de sélection active en mémoire...",
                "Utilisez la grille de sélection de numéros pour choisir une sélection"};
    }
    if (nombre < NumerosSelectionMin || nombre > NumerosSelectionMax) {
        return {{},
                "La sélection actuelle contient plus de 35 numéros...",
                "Modifiez la sélection pour qu'elle contienne au plus 35 numéros"};
    }
    return {Ensemble::de(atelier.selection.SelAbsolue), {}, {}};
}

NumerosAjoutes PremiersNumeros(const Liste& liste, int nombre) {
    if (liste.vide()) return {{}, "La Liste en mémoire est vide...", {}};
    if (nombre > TailleCombMax && liste.taille() != TailleCombMax)
        return {{}, "Pas de combinaisons à 10 numéros en mémoire...", {}};
    Ensemble numeros;
    for (std::size_t l = 0; l < liste.nombre() && numeros.taille() < nombre; ++l)
        for (const Mot n : liste.numeros(l))
            if (numeros.taille() < nombre) numeros.ajouter(n);
    return {numeros, {}, {}};
}

}  // namespace norvane
