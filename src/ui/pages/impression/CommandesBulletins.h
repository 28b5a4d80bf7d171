// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the user asks of the slips: the one on show, options, marks, offsets, printing.
#pragma once

#include <functional>
#include <QObject>
#include <span>

#include "slips/EtatBulletins.h"

class QProgressBar;
class QPagedPaintDevice;

namespace norvane {
struct Suivi;
}

namespace norvane::ui {

struct Contexte;
struct PagesVoulues;

class CommandesBulletins final : public QObject {
    Q_OBJECT

 public:
    CommandesBulletins(Contexte& ctx, QWidget* fenetre);
    void poserJauge(QProgressBar* jauge) { jauge_ = jauge; }

    // What stands.
    /// The grids that the slips hold; an open place at the end of an entry is none.
    std::span<const Grille> grilles() const;
    int nombre() const { return NbBulletins(grilles().size()); }
    const EtatBulletins& etat() const;
    /// Of the slip on show.
    OptionsBulletin options() const;
    /// Millimetres.
    double decalageHaut() const;
    double decalageGauche() const;
    bool imprime() const;

    /// Shows slip `bulletin`, or the nearest.
    void aller(int bulletin);

    // The options of the slip on show; place 0..5.
    void RxCheckListBox2StateChange(int item, bool coche);
    void RxCheckListBox4StateChange(int item, bool coche);  ///< Joker+ 1
    void RxCheckListBox5StateChange(int item, bool coche);  ///< Joker+ 2
    void cocherJour(std::int16_t OptionsBulletin::*jour, bool coche);
    void cocher2ND(int place, bool coche);
    void Button72Click();  ///< its weeks for all slips
    void Button79Click();  ///< all its options for all slips

    // Marks and paper.
    void choisirMarque(int marque);
    void choisirEtendue(EtendueBulletins etendue);
    void choisirPlage(PlageBulletins plage);
    void choisirEpreuve(bool epreuve);
    void choisirDecalages(double haut, double gauche);
    void ButtonSauverParamsClick();
    /// Prints, or stops what is being printed.
    void BitBtnWithColor18Click();
    void calibrer();

 Q_SIGNALS:
    /// Grids, slip on show, options or what is to be printed.
    void change();
    /// Printing began or ended.
    void impressionChangee();

 private:
    using Peindre = std::function<bool(QPagedPaintDevice&, const PagesVoulues&, const Suivi&)>;

    EtatBulletins& modifiable();
    void cocherJoker(std::int32_t OptionsBulletin::*champ, int item, bool coche);
    void changerMises(const std::function<void(std::span<Grille>)>& changer);
    void garder();
    MiseEnPlace miseEnPlace();
    void lancer(const QString& document, const GeometrieBulletin& geometrie, Peindre peindre);
    void direErreur(const std::string& phrase);

    Contexte& contexte_;
    QWidget* fenetre_;
    QProgressBar* jauge_ = nullptr;
};

}  // namespace norvane::ui
