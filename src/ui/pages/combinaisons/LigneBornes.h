// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The controls of one combination size: its button and the two bounds of its count.
#pragma once

#include <QObject>

#include "atelier/Moteur.h"

class QPushButton;

namespace norvane::ui {

class ChampNumero;
class HautBas;

/// The bounds chosen are values; the edits paint them and are read only for what is typed. The
/// owner of their parent lays the controls out.
class LigneBornes final : public QObject {
    Q_OBJECT

 public:
    LigneBornes(int taille, QWidget* parent);

    QPushButton* bouton;
    struct Cote {
        ChampNumero* edit;
        HautBas* hautBas;
        int valeur = 0;  ///< the bound, always within the limits
        int propre = 0;  ///< what the bound comes back to when the other one lets it
        int saisie = 0;  ///< what is being typed; may still lie below the lower limit
    };
    Cote inf;
    Cote sup;

    int taille() const { return taille_; }

    /// New limits and hints; the bounds chosen go to both ends.
    void poser(const BornesAffichees& bornes);
    /// The same where these are not the limits already: what the user chose stays otherwise.
    void suivre(const BornesAffichees& bornes);
    /// What can be pressed and changed in a list mode.
    void appliquerMode(ModeListe mode);
    /// The caption: "STOP" while the search of this size runs.
    void montrerArret(bool enCours);
    /// Colours after a change of the palette.
    void reteinter();

    /// As when both edits are left: what is no value of the range is mended.
    void valider();

 private:
    void relier(Cote& cote);
    void saisir(Cote& cote, const QString& texte);
    void quitter(Cote& cote);
    void deplacer(Cote& cote, int pas);
    /// `cote` takes `v`, and the other one goes along where it is passed; back, until `cote` is
    /// left, as soon as it is not.
    void choisir(Cote& cote, int v);
    void tenir();
    void peindre(const Cote& cote, int v);
    bool ouverte() const;
    void ouvrirEdits();

    const int taille_;
    BornesAffichees bornes_;
    ModeListe mode_ = ModeListe::Extremes;
    bool garde_ = false;  // an edit is being painted: nobody types
};

}  // namespace norvane::ui
