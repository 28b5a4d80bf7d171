// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The controls of one combination size: its button and the two bounds of its count.
#pragma once

#include <array>
#include <QObject>

#include "comb/Moteur.h"

class QPushButton;

namespace norvane::ui {

class ChampNumero;
class HautBas;

/// A bound that was not computed reads this.
inline constexpr const char16_t* NonCalculee = u"NC";

/// The controls of a size; the owner of their parent lays them out.
class LigneBornes final : public QObject {
    Q_OBJECT

 public:
    LigneBornes(int taille, QWidget* parent);

    QPushButton* bouton;
    struct Cote {
        ChampNumero* edit;
        HautBas* hautBas;
        int position = 0;  ///< last value within the limits
    };
    Cote inf;
    Cote sup;

    int taille() const { return taille_; }
    /// False while the edits read "NC".
    bool calculee() const;

    /// Limits, texts, positions and hints.
    void poser(const BornesAffichees& bornes);
    /// What can be pressed and changed in a list mode.
    void appliquerMode(ModeListe mode);
    /// The caption: "STOP" while its worker runs.
    void montrerArret(bool enCours);

    /// As when both edits are left: what is no value of the range is mended.
    void valider();
    /// The bounds chosen: what the edits read, or the last value where that is none.
    int valeurInf() { return position(inf); }
    int valeurSup() { return position(sup); }

 private:
    void relier(Cote& cote, bool superieur);
    void changerInf();
    void changerSup();
    void quitterInf();
    void quitterSup();
    void deplacer(Cote& cote, int pas);
    int position(Cote& cote);
    static bool lisible(const Cote& cote);
    static int valeur(const Cote& cote);
    static void ecrire(Cote& cote, int v);
    void ouvrirEdits();

    const int taille_;
    int min_ = 0;
    int max_ = 0;
    ModeListe mode_ = ModeListe::Extremes;
    bool garde_ = false;  // values are being set from outside: the handlers sleep
};

}  // namespace norvane::ui
