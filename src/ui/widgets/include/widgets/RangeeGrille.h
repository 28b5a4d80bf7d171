// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The numbers or the chances of one ticket, side by side in the order in which they were ticked.
#pragma once

#include <QColor>
#include <QFrame>
#include <vector>

#include "base/Tirage.h"
#include "stats/Cellule.h"

namespace norvane::ui {

/// Colour of the ticket of this number (one-based) in a list: ten that follow each other, legible
/// on the cards of a light and of a dark palette.
QColor couleurGrille(int numero, const QPalette& palette);

/// One value of a ticket.
struct CaseGrille {
    int valeur;
    QColor police;        ///< of a value that has not come out
    bool sortie = false;  ///< it came out: it wears the colours of the draw
};

class RangeeGrille final : public QFrame {
    Q_OBJECT

 public:
    /// `nombre` labels. A ticket with more values, which is not sold but can come from a file,
    /// shows as many as there is room for; the hint tells them all.
    RangeeGrille(const QString& nom, GenreStats genre, int nombre, QWidget* parent);
    ~RangeeGrille() override;

    void poser(const std::vector<CaseGrille>& cases);

 private:
    class Etiquette;

    GenreStats genre_;
    std::vector<Etiquette*> etiquettes_;
};

}  // namespace norvane::ui
