// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the list in memory is sorted, and its lower ranks.
#pragma once

#include <QWidget>
#include <utility>

#include "lists/Liste.h"

class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QPushButton;

namespace norvane::ui {

class ChampNumero;

/// Ranks that a depth sort of a list may start from, fewest and most good numbers.
std::pair<int, int> rangsDeTri(const Liste& liste);

class PanneauTri final : public QWidget {
    Q_OBJECT

 public:
    explicit PanneauTri(QWidget* parent);

    struct Vue {
        EtatTri voulu;       ///< the sort asked for
        const Liste& liste;  ///< the list in memory
        bool montree;        ///< it is the one on show
        bool rangs;          ///< its ranks are being filled
    };
    void suivre(const Vue& vue);

    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    // What the user asks for; the controls show what came of it when they are told.
    void triVoulu(const norvane::EtatTri& tri);
    void ButtonTriClick();
    void ButtonTriProfondeurClick();
    void ButtonTEAClick();

 private:
    QGroupBox* creerChoix(const char16_t* nom, const QString& titre, const QStringList& items,
                          QButtonGroup*& boutons);
    QLayout* creerTete();
    QLayout* creerApprofondi();
    QLayout* creerPied();
    QCheckBox* creerCase(const char16_t* nom, const QString& texte, const QString& indice);
    void choisirType(TypeTri type);
    void saisirRang(int rang);
    void vouloir(const EtatTri& tri);

    EtatTri voulu_;
    std::pair<int, int> rangs_{0, 0};
    QCheckBox* trier_ = nullptr;
    QWidget* options_ = nullptr;  ///< what a sort is made of, gone without one
    QButtonGroup* critere_ = nullptr;
    QButtonGroup* ordre_ = nullptr;
    QLabel* approfondi_ = nullptr;
    QCheckBox* profondeur_ = nullptr;
    QCheckBox* gains_ = nullptr;
    QGroupBox* rang_ = nullptr;
    ChampNumero* editRang_ = nullptr;
    QLabel* genre_ = nullptr;
    QPushButton* boutonTri_ = nullptr;
    QPushButton* boutonRangs_ = nullptr;
    QPushButton* boutonEcart_ = nullptr;
};

}  // namespace norvane::ui
