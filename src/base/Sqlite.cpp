// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "Sqlite.h"

#include <fmt/format.h>

#include <limits>

namespace norvane {

namespace {

using Genre = EchecStockage::Genre;

/// How long to wait for another program that is writing the file.
constexpr int AttenteMs = 3000;

/// What a file from anywhere may ask for, well above what ours need.
struct Limite {
    int genre;
    int valeur;
};
constexpr Limite Limites[] = {
    {SQLITE_LIMIT_LENGTH, 65536},      {SQLITE_LIMIT_SQL_LENGTH, 65536},
    {SQLITE_LIMIT_COLUMN, 64},         {SQLITE_LIMIT_EXPR_DEPTH, 32},
    {SQLITE_LIMIT_COMPOUND_SELECT, 4}, {SQLITE_LIMIT_VDBE_OP, 25000},
    {SQLITE_LIMIT_FUNCTION_ARG, 8},    {SQLITE_LIMIT_ATTACHED, 0},
    {SQLITE_LIMIT_TRIGGER_DEPTH, 1},   {SQLITE_LIMIT_VARIABLE_NUMBER, 64},
    {SQLITE_LIMIT_WORKER_THREADS, 0},
};

[[noreturn]] void echouer(sqlite3* db) {
    const int etendu = sqlite3_extended_errcode(db);
    switch (etendu & 0xFF) {
        case SQLITE_PERM:
        case SQLITE_CANTOPEN:
        case SQLITE_AUTH:
            throw EchecStockage(Genre::Inaccessible, "l'accès est refusé");
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw EchecStockage(Genre::Inaccessible, "un autre programme s'en sert");
        case SQLITE_READONLY:
            throw EchecStockage(Genre::Inaccessible, "il est en lecture seule");
        case SQLITE_FULL:
            throw EchecStockage(Genre::Inaccessible, "le disque est plein");
        case SQLITE_NOMEM:
            throw EchecStockage(Genre::Inaccessible, "la mémoire manque");
        case SQLITE_IOERR:
            if (etendu == SQLITE_IOERR_SHORT_READ) break;  // the file is cut short
            throw EchecStockage(Genre::Inaccessible, "le disque répond par une erreur");
        default:
            break;
    }
    throw EchecStockage(Genre::Abime, "son contenu n'est pas lisible");
}

[[noreturn]] void mauvaiseValeur() {
    throw EchecStockage(Genre::Abime, "une valeur n'est pas du type attendu");
}

}  // namespace

Connexion::Connexion(const std::filesystem::path& fichier) {
    ouvrir(fichier.c_str(), SQLITE_OPEN_READWRITE);
}

Connexion::Connexion() {
    ouvrir(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_MEMORY);
}

void Connexion::ouvrir(const char* nom, int options) {
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(nom, &db, options, nullptr);
    db_.reset(db);
    if (db == nullptr) throw EchecStockage(Genre::Inaccessible, "la mémoire manque");
    if (rc != SQLITE_OK) echouer(db);
    sqlite3_busy_timeout(db, AttenteMs);
    // The file may come from anywhere: nothing that it holds may run.
    for (const int refus : {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW,
                            SQLITE_DBCONFIG_TRUSTED_SCHEMA}) {
        sqlite3_db_config(db, refus, 0, nullptr);
    }
    sqlite3_db_config(db, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    for (const Limite& limite : Limites) sqlite3_limit(db, limite.genre, limite.valeur);
}

void Connexion::executer(const std::string& sql) {
    if (sqlite3_exec(get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) echouer(get());
}

std::int64_t Connexion::entier(const std::string& sql) {
    Requete requete(*this, sql);
    if (!requete.suivante()) throw EchecStockage(Genre::Abime, "une valeur manque");
    return requete.entier(0);
}

std::string Connexion::texte(const std::string& sql) {
    Requete requete(*this, sql);
    if (!requete.suivante()) throw EchecStockage(Genre::Abime, "une valeur manque");
    return requete.texte(0);
}

std::string Connexion::octets() {
    sqlite3_int64 taille = 0;
    const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> contenu(
        sqlite3_serialize(get(), "main", &taille, 0), &sqlite3_free);
    if (!contenu) throw EchecStockage(Genre::Inaccessible, "la mémoire manque");
    return {contenu.get(), contenu.get() + taille};
}

Requete::Requete(Connexion& connexion, const std::string& sql) : db_(connexion.get()) {
    sqlite3_stmt* requete = nullptr;
    const int rc = sqlite3_prepare_v2(db_, sql.c_str(), -1, &requete, nullptr);
    requete_.reset(requete);
    verifier(rc);
}

void Requete::verifier(int rc) const {
    if (rc != SQLITE_OK && rc != SQLITE_ROW && rc != SQLITE_DONE) echouer(db_);
}

void Requete::lier(int parametre, std::int64_t valeur) {
    verifier(sqlite3_bind_int64(requete_.get(), parametre + 1, valeur));
}

void Requete::lier(int parametre, double valeur) {
    verifier(sqlite3_bind_double(requete_.get(), parametre + 1, valeur));
}

bool Requete::suivante() {
    const int rc = sqlite3_step(requete_.get());
    verifier(rc);
    if (rc == SQLITE_DONE) verifier(sqlite3_reset(requete_.get()));
    return rc == SQLITE_ROW;
}

std::int64_t Requete::entier(int colonne) const {
    if (sqlite3_column_type(requete_.get(), colonne) != SQLITE_INTEGER) mauvaiseValeur();
    return sqlite3_column_int64(requete_.get(), colonne);
}

std::int32_t Requete::entier32(int colonne) const {
    const std::int64_t valeur = entier(colonne);
    if (valeur < std::numeric_limits<std::int32_t>::min() ||
        valeur > std::numeric_limits<std::int32_t>::max()) {
        mauvaiseValeur();
    }
    return static_cast<std::int32_t>(valeur);
}

double Requete::reel(int colonne) const {
    if (sqlite3_column_type(requete_.get(), colonne) != SQLITE_FLOAT) mauvaiseValeur();
    return sqlite3_column_double(requete_.get(), colonne);
}

std::string Requete::texte(int colonne) const {
    if (sqlite3_column_type(requete_.get(), colonne) != SQLITE_TEXT) mauvaiseValeur();
    const auto taille = static_cast<std::size_t>(sqlite3_column_bytes(requete_.get(), colonne));
    const unsigned char* debut = sqlite3_column_text(requete_.get(), colonne);
    return {debut, debut + taille};
}

}  // namespace norvane
