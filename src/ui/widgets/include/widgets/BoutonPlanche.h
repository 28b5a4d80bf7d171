// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// One tile of the board: a number or a Chance that can be lit and held down.
#pragma once

#include <QAbstractButton>
#include <QColor>

#include "stats/Cellule.h"

namespace norvane::ui {

/// A figure in the colour of a lit tile, on a lit ground: yellow with an edge so that it is read.
void dessinerAllume(QPainter& peintre, const QRectF& aire, const QString& texte, const QFont& fonte,
                    const QColor& fond);

class BoutonPlanche final : public QAbstractButton {
    Q_OBJECT

 public:
    BoutonPlanche(GenreStats genre, int valeur, QWidget* parent);

    GenreStats genre() const { return genre_; }
    int valeur() const { return valeur_; }  ///< the number or the Chance

    bool allume() const { return allume_; }
    bool enfonce() const { return enfonce_; }
    // Both repaint only on a change.
    void setAllume(bool allume);
    void setEnfonce(bool enfonce);

    /// Colour that stands for the state: neutral, lit number or lit Chance. A dark palette paints
    /// a neutral tile in a tone of its own; the state colour stays this one.
    QColor fond() const;
    /// Colour of the figure: yellow on a lit tile that is up, the standard text colour otherwise.
    QColor police() const;

    QSize sizeHint() const override { return {44, 40}; }
    QSize minimumSizeHint() const override { return {26, 24}; }

 Q_SIGNALS:
    /// An arrow key was pressed here.
    void fleche(int dx, int dy);

 protected:
    void paintEvent(QPaintEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void enterEvent(QEnterEvent* evenement) override;
    void leaveEvent(QEvent* evenement) override;

 private:
    QColor teinte() const;
    void annoncer();

    GenreStats genre_;
    int valeur_;
    bool allume_ = false;
    bool enfonce_ = false;
};

}  // namespace norvane::ui
