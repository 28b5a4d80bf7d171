// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A list of combinations with what is told about it: its lines, the line chosen, its type.
#pragma once

#include <QWidget>

#include "lists/Liste.h"
#include "widgets/ListeCombinaisons.h"

class QLabel;

namespace norvane::ui {

/// Object names and captions of one panel.
struct NomsListe {
    const char16_t* boite;
    const char16_t* titre;   ///< what the list holds, by its size
    const char16_t* nombre;  ///< lines on show
    const char16_t* etat;    ///< that it is not whole
    const char16_t* indice;  ///< place of the line chosen, from 1
    const char16_t* rang;    ///< the ranks stored
    const char16_t* sensBoite;
    const char16_t* sensTitre;
};
inline constexpr NomsListe ListePrincipale{
    u"ListBox",       u"LabelCombEnMemoire", u"LabelCombEnListe",       u"LabelEtatListe",
    u"RxLabelIndice", u"LabelStockage",      u"Liste des combinaisons", u"Combinaisons en mémoire"};

class PanneauListe final : public QWidget {
    Q_OBJECT

 public:
    /// Title and type speak of `liste`, which must outlive the panel.
    PanneauListe(const NomsListe& noms, const Liste& liste, QWidget* parent);

    /// Shows the lines of `montree`, none for null, which need not be the panel's own list.
    void afficher(const Liste* montree);
    /// Which lines stand out, if any.
    void colorer(std::optional<BornesLignes> bornes);
    /// What the empty box says.
    void poserInvite(const QString& invite);

    ListeCombinaisons& boite() { return *boite_; }

 Q_SIGNALS:
    void combinaisonChoisie(const norvane::Combinaison& combinaison);

 private:
    void choisir(int ligne);
    void direNombre(const Liste* montree);

    const Liste& liste_;
    QLabel* titre_;
    QLabel* nombre_;
    QLabel* etat_;
    QLabel* indice_;
    QLabel* rang_;
    ListeCombinaisons* boite_;
};

}  // namespace norvane::ui
