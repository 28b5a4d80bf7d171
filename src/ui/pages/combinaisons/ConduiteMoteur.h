// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The long work of the engine as the user asks for it: searches, ranks, sorts, a list carried over
// to another interval; what follows what, and what is told at the end.
#pragma once

#include <QObject>
#include <QString>

#include "atelier/Moteur.h"

class QProgressBar;

namespace norvane::ui {

class Alerte;
struct Contexte;

class ConduiteMoteur final : public QObject {
    Q_OBJECT

 public:
    /// Searches show themselves in the first gauge, work on the list in memory in the second.
    ConduiteMoteur(Contexte& ctx, Moteur& moteur, QWidget* page, QProgressBar& jaugeRecherche,
                   QProgressBar& jaugeListe);

    /// The size whose search runs, 0 for none.
    int recherche() const;
    /// The ranks of the list in memory are being filled.
    bool rangs() const;

    void CombSearchClick(int taille, int inf, int sup);
    void ButtonTriClick();
    void ButtonTriProfondeurClick();
    /// "Détails": stops what runs, or tells what the list in memory is.
    void BitBtnWithColor1Click();
    void ButtonTEAClick();
    /// The list in memory over the interval in force, the user having agreed.
    void adapterListe();

 Q_SIGNALS:
    /// Work began.
    void lance();
    /// The lines of the list in memory stand in another order.
    void reordonnee();

 private:
    void suivre(ReponseClic reponse, const QString& texte, QProgressBar& jauge);
    void lancer(PtrTravail travail, const QString& texte, QProgressBar& jauge);
    void TraitementTermine(Travail& travail);
    void continuer(const Travail& travail, const FinTraitement& fin);
    void apresListe(bool nouvelle);
    void trier();
    void conclure();
    void direFin(const DescriptionTravail& travail, const FinTraitement& fin);
    bool tourne(GenreTravail genre) const;

    Contexte& contexte_;
    Moteur& moteur_;
    QWidget* page_;
    QProgressBar& jaugeRecherche_;
    QProgressBar& jaugeListe_;
    Alerte* alerte_ = nullptr;
    bool RevenirPage_ = false;  ///< the list in memory is to be shown, once all is through
    QString aDire_;             ///< for the status bar, once all is through
};

}  // namespace norvane::ui
