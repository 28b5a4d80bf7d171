// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The panel "Numéros JOKER+", which follows the grids of a receipt: how many Joker+ numbers, each
// of them, and the date. It shows the step and sends what is typed.
#pragma once

#include <QWidget>

class QButtonGroup;
class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QStackedWidget;

namespace norvane {
class SaisieBillets;
}

namespace norvane::ui {

struct Contexte;
class ChampDate;
class ChampNumero;

class PanneauJoker final : public QWidget {
    Q_OBJECT

 public:
    PanneauJoker(Contexte& ctx, QWidget* parent);

    /// Ready for the step that the entry has reached, or for its next number, with the focus.
    void entrer();
    /// The focus goes back to what is to be typed.
    void viser();

 Q_SIGNALS:
    void Button66Click(int compte);
    /// `chiffres`: what was typed of the seven digits; `mises` 1 or 2.
    void numeroValide(const QString& chiffres, int mises, bool plusOuMoins);
    /// yyyymmdd; 0 when what was typed is no date.
    void dateValidee(int date);
    /// One step back is asked for.
    void retour();

 private:
    QWidget* creerCompte();
    QLayout* creerComptes(QWidget* page);
    QWidget* creerSaisie();
    QWidget* creerMise(QWidget* page);
    void creerDate(QWidget* page);
    int compteChoisi() const;
    void uneSeuleMise(int ligne);
    void valider();
    void demanderNumero();
    void demanderDate();

    Contexte& contexte_;
    const SaisieBillets& saisie_;
    QStackedWidget* pages_ = nullptr;  ///< the count; what follows it
    QButtonGroup* comptes_ = nullptr;
    QRadioButton* libre_ = nullptr;
    ChampNumero* compteLibre_ = nullptr;
    QLabel* numero_ = nullptr;
    QLabel* restants_ = nullptr;
    QLineEdit* chiffres_ = nullptr;
    QWidget* mise_ = nullptr;
    QListWidget* mises_ = nullptr;
    QCheckBox* plusOuMoins_ = nullptr;
    ChampDate* date_ = nullptr;
    QPushButton* valider_ = nullptr;
    QPushButton* retour_ = nullptr;
};

}  // namespace norvane::ui
