// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The board: 49 numbers and 10 chances, lit by a draw and held down by the user.
#pragma once

#include <array>
#include <functional>
#include <QFrame>
#include <span>
#include <string>
#include <vector>

#include "base/Tirage.h"
#include "widgets/BoutonPlanche.h"

namespace norvane::ui {

/// Places on the board: 0..48 are the numbers 1 to 49, 49..58 the chances 1 to 10.
inline constexpr int NbBoutons = NumeroMax + ChanceMax;

/// Place of a number or a Chance.
constexpr int placeDe(GenreStats genre, int valeur) {
    return genre == GenreStats::Numeros ? valeur - 1 : NumeroMax + valeur - 1;
}

class PlancheNumeros final : public QFrame {
    Q_OBJECT

 public:
    /// Five numbers, ascending, and the Chance; zeros light nothing.
    using Eclairage = std::array<int, NbBoules + 1>;

    explicit PlancheNumeros(QWidget* parent = nullptr);

    /// Lights a draw in place of the one on show. The two sorted lists are merged, so that only
    /// buttons that differ are touched: one that goes out returns to its lasting state (up, unless
    /// it was held down with `durable`).
    void eclairer(const Eclairage& tirage);
    std::array<bool, NbBoutons> allumes() const;

    /// Holds a button down or lets it up. A durable hold outlives the lighting of the button.
    void tenir(int place, bool enfonce, bool durable);
    /// Lets every button up.
    void relacher();
    /// 1 where a button is held down.
    const std::array<std::uint8_t, NbBoutons>& EtatBouton() const { return etat_; }
    /// Values held down, in the order in which they went down.
    std::vector<int> tenus(GenreStats genre) const;

    /// One hint "court|long" a button.
    void poserIndices(const std::array<std::string, NbBoutons>& indices);

    BoutonPlanche* bouton(int place) const { return boutons_[static_cast<std::size_t>(place)]; }

    QSize sizeHint() const override { return {760, 330}; }
    QSize minimumSizeHint() const override { return {420, 170}; }

 Q_SIGNALS:
    /// A button was pressed, by mouse or key. Nothing changes but by the receiver's will.
    void appui(int place);
    /// EtatBouton changed.
    void etatChange();

 protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
    void placer();
    void naviguer(int place, int dx, int dy);
    void changer(int place, bool allume);

    std::array<BoutonPlanche*, NbBoutons> boutons_{};
    std::array<std::uint8_t, NbBoutons> etat_{};
    std::array<std::uint8_t, NbBoutons> durable_{};
    std::vector<int> ordre_;  // places held down, oldest first
    Eclairage affiche_{};     // what is lit now, all zeros when the board is dark
    int courant_ = 0;         // the one button in the tab order
    QRectF titreNumeros_, titreChances_;
};

}  // namespace norvane::ui
