// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What a page needs of the outside world, behind small interfaces that a test replaces.
#pragma once

#include <cstdint>
#include <memory>
#include <QDate>
#include <QString>
#include <QUrl>

#include "common/Messages.h"

class QPrinter;
class QWidget;

namespace norvane::ui {

/// File dialogs.
class DialoguesFichiers {
 public:
    virtual ~DialoguesFichiers() = default;
    /// Asks where to save, for enregistrerSous, which completes the name and asks before it
    /// replaces a file. `filtres` in the toolkit's form ("Format Texte (*.txt);;..."); on return
    /// `filtreChoisi` is the chosen one. Empty when cancelled.
    virtual QString enregistrer(QWidget* parent, const QString& titre, const QString& nomPropose,
                                const QString& filtres, QString& filtreChoisi) = 0;
    /// Asks for a file that exists; `filtrePreset` is one of `filtres`, empty for the first. Empty
    /// when cancelled.
    virtual QString ouvrir(QWidget* parent, const QString& titre, const QString& dossier,
                           const QString& filtres, const QString& filtrePreset = {}) = 0;
};

/// The choice of a printer or a PDF file.
class Imprimantes {
 public:
    virtual ~Imprimantes() = default;
    /// Lets the user set `imprimante`; false when cancelled.
    virtual bool choisir(QWidget* parent, QPrinter& imprimante, const QString& titre) = 0;
};

/// Today.
class Horloge {
 public:
    virtual ~Horloge() = default;
    virtual QDate aujourdhui() const = 0;
};

/// The seed of everything random.
class Hasard {
 public:
    virtual ~Hasard() = default;
    virtual std::uint32_t graine() = 0;
};

/// Start of another program or document.
class Lanceur {
 public:
    virtual ~Lanceur() = default;
    /// Opens a local file with the desktop's program for it; false when that fails.
    virtual bool ouvrirDocument(const QString& fichier) = 0;
    /// Starts this program again in `repertoire`; false when that fails.
    virtual bool relancer(const QString& repertoire) = 0;
};

struct Services {
    std::unique_ptr<Messages> messages;
    std::unique_ptr<DialoguesFichiers> fichiers;
    std::unique_ptr<Imprimantes> imprimantes;
    std::unique_ptr<Horloge> horloge;
    std::unique_ptr<Hasard> hasard;
    std::unique_ptr<Lanceur> lanceur;

    /// The real ones.
    static Services reels();
};

}  // namespace norvane::ui
