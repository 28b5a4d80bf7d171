// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one way to save what the user asks to have in a file of his.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <QString>
#include <vector>

#include "base/Resultat.h"
#include "common/Contexte.h"

namespace norvane::ui {

/// A kind of file that a save dialog offers.
struct FormatFichier {
    QString filtre;             ///< "Fichiers Grilles (*.grl)"
    QString suffixe;            ///< "grl", lower case
    QString autreSuffixe = {};  ///< one that names of the kind may bear as well, lower case
};

struct Enregistrement {
    QString titre;    ///< of the dialog
    QString propose;  ///< folder, or folder and name
    std::vector<FormatFichier> formats;
    QString fait;  ///< what the status bar tells, before the name: "Grilles enregistrées"
    /// Writes the file in format number `format`, through EcrireFichier.
    std::function<Resultat<Rien>(const std::filesystem::path& fichier, std::size_t format)> ecrire;
};

/// Asks for a name, completes it, asks before it replaces another file (and for another name when
/// it must not), writes, and tells in the status bar what was written where, or why it was not.
/// True when the file is there.
bool enregistrerSous(Contexte& contexte, QWidget* parent, const Enregistrement& demande);

/// Where to save what takes long: the same questions, and the writing is left to a job.
struct FichierChoisi {
    QString nom;             ///< complete
    std::size_t format = 0;  ///< place in the formats
};
/// Nothing when cancelled. `propose`: folder, or folder and name.
std::optional<FichierChoisi> demanderFichier(Contexte& contexte, QWidget* parent,
                                             const QString& titre, QString propose,
                                             const std::vector<FormatFichier>& formats);

/// The name of a file as the houses take it.
std::filesystem::path cheminDe(const QString& fichier);

/// `nom` with the suffix of a format: as it is when it bears one (then in lower case), else with
/// that of `formats[defaut]` behind the whole of it. `format` tells which.
QString nomComplet(const QString& nom, const std::vector<FormatFichier>& formats,
                   std::size_t defaut, std::size_t& format);

/// True when nothing stands under that name, or the user lets it be replaced.
bool accepteRemplacement(Contexte& contexte, const QString& fichier);

/// Tells in the status bar what was written where.
void direEnregistre(Contexte& contexte, const QString& fait, const QString& fichier);

}  // namespace norvane::ui
