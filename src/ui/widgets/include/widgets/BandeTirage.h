// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The strip of a draw: five balls, and the Chance with its picture when the draw has one.
#pragma once

#include <array>
#include <QLabel>
#include <QWidget>

#include "atelier/Cases.h"

namespace norvane::ui {

/// One ball. Its text is the number, empty for none.
class CelluleTirage final : public QLabel {
 public:
    CelluleTirage(GenreStats genre, const QString& nom, QWidget* parent);

    /// Writes the value (0 for none); `commune` shows it in the colour of its kind of common value.
    void montrer(int valeur, bool commune);
    bool commune() const { return commune_; }
    /// Colour of the figure.
    QColor teinteTexte() const;

 protected:
    void paintEvent(QPaintEvent* evenement) override;

 private:
    GenreStats genre_;
    QString nom_;
    bool commune_ = false;
};

/// Labels "Label1" to "Label6" and the picture "ImageChance".
class BandeTirage final : public QWidget {
    Q_OBJECT

 public:
    /// `echelle`: factor of the lengths of the 800 x 600 design.
    explicit BandeTirage(double echelle, QWidget* parent = nullptr);

    /// Five narrow cells with the Chance, or five wide ones without it.
    void disposer(bool avecChance);

    /// `communs`: the values that are shown as common with the record before. A number 0 stands for
    /// none.
    void afficher(const Tirage& tirage, const Cases& communs);
    void vider();

    const CelluleTirage* cellule(int i) const { return cellules_[static_cast<std::size_t>(i)]; }

 private:
    double echelle_;
    std::array<CelluleTirage*, NbBoules + 1> cellules_{};
    QWidget* image_;
};

}  // namespace norvane::ui
