// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The card of the page "Résultats" that shows one ticket, and the controls that act on its list.
#pragma once

#include <QWidget>

#include "atelier/Cases.h"
#include "base/Configuration.h"
#include "tickets/SaisieBillets.h"

class QCheckBox;
class QLabel;
class QLayout;
class QPropertyAnimation;
class QRadioButton;
class QStackedWidget;

namespace norvane::ui {

class ChampNumero;
class RangeeGrille;

class FicheGrille final : public QWidget {
    Q_OBJECT

 public:
    explicit FicheGrille(QWidget* parent);

    /// A title and some lines, no ticket.
    void montrerTexte(const QString& titre, const QString& texte);
    /// One ticket, in the colour of its place in the list when it is `enMain`; `sorties`: what of
    /// it came out.
    void montrerGrille(const QString& titre, const CarteGrille& carte, const Cases& sorties,
                       bool enMain, const Reglages& reglages);
    void montrerOption(bool option2nd);
    void montrerListe(bool recu);
    /// Lets "Plus de Grilles en mémoire" appear and fade, or takes it away.
    void annoncerVide(bool vide);

 Q_SIGNALS:
    void AddGrilleClick();
    void SupprGrilleClick();
    void SupprAllGrillesClick();
    void optionChoisie(bool option2nd);
    void listeChoisie(bool recu);
    /// Another ticket is asked for, by its number or one as far as `pas` from the one on show.
    void numeroDemande(int numero);
    void deplacement(int pas);

 private:
    QLayout* creerTete(QWidget* parent);
    QWidget* creerGrille(QWidget* parent);
    QLayout* creerMise(QWidget* parent);
    QWidget* creerNotes(QWidget* parent);
    QWidget* creerResultat(QWidget* parent);
    QLayout* creerPied(QWidget* parent);
    QWidget* creerChoixListe(QWidget* parent);
    void montrerResultat(const ResultatGrille& resultat, const Reglages& reglages);

    int nombre_ = 0;  ///< places in the list on show
    QStackedWidget* corps_ = nullptr;
    QLabel* titre_ = nullptr;
    QLabel* texte_ = nullptr;
    QWidget* grille_ = nullptr;
    QWidget* choix_ = nullptr;
    ChampNumero* numero_ = nullptr;
    QLabel* surGrilles_ = nullptr;
    RangeeGrille* numeros_ = nullptr;
    RangeeGrille* chances_ = nullptr;
    QLabel* type_ = nullptr;
    QLabel* mise_ = nullptr;
    QCheckBox* option_ = nullptr;
    QStackedWidget* ligneResultat_ = nullptr;  ///< note or result
    QLabel* note_ = nullptr;
    QLabel* sortis_ = nullptr;
    QLabel* gain_ = nullptr;
    QLabel* vides_ = nullptr;
    QPropertyAnimation* fondu_ = nullptr;
    QRadioButton* recu_ = nullptr;
    QRadioButton* grilles_ = nullptr;
};

}  // namespace norvane::ui
