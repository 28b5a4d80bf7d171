// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A document of ours as a rich text of the toolkit.
#pragma once

#include <QColor>
#include <QUrl>

#include "reports/Document.h"
#include "reports/DocumentStyles.h"

class QTextDocument;

namespace norvane::ui {

struct MiseEnForme {
    JeuStyles jeu = JeuStyles::RVStyle2;
    double facteur = 1;  ///< of all sizes; 1 is 96 pixels an inch
    double finesse = 1;  ///< pixels of a picture for each of its places
    QColor systeme;      ///< colour of the styles that have none of their own
};

/// Fills `texte`, which must be empty. Block n of the document is block n of the text.
void composer(QTextDocument& texte, const Document& document, const MiseEnForme& forme);

/// The number of the link that an address in the text stands for; SansLien for none.
int numeroLien(const QUrl& adresse);

}  // namespace norvane::ui
