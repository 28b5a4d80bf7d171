// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The panel of the draw on show: its choice by date and number, its cells, its Joker+ number.
#pragma once

#include <optional>
#include <QWidget>

#include "resultats/ChoixTirage.h"

class QComboBox;
class QHBoxLayout;
class QLabel;
class QLayout;
class QLineEdit;

namespace norvane::ui {

struct Contexte;
class BandeTirage;
class ChampDate;
class ChampNumero;
class HautBas;

class PanneauTirage final : public QWidget {
    Q_OBJECT

 public:
    PanneauTirage(Contexte& ctx, QWidget* parent);

    const ChoixTirage& choix() const { return choix_; }
    /// The last draw, and the limits of the controls: at first, and after a change of the base.
    void reprendre();
    /// Draw `numero`, one-based; out of range: the nearest.
    void montrerTirage(int numero);
    /// A date, yyyymmdd, that may lie ahead.
    void choisirDate(int date);
    /// Whether a Tirage that its date does not have can be chosen.
    void permettreAbsents(bool permis) { choix_.permettreAbsents(permis); }
    /// The draw in hand in the cells, and its Joker+ number to be typed; null: the draw on show.
    void saisir(const SaisieTirage* saisie);
    void viserJoker();
    /// Whether what a draw has in common with the one before stands out.
    void montrerCommuns(bool communs);

 Q_SIGNALS:
    /// The draw on show, or what is asked of its date, changed.
    void tirageChange();
    /// The digits of the Joker+ number, as far as they are typed.
    void jokerSaisi(const QString& chiffres);

 private:
    QLayout* creerChoix(QWidget* fiche);
    QLayout* creerBoules(QWidget* fiche);
    void relier();
    void montrer();
    void montrerCellules();
    void montrerNumeroAnnee();
    QString texteJoker() const;
    void poserLimites();

    Contexte& contexte_;
    ChoixTirage choix_;
    bool garde_ = false;  ///< the controls follow the choice: what they tell is no wish
    bool communs_ = false;
    std::optional<SaisieTirage> saisie_;  ///< the draw in hand

    ChampDate* date_ = nullptr;
    QComboBox* selecteur_ = nullptr;
    ChampNumero* numero_ = nullptr;
    HautBas* fleches_ = nullptr;
    QLabel* surTotal_ = nullptr;
    QLabel* numeroAnnee_ = nullptr;
    QLabel* annee_ = nullptr;
    BandeTirage* bande_ = nullptr;
    QLineEdit* joker_ = nullptr;
};

}  // namespace norvane::ui
