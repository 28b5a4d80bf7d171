// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/Stockage.h"

#include <fmt/chrono.h>
#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

#include "base/BaseIntegree.h"
#include "base/Fichiers.h"
#include "Controle.h"
#include "Sqlite.h"

namespace norvane {

namespace {

namespace fs = std::filesystem;
using Genre = EchecStockage::Genre;

constexpr std::int64_t IdentiteFichier = 0x4E6F7276;  ///< "Norv", in the header of the file
/// Six times what a full base takes.
constexpr std::uintmax_t TailleFichierMax = std::uintmax_t{64} << 20;

/// Step i takes a file from version i to version i + 1; the first one makes it. STRICT: a column
/// holds its type and no other. The columns n1 to joker stand as the integers of a Tirage.
constexpr std::array<const char*, 1> Migrations = {
    "CREATE TABLE meta(cle TEXT PRIMARY KEY, valeur INTEGER NOT NULL) STRICT, WITHOUT ROWID;"
    "CREATE TABLE tirages(position INTEGER PRIMARY KEY,"
    " n1 INTEGER NOT NULL, n2 INTEGER NOT NULL, n3 INTEGER NOT NULL, n4 INTEGER NOT NULL,"
    " n5 INTEGER NOT NULL, chance INTEGER NOT NULL, forclusion INTEGER NOT NULL,"
    " annee_numero INTEGER NOT NULL, date INTEGER NOT NULL, sous_tirage INTEGER NOT NULL,"
    " joker INTEGER NOT NULL,"
    " g1 REAL NOT NULL, r1 REAL NOT NULL, g2 REAL NOT NULL, r2 REAL NOT NULL,"
    " g3 REAL NOT NULL, r3 REAL NOT NULL, g4 REAL NOT NULL, r4 REAL NOT NULL,"
    " g5 REAL NOT NULL, r5 REAL NOT NULL, g6 REAL NOT NULL, r6 REAL NOT NULL,"
    " g7 REAL NOT NULL, r7 REAL NOT NULL, g8 REAL NOT NULL, r8 REAL NOT NULL,"
    " g9 REAL NOT NULL, r9 REAL NOT NULL) STRICT;"};

constexpr auto VersionSchema = static_cast<std::int64_t>(Migrations.size());

using Entiers = std::array<std::int32_t, sizeof(Tirage) / sizeof(std::int32_t)>;
constexpr int NbEntiers = std::tuple_size_v<Entiers>;

/// A sum over the records in use. SQLite sees a damaged structure but not a damaged value: a file
/// that lost its last byte, or one with a bit turned, would give another prize without a word.
std::int64_t Somme(const Base& base) {
    std::uint64_t total = 0xCBF29CE484222325;
    const auto meler = [&total](std::uint64_t valeur) {
        total = std::rotl((total ^ valeur) * 0x100000001B3, 23);
    };
    for (std::size_t i = 0; i < static_cast<std::size_t>(base.NbTirages); ++i) {
        for (const std::int32_t valeur : std::bit_cast<Entiers>(base.Tirages[i])) {
            meler(static_cast<std::uint64_t>(valeur));
        }
        for (const Rapport& rapport : base.Rapports[i]) {
            // SQLite keeps no negative zero: adding zero makes both the same.
            meler(std::bit_cast<std::uint64_t>(rapport.Gagnants + 0.0));
            meler(std::bit_cast<std::uint64_t>(rapport.Gain + 0.0));
        }
    }
    return std::bit_cast<std::int64_t>(total);
}

/// Takes a file from one version to a later one.
void Migrer(Connexion& connexion, std::int64_t depuis, std::int64_t vers) {
    for (auto i = static_cast<std::size_t>(depuis); i < static_cast<std::size_t>(vers); ++i) {
        connexion.executer(Migrations[i]);
    }
    connexion.executer(fmt::format("PRAGMA user_version={}", vers));
}

/// All objects of a file and their texts, as SQLite keeps them.
std::vector<std::string> schema(Connexion& connexion) {
    Requete requete(connexion,
                    "SELECT type||' '||name||' '||tbl_name||' '||coalesce(sql,'')"
                    " FROM sqlite_schema ORDER BY 1");
    std::vector<std::string> objets;
    while (requete.suivante()) objets.push_back(requete.texte(0));
    return objets;
}

/// The schema of a file of ours of that version.
std::vector<std::string> schemaAttendu(std::int64_t version) {
    Connexion modele;
    Migrer(modele, 0, version);
    return schema(modele);
}

/// Tells a sound file of ours from all others, and brings an older one up to date. Inside a
/// transaction. Nothing but the header and the schema's text is looked at before the schema is
/// known to be ours: a table with a computed column, a view or a trigger would run what it holds.
void Reconnaitre(Connexion& connexion) {
    if (connexion.entier("PRAGMA application_id") != IdentiteFichier) {
        throw EchecStockage(Genre::Abime, "ce n'est pas une base de Norvane");
    }
    const std::int64_t version = connexion.entier("PRAGMA user_version");
    if (version > VersionSchema) {
        throw EchecStockage(Genre::TropRecent,
                            "il a été écrit par une version plus récente de Norvane");
    }
    if (version < 1 || schema(connexion) != schemaAttendu(version)) {
        throw EchecStockage(Genre::Abime, "ses tables ne sont pas celles de Norvane");
    }
    if (connexion.texte("PRAGMA integrity_check(1)") != "ok") {
        throw EchecStockage(Genre::Abime, "son contrôle d'intégrité échoue");
    }
    if (version < VersionSchema) Migrer(connexion, version, VersionSchema);
}

std::int64_t LireMeta(Connexion& connexion, const char* cle) {
    return connexion.entier(fmt::format("SELECT valeur FROM meta WHERE cle='{}'", cle));
}

/// All records of the file, each one checked.
Base LireTout(Connexion& connexion) {
    Base base;
    const std::int64_t nombre = LireMeta(connexion, "NbTirages");
    if (nombre != connexion.entier("SELECT count(*) FROM tirages") || nombre > NbTiragesMax) {
        throw EchecStockage(Genre::Abime, "son nombre de tirages est faux");
    }
    base.Tirages.reserve(static_cast<std::size_t>(nombre));
    base.Rapports.reserve(static_cast<std::size_t>(nombre));
    Requete requete(connexion, "SELECT * FROM tirages ORDER BY position");
    while (requete.suivante()) {
        Entiers entiers{};
        int colonne = 1;
        for (std::int32_t& valeur : entiers) valeur = requete.entier32(colonne++);
        RapportsTirage rapports{};
        for (Rapport& rapport : rapports) {
            rapport.Gagnants = requete.reel(colonne++);
            rapport.Gain = requete.reel(colonne++);
        }
        base.Tirages.push_back(std::bit_cast<Tirage>(entiers));
        base.Rapports.push_back(rapports);
    }
    base.NbTirages = static_cast<std::int32_t>(nombre);
    base.AnciensTirages = LireMeta(connexion, "AnciensTirages") != 0;
    const std::int64_t anciens = LireMeta(connexion, "NbAnciensTirages");
    // Kept out of range when it is, for the check below to tell.
    base.NbAnciensTirages =
        static_cast<std::int32_t>(std::clamp<std::int64_t>(anciens, -1, nombre + 1));
    if (const std::string defaut = DefautBase(base); !defaut.empty()) {
        throw EchecStockage(Genre::Abime, defaut);
    }
    if (LireMeta(connexion, "Somme") != Somme(base)) {
        throw EchecStockage(Genre::Abime, "sa somme de contrôle est fausse");
    }
    // An insertion does not move the count while the flag is set: a fresh load counts anew.
    if (base.AnciensTirages) base.NbAnciensTirages = CompterAnciensTirages(base.Tirages);
    return base;
}

void EcrireTout(Connexion& connexion, const Base& base) {
    connexion.executer("DELETE FROM tirages");
    std::string sql = "INSERT INTO tirages VALUES(?";
    for (int i = 0; i < NbEntiers + 2 * NbRangsLoto; ++i) sql += ",?";
    Requete requete(connexion, sql + ")");
    for (std::size_t i = 0; i < static_cast<std::size_t>(base.NbTirages); ++i) {
        int parametre = 0;
        requete.lier(parametre++, static_cast<std::int64_t>(i));
        for (const std::int32_t valeur : std::bit_cast<Entiers>(base.Tirages[i])) {
            requete.lier(parametre++, std::int64_t{valeur});
        }
        for (const Rapport& rapport : base.Rapports[i]) {
            requete.lier(parametre++, rapport.Gagnants);
            requete.lier(parametre++, rapport.Gain);
        }
        requete.suivante();
    }
    connexion.executer(fmt::format(
        "INSERT OR REPLACE INTO meta VALUES('NbTirages',{}),"
        "('NbAnciensTirages',{}),('AnciensTirages',{}),('Somme',{})",
        base.NbTirages, base.NbAnciensTirages, base.AnciensTirages ? 1 : 0, Somme(base)));
}

/// Opens an existing file; a name that is no plain file, or no file at all, is not ours to touch.
Connexion Ouvrir(const fs::path& fichier) {
    if (const std::string obstacle = ObstacleLecture(fichier); !obstacle.empty()) {
        throw EchecStockage(Genre::Inaccessible, obstacle);
    }
    std::error_code ec;
    if (const auto taille = fs::file_size(fichier, ec); !ec && taille > TailleFichierMax) {
        throw EchecStockage(Genre::Abime, fmt::format("il dépasse la taille permise de {} octets",
                                                      TailleFichierMax));
    }
    return Connexion(fichier);
}

Base LireFichier(const fs::path& fichier) {
    Connexion connexion = Ouvrir(fichier);
    connexion.executer("BEGIN");
    Reconnaitre(connexion);
    Base base = LireTout(connexion);
    connexion.executer("COMMIT");
    return base;
}

/// The records of both bases in their order; where both hold a draw, that of `dessus` counts.
/// The result is a base with the old game's draws.
Base Fusionner(const Base& dessous, std::size_t nombreDessous, const Base& dessus) {
    Base base;
    const auto ajouter = [&base](const Base& source, std::size_t i) {
        base.Tirages.push_back(source.Tirages[i]);
        base.Rapports.push_back(source.Rapports[i]);
    };
    const auto nombreDessus = static_cast<std::size_t>(dessus.NbTirages);
    std::size_t i = 0;
    for (std::size_t j = 0; j < nombreDessus; ++j) {
        while (i < nombreDessous && EstApres(dessous.Tirages[i], dessus.Tirages[j])) {
            ajouter(dessous, i++);
        }
        if (i < nombreDessous && !EstApres(dessus.Tirages[j], dessous.Tirages[i])) ++i;
        ajouter(dessus, j);
    }
    while (i < nombreDessous) ajouter(dessous, i++);
    base.NbTirages = static_cast<std::int32_t>(base.Tirages.size());
    base.NbAnciensTirages = CompterAnciensTirages(base.Tirages);
    base.AnciensTirages = true;
    return base;
}

/// `base` with the draws of the old game that `stockee` holds.
Base FusionnerAnciens(const Base& stockee, const Base& base) {
    Base fusion = Fusionner(
        stockee, static_cast<std::size_t>(CompterAnciensTirages(stockee.enUsage())), base);
    if (fusion.NbTirages > NbTiragesMax) {
        throw EchecStockage(Genre::Inaccessible,
                            fmt::format("la base est limitée à {} tirages", NbTiragesMax));
    }
    return fusion;
}

/// Without the draws of the old game, which stay in the file.
void RetirerAnciens(Base& base) {
    const auto anciens = CompterAnciensTirages(base.enUsage());
    base.Tirages.erase(base.Tirages.begin(), base.Tirages.begin() + anciens);
    base.Rapports.erase(base.Rapports.begin(), base.Rapports.begin() + anciens);
    base.NbTirages -= anciens;
    base.NbAnciensTirages = 0;
    base.AnciensTirages = false;
}

/// What SQLite may leave beside a file. Of another file, it would be played into the next one.
constexpr std::array<const char*, 3> Annexes = {"-journal", "-wal", "-shm"};

/// Moves a file of no use out of the way, with what belongs to it, and gives its new name; an
/// empty path when it cannot be moved.
fs::path MettreDeCote(const fs::path& fichier) {
    const auto maintenant = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::string base =
        fmt::format("{}.abimee-{:%Y%m%d-%H%M%S}", fichier.string(), fmt::localtime(maintenant));
    fs::path nom = base;
    std::error_code ec;
    for (int essai = 2; fs::exists(fs::symlink_status(nom, ec)); ++essai) {
        nom = fmt::format("{}-{}", base, essai);
    }
    fs::rename(fichier, nom, ec);
    if (ec) return {};
    for (const char* annexe : Annexes) {
        fs::rename(fichier.string() + annexe, nom.string() + annexe, ec);
    }
    return nom;
}

std::string Avertir(const fs::path& fichier, const EchecStockage& echec) {
    constexpr const char* suite = "la base fournie avec le programme est utilisée";
    const std::string nom = fichier.string();
    if (echec.genre() == Genre::TropRecent) {
        return fmt::format(
            "Le fichier « {} » est laissé en l'état car {} : {}, mettez Norvane à "
            "jour pour retrouver la vôtre.",
            nom, echec.what(), suite);
    }
    if (echec.genre() == Genre::Inaccessible) {
        return fmt::format(
            "Le fichier « {} » ne peut pas être lu ({}) : {}, rétablissez l'accès "
            "au fichier puis relancez Norvane.",
            nom, echec.what(), suite);
    }
    const fs::path cote = MettreDeCote(fichier);
    if (cote.empty()) {
        return fmt::format(
            "Le fichier « {} » est inutilisable ({}) et n'a pas pu être mis de "
            "côté : {}, renommez-le pour pouvoir enregistrer.",
            nom, echec.what(), suite);
    }
    return fmt::format(
        "Le fichier « {} » est inutilisable ({}) et a été mis de côté sous le nom "
        "« {} » : {}.",
        nom, echec.what(), cote.filename().string(), suite);
}

Resultat<Rien> Creer(const Base& base, const fs::path& fichier) {
    Connexion connexion;
    connexion.executer("BEGIN");
    connexion.executer(fmt::format("PRAGMA application_id={}", IdentiteFichier));
    Migrer(connexion, 0, VersionSchema);
    EcrireTout(connexion, base);
    connexion.executer("COMMIT");
    std::error_code ec;  // without their file they are worth nothing, and mostly they are not there
    for (const char* annexe : Annexes) fs::remove(fichier.string() + annexe, ec);
    return EcrireFichier(fichier, connexion.octets());
}

/// Replaces the records of an existing file in one transaction.
void Remplacer(const Base& base, const fs::path& fichier) {
    Connexion connexion = Ouvrir(fichier);
    connexion.executer("PRAGMA journal_mode=DELETE; PRAGMA synchronous=FULL; BEGIN IMMEDIATE");
    Reconnaitre(connexion);
    if (base.AnciensTirages) {
        EcrireTout(connexion, base);
    } else {
        const Base stockee = LireTout(connexion);
        EcrireTout(connexion, stockee.AnciensTirages ? FusionnerAnciens(stockee, base) : base);
    }
    connexion.executer("COMMIT");
}

Erreur EchecSauvegarde(const fs::path& fichier, const char* cause, const char* conseil) {
    return {fmt::format("La base n'est pas enregistrée dans « {} » ({}) ; {}.", fichier.string(),
                        cause, conseil)};
}

}  // namespace

Resultat<Base> LireStockage(const fs::path& fichier) {
    try {
        return LireFichier(fichier);
    } catch (const EchecStockage& echec) {
        return Erreur{fmt::format("La base « {} » ne peut pas être lue : {}.", fichier.string(),
                                  echec.what())};
    }
}

BaseChargee ChargerBase(const fs::path& repertoire, bool globale) {
    const fs::path fichier = repertoire / NomStockage;
    BaseChargee chargee;
    if (NomPresent(fichier)) {
        try {
            Base base = LireFichier(fichier);
            if (globale && !base.AnciensTirages) base = FusionnerAnciens(BaseIntegree(true), base);
            if (!globale && base.AnciensTirages) RetirerAnciens(base);
            chargee.base = std::move(base);
            chargee.depuisFichier = true;
            return chargee;
        } catch (const EchecStockage& echec) {
            chargee.avertissement = Avertir(fichier, echec);
            chargee.laissee = NomPresent(fichier);
        }
    }
    chargee.base = BaseIntegree(globale);
    return chargee;
}

Resultat<Rien> SauverBase(const Base& base, const fs::path& fichier) {
    if (const std::string defaut = DefautBase(base); !defaut.empty()) {
        return EchecSauvegarde(fichier, defaut.c_str(), "corrigez ce tirage puis recommencez");
    }
    try {
        if (!NomPresent(fichier)) return Creer(base, fichier);
        try {
            Remplacer(base, fichier);
            return Rien{};
        } catch (const EchecStockage& echec) {
            if (echec.genre() != Genre::Abime) throw;
            if (MettreDeCote(fichier).empty()) {
                return EchecSauvegarde(fichier, echec.what(),
                                       "renommez ce fichier puis recommencez");
            }
        }
        return Creer(base, fichier);
    } catch (const EchecStockage& echec) {
        return EchecSauvegarde(fichier, echec.what(),
                               echec.genre() == Genre::TropRecent
                                   ? "mettez Norvane à jour puis recommencez"
                                   : "rétablissez l'accès puis recommencez");
    }
}

}  // namespace norvane
