// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The commands that change the base: its editing by hand and its filter. Each asks what has to be
// asked, has the house do it, tells a refusal, and tells the change.
#pragma once

#include <QObject>

#include "atelier/EditionBase.h"

class QWidget;

namespace norvane::ui {

struct Contexte;

class CommandesEdition final : public QObject {
    Q_OBJECT

 public:
    /// `page`: owner, and parent of the dialogs.
    CommandesEdition(Contexte& ctx, QWidget* page);

    bool enMode() const { return edition_.enMode(); }
    bool ModificationEnCours() const { return edition_.ModificationEnCours(); }
    /// The record in hand; null for none.
    const SaisieTirage* saisie() const;

    /// Enters the mode, or gives up the change under way.
    void MajBaseManuelleClick();
    void AjoutLibreClick(const PlaceTirage& place);
    void SupprGrilleClick(int indice);
    void Button75Click();

    // The record in hand.
    void Button1Click(GenreStats genre, int valeur);
    void DeSelectClick();
    void VideRapportsClick();
    void poserJoker(const QString& chiffres) { edition_.poserJoker(chiffres.toStdString()); }
    void poserRapport(int rang, ColonneRapport colonne, const QString& texte);

    /// Tells that the page is taken by the editing of the base.
    void refuserDestination();

 Q_SIGNALS:
    /// The record in hand is another one, or has other contents.
    void saisieChange();
    /// The Joker+ number is to be completed first.
    void jokerAttendu();
    /// The base changed: the draw to be shown, one-based.
    void tirageDemande(int numero);

 private:
    bool demander(const QString& question);
    void dire(const Reponse& reponse);
    void annoncerBase(int indice);
    void ouvrir(const PlaceTirage& place);
    void valider();

    Contexte& contexte_;
    QWidget* page_;
    EditionBase edition_;
    FiltreBase filtre_;
    CriteresFiltre criteres_;  ///< of the filter that was defined last
};

}  // namespace norvane::ui
