// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "atelier/Atelier.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>
#include <system_error>
#include <utility>

#include "base/Fichiers.h"
#include "base/Stockage.h"
#include "comb/FichiersFiltre.h"
#include "tickets/FichiersGrilles.h"

namespace norvane {

namespace {

bool MemeContenu(const Base& a, const Base& b) {
    return a.AnciensTirages == b.AnciensTirages && a.NbAnciensTirages == b.NbAnciensTirages &&
           std::ranges::equal(a.enUsage(), b.enUsage()) &&
           std::equal(a.Rapports.begin(), a.Rapports.begin() + a.NbTirages, b.Rapports.begin());
}

/// The draws of before stand at the start of those of after, as they were: what the engine computed
/// can be brought forward.
bool SuiteSeule(const Base& avant, const Base& apres) {
    return avant.NbTirages <= apres.NbTirages &&
           std::ranges::equal(avant.enUsage(),
                              apres.enUsage().first(static_cast<std::size_t>(avant.NbTirages)));
}

/// Stands while a base whose draws changed is being saved, and holds the print of the one before:
/// the bounds of the engine fall with it, and a program that died in between leaves neither or
/// both.
constexpr const char* NomNoteSauvegarde = "base.etat";
constexpr std::uint64_t OctetsNoteMax = 64;

/// A short text that tells one base from another.
std::string Empreinte(const Base& base) {
    std::uint64_t somme = 0xCBF29CE484222325;
    const auto meler = [&somme](std::span<const std::byte> octets) {
        for (const std::byte o : octets) {
            somme = (somme ^ std::to_integer<std::uint64_t>(o)) * 0x100000001B3;
        }
    };
    const auto n = static_cast<std::size_t>(base.NbTirages);
    meler(std::as_bytes(base.enUsage()));
    meler(std::as_bytes(std::span(base.Rapports).first(n)));
    return fmt::format("{:016x} {}", somme, base.NbTirages);
}

void EffacerNote(const std::filesystem::path& repertoire) {
    std::error_code ignoree;  // at worst the bounds are computed once more
    std::filesystem::remove(repertoire / NomNoteSauvegarde, ignoree);
}

/// Ends what a program that died while it saved the base had begun.
Resultat<Rien> ReprendreSauvegarde(const std::filesystem::path& repertoire, const Base& base) {
    if (!NomPresent(repertoire / NomNoteSauvegarde)) return Rien{};
    const auto note = LireFichier(repertoire / NomNoteSauvegarde, OctetsNoteMax);
    if (!note || *note != Empreinte(base)) {
        if (auto neutre = EcrireCombCalcNeutre(repertoire); !neutre) return neutre;
    }
    EffacerNote(repertoire);
    return Rien{};
}

/// Puts back what a program that died while the base was filtered had set aside.
Resultat<Rien> ReprendreFiltre(const std::filesystem::path& repertoire) {
    return FichiersEcartes(repertoire) ? RendreFichiersFiltre(repertoire) : Rien{};
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

    for (const auto& repris :
         {ReprendreFiltre(Repertoire), ReprendreSauvegarde(Repertoire, base)}) {
        if (!repris) avertissements.push_back(repris.erreur());
    }
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
    const bool autres = !SuiteSeule(baseSauvee_, base);
    if (stockageIllisible_) {
        return Erreur{
            "Le fichier norvane.db n'a pas pu être lu au démarrage et ne sera pas remplacé : "
            "déplacez-le, puis recommencez."};
    }
    if (autres) {
        auto note = EcrireFichier(Repertoire / NomNoteSauvegarde, Empreinte(baseSauvee_));
        if (!note) return note;
    }
    auto resultat = SauverBase(base, Repertoire / NomStockage);
    if (resultat) {
        baseSauvee_ = base;
        surDisque_ = true;
        // Where its bounds stay, the next start takes them away.
        if (autres) resultat = EcrireCombCalcNeutre(Repertoire);
        if (!resultat) return resultat;
    }
    EffacerNote(Repertoire);
    return resultat;
}

}  // namespace norvane
