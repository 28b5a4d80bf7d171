// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The nine sizes with their bounds, the mode of the list, what is stored of each combination, and
// how far the search in hand is.
#pragma once

#include <array>
#include <QList>
#include <QWidget>

#include "atelier/Moteur.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace norvane::ui {

class LigneBornes;

class PanneauTailles final : public QWidget {
    Q_OBJECT

 public:
    static constexpr std::size_t NbTailles = TailleCombMax - TailleCombMin + 1;
    using BornesTailles = std::array<BornesAffichees, NbTailles>;

    explicit PanneauTailles(QWidget* parent);

    LigneBornes& ligne(int taille) {
        return *lignes_.at(static_cast<std::size_t>(taille - TailleCombMin));
    }
    /// New limits for every size; the bounds chosen go.
    void poserBornes(const BornesTailles& bornes);
    /// New limits where they changed.
    void suivreBornes(const BornesTailles& bornes);
    void montrerMode(ModeListe mode);
    void montrerStockage(ModeStockage mode);
    void montrerSeries(bool series);
    /// The size whose search runs, 0 for none.
    void montrerRecherche(int taille);
    /// The size that the advanced sort by gap waits for, 0 for none.
    void montrerEcartAvance(int taille);

    // Where a search shows itself.
    QProgressBar& jauge() { return *jauge_; }
    QLabel& temps() { return *temps_; }

    QList<QWidget*> ordreTabulation() const;

 Q_SIGNALS:
    // What the user asks for; the controls show what came of it when they are told.
    void tailleCliquee(int taille);
    void bornesChoisies();
    void modeChoisi(norvane::ModeListe mode);
    void stockageChoisi(norvane::ModeStockage mode);
    void intervalleDemande();
    void seriesDemandees();

 protected:
    void changeEvent(QEvent* evenement) override;

 private:
    QLabel* creerMarque(int taille);
    QComboBox* creerModes();
    QGridLayout* creerTailles();
    QVBoxLayout* creerIntervalle();
    QGroupBox* creerStockage();

    std::array<LigneBornes*, NbTailles> lignes_{};
    std::array<QLabel*, NbTailles> marques_{};  ///< "TEA", of the sizes from 4 on
    QComboBox* modeListe_;
    QCheckBox* series_ = nullptr;
    QPushButton* intervalle_ = nullptr;
    QButtonGroup* stockage_ = nullptr;
    QProgressBar* jauge_;
    QLabel* temps_;
};

}  // namespace norvane::ui
