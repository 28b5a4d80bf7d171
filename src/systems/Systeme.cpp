// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "systems/Systeme.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/Tirage.h"
#include "Stock.h"

namespace norvane {

void SelectionSysteme::retirer(int n) {
    base_.retirer(n);
    numeros_.retirer(n);
}

bool SelectionSysteme::avancer(int n) {
    switch (etat(n)) {
        case 0:
            numeros_.ajouter(n);
            return true;
        case 2:
            if (base_.taille() == BaseSystemeMax) return false;
            base_.ajouter(n);
            return true;
        default:
            retirer(n);
            return true;
    }
}

SelectionSysteme SelectionDeGrille(const GrilleSelection& grille) {
    Ensemble numeros, base;
    for (int n = 1; n <= NumeroMax; ++n) {
        const Priorite priorite = grille.at(static_cast<std::size_t>(n - 1));
        if (priorite != Priorite::Aucune) numeros.ajouter(n);
        if (priorite == Priorite::Absolue) base.ajouter(n);
    }
    return {numeros, base.taille() <= BaseSystemeMax ? base : Ensemble()};
}

GrilleSelection GrilleDeSelection(const SelectionSysteme& selection) {
    GrilleSelection grille{};
    for (int n = 1; n <= NumeroMax; ++n)
        grille.at(static_cast<std::size_t>(n - 1)) = static_cast<Priorite>(selection.etat(n));
    return grille;
}

SelectionSysteme SelectionAuHasard(const SystemeDisponible& systeme, GenerateurHasard& hasard) {
    Ensemble numeros;
    const auto completer = [&](int taille) {
        while (numeros.taille() < taille) numeros.ajouter(1 + hasard.tirer(NumeroMax));
        return numeros;
    };
    const Ensemble base = completer(systeme.Base);
    return {completer(systeme.Selection), base};
}

std::string LigneGrille(std::span<const std::int32_t> grille) {
    std::string ligne;
    for (const std::int32_t n : grille) fmt::format_to(std::back_inserter(ligne), "{:02} ", n);
    return ligne;
}

Resultat<Systeme> GenererSysteme(const SystemeDisponible& d, const SelectionSysteme& selection) {
    if (selection.SelectionCourante() != d.Selection || selection.BaseCourante() != d.Base)
        return Erreur{fmt::format(
            "Le système choisi se joue sur une sélection de {} numéros dont {} de "
            "base, et vous en avez coché {} dont {} : changez la sélection ou "
            "choisissez un autre système.",
            d.Selection, d.Base, selection.SelectionCourante(), selection.BaseCourante())};
    const DessinStocke* dessin = ChercherDessin({d.Selection - d.Base, d.NumerosParGrille - d.Base,
                                                 d.GarantieY - d.Base, d.GarantieX - d.Base});
    if (dessin == nullptr || dessin->blocs != d.Grilles)
        return Erreur{
            fmt::format("Norvane n'a pas de système de {} grilles pour la garantie {}/{} sur {} "
                        "numéros (base {}) : choisissez une autre ligne.",
                        d.Grilles, d.GarantieX, d.GarantieY, d.Selection, d.Base)};

    Systeme systeme;
    systeme.parametres = d;
    systeme.base = selection.base();
    systeme.numeros = selection.numeros().sans(selection.base());
    const std::vector<int> points = systeme.numeros.valeurs();
    std::vector<Ensemble> grilles;
    for (const Ensemble bloc : Developper(*dessin)) {
        Ensemble grille = systeme.base;
        for (const int point : bloc) grille.ajouter(points[static_cast<std::size_t>(point - 1)]);
        grilles.push_back(grille);
    }
    std::sort(grilles.begin(), grilles.end(), [](Ensemble a, Ensemble b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end());
    });
    for (const Ensemble grille : grilles)
        systeme.grilles.insert(systeme.grilles.end(), grille.begin(), grille.end());
    return systeme;
}

Liste ListeDuSysteme(const Systeme& systeme, ModeStockage mode, FormeGains gains, int debut,
                     int fin) {
    Liste liste;
    const Disposition disposition{systeme.parametres.NumerosParGrille, mode, gains};
    liste.arene.disposition = disposition;
    liste.DebutListe = debut;
    liste.FinListe = fin;
    const auto pas = static_cast<std::size_t>(disposition.mots());
    liste.arene.mots.resize(systeme.nombre() * pas);
    for (std::size_t i = 0; i < systeme.nombre(); ++i) {
        const std::span<Mot> enregistrement = liste.arene[i];
        if (mode != ModeStockage::PremierRang)
            for (std::size_t mot = 1; mot < static_cast<std::size_t>(disposition.numeros());
                 mot += MotsParBloc)
                enregistrement[mot] = RangNonCalcule;
        std::ranges::transform(systeme.grille(i), enregistrement.begin() + disposition.numeros(),
                               [](std::int32_t n) { return static_cast<Mot>(n); });
    }
    return liste;
}

}  // namespace norvane
