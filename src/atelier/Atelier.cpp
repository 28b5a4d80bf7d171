// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "atelier/Atelier.h"

#include <algorithm>
#include <utility>

#include "base/Fichiers.h"
#include "base/Stockage.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {

namespace {

bool MemeContenu(const Base& a, const Base& b) {
    return a.AnciensTirages == b.AnciensTirages && a.NbAnciensTirages == b.NbAnciensTirages &&
           std::ranges::equal(a.enUsage(), b.enUsage()) &&
           std::equal(a.Rapports.begin(), a.Rapports.begin() + a.NbTirages, b.Rapports.begin());
}

}  // namespace

Atelier::Atelier(std::filesystem::path repertoire)
    : Repertoire(std::move(repertoire)), configuration(Repertoire / NomConfiguration) {
    RetirerRestes(Repertoire);
    RetirerRestes(Repertoire / DossierGrilles);
    if (auto phrase = configuration.avertissement(); !phrase.empty()) {
        avertissements.push_back(std::move(phrase));
    }
    BaseChargee chargee = ChargerBase(Repertoire, configuration.reglages.AnciensTirages);
    base = std::move(chargee.base);
    // What stands there unread was told, and is not ours to replace by the built-in draws.
    surDisque_ = chargee.depuisFichier || chargee.laissee;
    stockageIllisible_ = chargee.laissee;
    if (!chargee.avertissement.empty()) avertissements.push_back(std::move(chargee.avertissement));
    baseSauvee_ = base;

    if (const auto lu = relireEtat(); !lu) avertissements.push_back(lu.erreur());
    ConstruireOccurrences(base, occurrences);
}

Resultat<Rien> Atelier::recalculer() {
    RecalculBase(base, occurrences);
    Vider(ListeExtremes);
    Vider(ListeMemoire);
    triEcartAvance.actif = false;
    modeListe = ModeListe::Extremes;
    TirageActif = -1;
    if (std::exchange(series, false)) grilleSelection = SelectionGardee;
    // They speak of other draws, though their interval may be the same.
    EtatNormal = EtatSeries = {};
    // A grid that was accepted is accepted over any draws.
    auto tables = ConstruireSelection(grilleSelection, base, occurrences);
    selection = tables ? *std::move(tables) : Selection{};
    return relireEtat();
}

Resultat<Rien> Atelier::relireEtat() {
    combinaisons = {};
    auto etat = LireCombCalc(Repertoire, base.NbTirages);
    if (!etat) return Erreur{etat.erreur()};
    combinaisons = *etat;
    return Rien{};
}

Liste& Atelier::liste(QuelleListe laquelle) {
    return const_cast<Liste&>(std::as_const(*this).liste(laquelle));
}

const Liste& Atelier::liste(QuelleListe laquelle) const {
    switch (laquelle) {
        case QuelleListe::Aucune:
        case QuelleListe::Extremes:
            break;
        case QuelleListe::Memoire:
            return ListeMemoire;
        case QuelleListe::Tampon1:
            return ListeTampon[0];
        case QuelleListe::Tampon2:
            return ListeTampon[1];
        case QuelleListe::Tampon3:
            return ListeTampon[2];
    }
    return ListeExtremes;
}

Resultat<Rien> Atelier::sauverBase() {
    if (FiltreActif) return Rien{};  // a sub-series; the whole base is on the disk
    if (surDisque_ && MemeContenu(base, baseSauvee_)) return Rien{};
    if (stockageIllisible_) {
        return Erreur{
            "Le fichier norvane.db n'a pas pu être lu au démarrage et ne sera pas remplacé : "
            "déplacez-le, puis recommencez."};
    }
    auto resultat = SauverBase(base, Repertoire / NomStockage);
    if (resultat) {
        baseSauvee_ = base;
        surDisque_ = true;
    }
    return resultat;
}

}  // namespace norvane
