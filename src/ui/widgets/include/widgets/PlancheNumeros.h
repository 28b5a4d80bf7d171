// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The board: 49 numbers and 10 chances, lit and held down as its owner says.
#pragma once

#include <array>
#include <QFrame>
#include <string>

#include "atelier/Cases.h"
#include "widgets/BoutonPlanche.h"

namespace norvane::ui {

/// Places on the board: 0..48 are the numbers 1 to 49, 49..58 the chances 1 to 10.
inline constexpr int NbBoutons = NumeroMax + ChanceMax;

/// Place of a number or a Chance.
constexpr int placeDe(GenreStats genre, int valeur) {
    return genre == GenreStats::Numeros ? valeur - 1 : NumeroMax + valeur - 1;
}

/// Object names of one board: its own, and that of its buttons, whose numbers begin at `numero` for
/// the number 1 and at `chance` for the Chance 1.
struct NomsPlanche {
    const char16_t* planche;
    const char16_t* bouton;
    int numero, chance;
};
inline constexpr NomsPlanche PlancheResultats{u"Panel1", u"Button%1", 1, 50};

class PlancheNumeros final : public QFrame {
    Q_OBJECT

 public:
    explicit PlancheNumeros(QWidget* parent = nullptr, const NomsPlanche& noms = PlancheResultats);

    /// Lights these tiles, and holds these down: only tiles that differ are touched.
    void eclairer(const Cases& allumees);
    void tenir(const Cases& enfoncees);
    /// One hint "court|long" a button.
    void poserIndices(const std::array<std::string, NbBoutons>& indices);

    BoutonPlanche* bouton(int place) const { return boutons_[static_cast<std::size_t>(place)]; }

    QSize sizeHint() const override { return {760, 330}; }
    QSize minimumSizeHint() const override { return {420, 170}; }

 Q_SIGNALS:
    /// A button was pressed, by mouse or key. Nothing changes but by the receiver's will.
    void appui(norvane::GenreStats genre, int valeur);

 protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    bool eventFilter(QObject* objet, QEvent* evenement) override;

 private:
    void placer();
    void naviguer(int place, int dx, int dy);
    void changer(Cases& montrees, const Cases& voulues, void (BoutonPlanche::*poser)(bool));

    std::array<BoutonPlanche*, NbBoutons> boutons_{};
    Cases TirageAffiche_;  // lit
    Cases EtatBouton_;     // held down
    int courant_ = 0;      // the one button in the tab order
    QRectF titreNumeros_, titreChances_;
};

}  // namespace norvane::ui
