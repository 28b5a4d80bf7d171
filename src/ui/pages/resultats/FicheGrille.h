// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The card of the page "Résultats" that shows one ticket, and the controls that act on its list.
#pragma once

#include <QWidget>
#include <vector>

#include "widgets/RangeeGrille.h"

class QCheckBox;
class QLabel;
class QLayout;
class QPropertyAnimation;
class QPushButton;
class QRadioButton;
class QStackedWidget;

namespace norvane::ui {

class ChampNumero;
class Fiche;
class HautBas;

/// One ticket as the card shows it.
struct VueGrille {
    std::vector<CaseGrille> numeros, chances;
    QString mise, francs;  ///< the stake and its hint
    QString sortis, gain, gainFrancs;
    QString note;           ///< what keeps the ticket from being complete
    int numero = 0;         ///< its place in the list, one-based
    int nombre = 0;         ///< places in the list
    bool resultat = false;  ///< the ticket is checked: sortis and gain have a meaning
};

class FicheGrille final : public QWidget {
    Q_OBJECT

 public:
    explicit FicheGrille(QWidget* parent);

    /// A title and some lines, no ticket.
    void montrerTexte(const QString& titre, const QString& texte);
    /// One ticket. Edit1 follows without a word to the others.
    void montrerGrille(const QString& titre, const VueGrille& vue);
    /// Lets "Plus de Grilles en mémoire" appear and fade, or takes it away.
    void annoncerVide(bool vide);

    // Read and connected by the entry; their object names are their own.
    QLabel* LabelSelection = nullptr;
    ChampNumero* Edit1 = nullptr;
    HautBas* UpDown = nullptr;
    QCheckBox* CheckBox2ND = nullptr;
    QRadioButton* RadioButtonJeu = nullptr;
    QRadioButton* RadioButtonSimple = nullptr;
    QPushButton* AddGrille = nullptr;
    QPushButton* SupprGrille = nullptr;
    QPushButton* SupprAllGrilles = nullptr;

 private:
    QLayout* creerTete(QWidget* parent);
    QWidget* creerGrille(QWidget* parent);
    QLayout* creerPied(QWidget* parent);

    QStackedWidget* corps_ = nullptr;
    QLabel* texte_ = nullptr;
    QWidget* grille_ = nullptr;
    QWidget* choix_ = nullptr;
    QLabel* surGrilles_ = nullptr;
    RangeeGrille* Panel3 = nullptr;
    RangeeGrille* Panel5 = nullptr;
    QLabel* LabelCompteGrille = nullptr;
    QLabel* LabelMiseF = nullptr;
    QStackedWidget* ligneResultat_ = nullptr;  // note or result
    QLabel* note_ = nullptr;
    QLabel* LabelNumSortis = nullptr;
    QLabel* LabelGainF = nullptr;
    QLabel* LabelGrillesVides = nullptr;
    QPropertyAnimation* fondu_ = nullptr;
};

}  // namespace norvane::ui
