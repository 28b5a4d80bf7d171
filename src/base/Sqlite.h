// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The few SQLite calls that the storage of the base needs, with failures told apart by what is
// to be done about them.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

namespace norvane {

/// Why a storage file is of no use. Thrown within the storage only.
class EchecStockage : public std::runtime_error {
 public:
    enum class Genre {
        Abime,        ///< damaged, or not a file of ours: to be set aside
        TropRecent,   ///< written by a later version: to be left alone
        Inaccessible  ///< cannot be read or written just now: to be left alone
    };
    /// `cause` is a piece of a French sentence.
    EchecStockage(Genre genre, const std::string& cause)
        : std::runtime_error(cause), genre_(genre) {}
    Genre genre() const { return genre_; }

 private:
    Genre genre_;
};

/// One open file, or a base in memory. What is not committed when it closes is undone.
class Connexion {
 public:
    /// Opens for writing, or for reading alone where the file cannot be written.
    explicit Connexion(const std::filesystem::path& fichier);
    /// An empty base in memory.
    Connexion();

    sqlite3* get() const { return db_.get(); }
    /// Runs statements that give no rows.
    void executer(const std::string& sql);
    /// The first column of the only row of a statement.
    std::int64_t entier(const std::string& sql);
    std::string texte(const std::string& sql);
    /// The bytes of the file that this base would be.
    std::string octets();

 private:
    void ouvrir(const char* nom, int options);

    struct Fermeture {
        void operator()(sqlite3* db) const { sqlite3_close_v2(db); }
    };
    std::unique_ptr<sqlite3, Fermeture> db_;
};

/// A compiled statement; columns and parameters count from 0.
class Requete {
 public:
    Requete(Connexion& connexion, const std::string& sql);

    void lier(int parametre, std::int64_t valeur);
    void lier(int parametre, double valeur);
    /// Steps to the next row; false at the end, ready to run again.
    bool suivante();
    /// A value of the row; a failure of the kind Abime when its type or range is another.
    std::int64_t entier(int colonne) const;
    std::int32_t entier32(int colonne) const;
    double reel(int colonne) const;
    std::string texte(int colonne) const;

 private:
    void verifier(int rc) const;

    struct Liberation {
        void operator()(sqlite3_stmt* requete) const { sqlite3_finalize(requete); }
    };
    sqlite3* db_;
    std::unique_ptr<sqlite3_stmt, Liberation> requete_;
};

}  // namespace norvane
