// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandeImporter.h"

#include <fmt/ostream.h>

#include <algorithm>
#include <span>

#include "base/ArchiveOfficielle.h"
#include "base/BaseIntegree.h"
#include "base/Fichiers.h"
#include "base/Stockage.h"
#include "comb/EtatCombinaisons.h"
#include "Phrases.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {
constexpr std::uint64_t TailleMax = std::uint64_t{64} << 20;
}  // namespace

CommandeImporter::CommandeImporter(CLI::App& racine)
    : Commande(racine.add_subcommand(
          "importer", "Ajoute à la base les tirages d'une archive officielle (zip ou csv)")) {
    sousCommande().add_option("FICHIER", fichier_, "Archive officielle *.zip ou *.csv")->required();
}

Resultat<Rien> CommandeImporter::executer(const Contexte& contexte, std::ostream& out) {
    const fs::path stockage = contexte.repertoire / contexte.options.base.value_or(NomStockage);
    if (stockage.extension() != ".db")
        return Erreur{
            fmt::format("« {} » ne peut recevoir d'archive : donnez avec --base une base *.db.",
                        stockage.string())};
    const bool present = NomPresent(stockage);
    auto base =
        present ? LireStockage(stockage) : Resultat<Base>(BaseIntegree(contexte.options.globale));
    if (!base) return Erreur{base.erreur()};
    const auto octets = LireFichier(contexte.repertoire / fichier_, TailleMax);
    if (!octets) return Erreur{octets.erreur()};
    const auto archive = LireArchiveOfficielle(*octets, fichier_);
    if (!archive) return Erreur{archive.erreur()};
    const std::vector<Tirage> avant = base->Tirages;
    const auto fusion = FusionnerArchive(*base, *archive);
    if (!fusion) return Erreur{fusion.erreur()};
    // What the engine computed speaks of the draws known before, as they were.
    if (!std::ranges::equal(avant, std::span(base->Tirages).first(avant.size())))
        if (auto neutre = EcrireCombCalcNeutre(stockage.parent_path()); !neutre) return neutre;
    if (fusion->change() || !present)
        if (auto sauve = SauverBase(*base, stockage); !sauve) return sauve;
    for (const LigneRefusee& refusee : archive->refusees)
        EcrirePhrase(contexte.err, fmt::format("« {} », ligne {} laissée de côté : {}.", fichier_,
                                               refusee.numero, refusee.raison));
    fmt::print(out, "ajoutes\t{}\nmodifies\t{}\ninchanges\t{}\n", fusion->ajoutes, fusion->modifies,
               fusion->inchanges);
    return Rien{};
}

}  // namespace norvane
