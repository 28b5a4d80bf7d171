// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The one way to print: a printer, or a PDF that replaces the file of its name when it is whole.
#pragma once

#include <functional>
#include <QMarginsF>
#include <QPageLayout>
#include <QSizeF>
#include <QString>

#include "common/Contexte.h"

class QPagedPaintDevice;

namespace norvane::ui {

/// The pages to print, from 1; 0 for no such bound.
struct PagesVoulues {
    int premiere = 0;
    int derniere = 0;
};

struct Impression {
    QString titre;     ///< of the dialog
    QString document;  ///< name of the document
    QString fait;      ///< what the status bar tells of a PDF, before its name: "Tableau imprimé"
    QPageLayout::Orientation orientation;
    QMarginsF marges;  ///< millimetres
    /// Paints on the paper that was chosen; false when that fails.
    std::function<bool(QPagedPaintDevice& papier, const PagesVoulues& pages)> peindre;
};

/// Asks for a printer or a file, A4 at first, and prints. A failure is told.
void imprimer(Contexte& contexte, QWidget* parent, const Impression& demande);

/// What is printed by a work of its own, on paper of a size of its own.
struct ImpressionLongue {
    QString titre;     ///< of the dialog
    QString document;  ///< name of the document
    QString fait;      ///< what the status bar tells at the end, before the name of a PDF
    QSizeF papier;     ///< millimetres, upright; painted from its corner, without margins
    DescriptionTravail travail;
    VueTravail vue;
    /// Paints, on the thread of the work; false when that fails or was stopped.
    std::function<bool(QPagedPaintDevice& papier, const PagesVoulues& pages, const Suivi& suivi)>
        peindre;
    /// The work is through, printed or not.
    std::function<void()> fin;
};

/// Asks as imprimer() does and starts the work; a failure is told. A PDF that was stopped leaves
/// no file. The busy rule is the caller's to ask first.
void imprimerEnTravail(Contexte& contexte, QWidget* parent, const ImpressionLongue& demande);

}  // namespace norvane::ui
