// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Contexte.h"

#include <fmt/format.h>

#include <chrono>
#include <semaphore>
#include <utility>

#include "base/BaseIntegree.h"
#include "base/Fichiers.h"
#include "base/Stockage.h"
#include "base/TableCsv.h"
#include "Phrases.h"

namespace norvane {

namespace fs = std::filesystem;

namespace {

/// A full base with lines of a thousand bytes; real ones have some two hundred.
constexpr std::uint64_t TailleTableMax = std::uint64_t{64} << 20;

Resultat<Base> LireBaseFichier(const fs::path& fichier) {
    if (!NomPresent(fichier))
        return Erreur{fmt::format("La base « {} » n'existe pas ou son dossier est inaccessible.",
                                  fichier.string())};
    if (fichier.extension() == ".db") return LireStockage(fichier);
    if (fichier.extension() != ".csv")
        return Erreur{fmt::format("« {} » n'est pas une base : son nom doit finir par .db ou .csv.",
                                  fichier.string())};
    const auto texte = LireFichier(fichier, TailleTableMax);
    if (!texte) return Erreur{texte.erreur()};
    auto base = LireTableCsv(*texte);
    if (!base) return Erreur{fmt::format("« {} » : {}", fichier.string(), base.erreur())};
    return base;
}

Resultat<Base> ChoisirBase(const OptionsGlobales& options, const fs::path& repertoire) {
    const fs::path fichier = repertoire / options.base.value_or(NomStockage);
    if (!options.base && !NomPresent(fichier)) return BaseIntegree(options.globale);
    auto base = LireBaseFichier(fichier);
    if (base && options.globale && !base->AnciensTirages)
        return Erreur{
            fmt::format("--globale ne vaut que pour la base intégrée : « {} » ne contient "
                        "pas les tirages de l'ancien jeu.",
                        fichier.string())};
    return base;
}

}  // namespace

Resultat<Donnees> Contexte::charger() const {
    auto base = ChoisirBase(options, repertoire);
    if (!base) return Erreur{base.erreur()};
    const int n = base->NbTirages;
    if (n == 0) return Erreur{"La base ne contient aucun tirage."};

    const long de = options.de.value_or(1);
    const long a = options.a.value_or(n);
    for (const auto& [nom, borne] : {std::pair{"--de", de}, std::pair{"--a", a}})
        if (borne < 1 || borne > n)
            return Erreur{fmt::format("{} {} est hors de la base, dont les tirages vont de 1 à {}.",
                                      nom, borne, n)};
    if (de > a)
        return Erreur{fmt::format("Intervalle croisé : --de {} est au-delà de --a {}.", de, a)};
    return Donnees{*std::move(base), static_cast<int>(de), static_cast<int>(a)};
}

Reglages Contexte::lireReglages() const {
    const Configuration configuration(repertoire / NomConfiguration);
    if (const std::string phrase = configuration.avertissement(); !phrase.empty()) {
        progression.effacer();
        EcrirePhrase(err, phrase);
    }
    return configuration.reglages;
}

Resultat<Rien> Contexte::mener(std::function<Resultat<Rien>(const Suivi&)> corps) const {
    constexpr std::chrono::milliseconds rythme(50);
    std::binary_semaphore fini(0);
    const PtrTravail travail = FaireTravail({}, std::move(corps));
    travail->surFin = [&fini] { fini.release(); };
    travail->demarrer();
    while (!fini.try_acquire_for(rythme))
        progression.montrer(travail->progres.fait(), travail->progres.total());
    travail->attendre();
    if (!travail->erreur().empty()) return Erreur{travail->erreur()};
    return Rien{};
}

}  // namespace norvane
