// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A document laid out on pages of paper, whatever they are painted on.
#pragma once

#include <QSizeF>
#include <QTextDocument>

#include "reports/Document.h"

class QPainter;
class QRectF;

namespace norvane::ui {

inline constexpr double MargeRapport = 12.0;  ///< millimetres of an A4 sheet, on all sides

class RapportPagine {
 public:
    explicit RapportPagine(const Document& document);

    int nombre() const { return nombre_; }
    /// The part of a sheet inside its margins; only its proportions matter to a painter.
    static QSizeF page();
    /// Page `numero`, from 1, with its foot, in that part of the device.
    void peindre(QPainter& p, int numero, const QRectF& cible) const;

 private:
    QTextDocument texte_;
    int nombre_;
};

}  // namespace norvane::ui
