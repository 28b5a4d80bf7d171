// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "atelier/Atelier.h"

#include <algorithm>

#include "base/Stockage.h"

namespace norvane {

namespace {

/// One sentence for all that the configuration file holds of nonsense.
std::string PhraseAnomalies(const std::vector<std::string>& anomalies) {
    std::string phrase = "Le fichier NORVANE.INI contient des valeurs inutilisables (";
    constexpr std::size_t citees = 3;
    for (std::size_t i = 0; i < std::min(anomalies.size(), citees); ++i) {
        if (i > 0) phrase += " ; ";
        phrase += anomalies[i];
    }
    if (anomalies.size() > citees) phrase += " ; …";
    return phrase +
           ") : les valeurs par défaut les remplacent et le fichier reste tel quel, corrigez-le si "
           "besoin.";
}

bool MemeContenu(const Base& a, const Base& b) {
    return a.AnciensTirages == b.AnciensTirages && a.NbAnciensTirages == b.NbAnciensTirages &&
           std::ranges::equal(a.enUsage(), b.enUsage()) &&
           std::equal(a.Rapports.begin(), a.Rapports.begin() + a.NbTirages, b.Rapports.begin());
}

}  // namespace

Atelier::Atelier(std::filesystem::path repertoire)
    : Repertoire(std::move(repertoire)), configuration(Repertoire / NomConfiguration) {
    if (!configuration.anomalies.empty()) {
        avertissements.push_back(PhraseAnomalies(configuration.anomalies));
    }
    BaseChargee chargee = ChargerBase(Repertoire, configuration.reglages.AnciensTirages);
    base = std::move(chargee.base);
    // A file that stands there unread (made by a newer version, without permission) is not ours to
    // replace by the built-in draws.
    std::error_code ignore;
    const bool presente = std::filesystem::exists(Repertoire / NomStockage, ignore);
    surDisque_ = presente;
    stockageIllisible_ = presente && !chargee.depuisFichier;
    if (!chargee.avertissement.empty()) avertissements.push_back(std::move(chargee.avertissement));
    baseSauvee_ = base;

    if (const auto lu = relireEtat(); !lu) avertissements.push_back(lu.erreur());
    ConstruireOccurrences(base, occurrences);
}

Resultat<Rien> Atelier::recalculer() {
    RecalculBase(base, occurrences);
    Vider(ListeExtremes);
    Vider(ListeMemoire);
    modeListe = ModeListe::Extremes;
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
