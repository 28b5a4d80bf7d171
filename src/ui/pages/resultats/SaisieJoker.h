// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What follows the grids of a receipt: how many Joker+ numbers, each of them, and the date.
#pragma once

#include <QDate>
#include <QWidget>

#include "tickets/Rangs.h"

class QButtonGroup;
class QCheckBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QVBoxLayout;

namespace norvane::ui {

struct Contexte;
class ChampNumero;

/// The panel "Numéros JOKER+". It fills ListeJoker and hands over the date; it knows nothing of
/// the grids.
class SaisieJoker final : public QWidget {
    Q_OBJECT

 public:
    enum class Etape { Compte, Numeros, Date };

    SaisieJoker(Contexte& ctx, QWidget* parent);

    /// Asks for the count, and for all that follows. ListeJoker is emptied.
    void commencer();
    Etape etape() const { return etape_; }
    /// The field of the seven digits enters the panel with the first number and leaves it after
    /// the last, or here.
    void emprunter(QLineEdit* MaskEdit1) { masque_ = MaskEdit1; }
    void rendreMasque();

 Q_SIGNALS:
    void etapeChange();
    /// The field of the seven digits is free again.
    void masqueRendu();
    /// The date of participation stands, a day of draws.
    void dateValidee(int date);

 private:
    QWidget* creerCompte();
    QWidget* creerSaisie();
    QWidget* creerMise();
    void Button66Click();
    void ButtonValiderJackClick();
    void validerNumero();
    void validerDate();
    int compteChoisi() const;
    void passer(Etape etape);
    void demanderNumero();
    void uneSeuleMise(int ligne);

    Contexte& contexte_;
    Etape etape_ = Etape::Compte;
    int compte_ = 0;  ///< Joker+ numbers to enter in all
    QLineEdit* masque_ = nullptr;

    QStackedWidget* pages_ = nullptr;
    QButtonGroup* comptes_ = nullptr;
    QRadioButton* libre_ = nullptr;
    ChampNumero* Edit26 = nullptr;
    QPushButton* Button66 = nullptr;
    QLabel* LabelJackpotNumero = nullptr;
    QLabel* LabelJackpot = nullptr;
    QVBoxLayout* place_ = nullptr;  ///< where the field of the digits stands
    QWidget* mise_ = nullptr;
    QListWidget* RxCheckListBox7 = nullptr;
    QCheckBox* CheckBoxPM1 = nullptr;
    QDateEdit* dateParticipation_ = nullptr;
    QLabel* dateLongue_ = nullptr;
    QPushButton* ButtonValiderJack = nullptr;
};

}  // namespace norvane::ui
