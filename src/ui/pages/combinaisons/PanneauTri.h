// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the list in memory is to be sorted.
#pragma once

#include <QWidget>
#include <utility>

#include "lists/Liste.h"

class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;

namespace norvane::ui {

class ChampNumero;

/// Ranks that a depth sort of a list may start from, fewest and most good numbers.
std::pair<int, int> rangsDeTri(const Liste& liste);
/// The sort asked for as a list can take it: its rank is one of rangsDeTri.
EtatTri triPour(const Liste& liste, EtatTri voulu);

/// What the sorts show of the state.
struct VueTri {
    EtatTri voulu;       ///< the sort asked for
    const Liste& liste;  ///< the list in memory
    bool montree;        ///< it is the one on show
    bool rangs;          ///< its ranks are being filled

    bool trier() const { return voulu.TypeTriListe != TypeTri::Sans; }
    /// There is something to sort.
    bool plusieurs() const { return trier() && montree && liste.nombre() > 1; }
    /// There are lower ranks to sort by.
    bool inferieurs() const { return plusieurs() && liste.arene.disposition.blocs() > 1; }
};

class PanneauTri final : public QWidget {
    Q_OBJECT

 public:
    explicit PanneauTri(QWidget* parent);

    void suivre(const VueTri& vue);

    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    // What the user asks for; the controls show what came of it when they are told.
    void triVoulu(const norvane::EtatTri& tri);
    void ButtonTEAClick();

 private:
    QGroupBox* creerChoix(const char16_t* nom, const QString& titre, const QStringList& items,
                          QButtonGroup*& boutons);
    QCheckBox* creerCase(const char16_t* nom, const QString& texte, const QString& indice);
    void creerApprofondi();
    void creerRang();
    void relier();
    void choisirType(TypeTri type);
    void saisirRang(int rang);

    EtatTri voulu_;
    std::pair<int, int> rangs_{0, 0};
    QCheckBox* trier_;
    QButtonGroup* critere_ = nullptr;  // the two groups fill these
    QButtonGroup* ordre_ = nullptr;
    QGroupBox* groupeCritere_;
    QGroupBox* groupeOrdre_;
    QLabel* approfondi_ = nullptr;
    QCheckBox* profondeur_ = nullptr;
    QCheckBox* gains_ = nullptr;
    QWidget* rang_ = nullptr;
    ChampNumero* editRang_ = nullptr;
    QPushButton* boutonEcart_;
};

}  // namespace norvane::ui
