// SPDX-FileCopyrightText: 2026 the Norvane authors
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The page "Combinaisons N": which combinations of 2 to 10 numbers came out most and least often,
// those whose count lies between two bounds, and the statistics of the one that is clicked.
#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <QTimer>
#include <vector>

#include "comb/Moteur.h"
#include "comb/StatsCombinaison.h"
#include "pages/Page.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLayout;
class QModelIndex;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace norvane::ui {

class Alerte;
class Fiche;
class LigneBornes;
class ListeCombinaisons;
class VueTableau;

class PageCombinaisons final : public Page {
    Q_OBJECT

 public:
    explicit PageCombinaisons(Contexte& ctx, QWidget* parent = nullptr);
    ~PageCombinaisons() override;

    /// First showing of the window: with bounds for the sizes 2 to 5 the selector moves on to the
    /// bounds.
    void premierAffichage() override;
    /// The bound controls of the nine sizes after the engine's state and the interval.
    void RafraichirBornes();
    /// Fills the list from ListeMemoire, whose combinations have `taille` numbers.
    void AfficherListe(int taille);
    /// Asks the worker in run, if it is one of this page, to stop.
    void arreter() override;

    void surChange(const Changement& changement) override;
    void surDepart() override;

    Moteur& moteur() { return *moteur_; }

 protected:
    void changeEvent(QEvent* evenement) override;
    void hideEvent(QHideEvent* evenement) override;

 private:
    // Construction.
    void construire();
    Fiche* creerFicheTailles();
    QGridLayout* creerTailles(QWidget* parent);
    QGroupBox* creerStockage(QWidget* parent);
    Fiche* creerFicheListe();
    Fiche* creerFicheCombinaison();
    QStackedWidget* creerCahier();
    Fiche* creerLegende(QWidget* parent);
    void relier();
    void poserOrdreTabulation();

    // Modes and storage.
    void ComboBox1Change(int index);
    void entrerMode();
    void RadioGroup1Click(int index);
    void lireStockage();

    // The engine.
    LigneBornes& ligne(int taille);
    void CombSearchClick(int taille);
    void commencerTraitement(int taille, int jauge);
    void TraitementTermine();
    void annoncer(const FinTraitement& fin);
    void direFin(const FinTraitement& fin);
    void montrerTravail();

    // The list.
    void viderListe();
    void montrerLignes();
    void remplirDepuisMemoire();
    void montrerComptes(std::uint64_t lignes);

    // The combination.
    void ListBoxClick(int place);
    void afficherCombinaison();
    void surActivation(const QModelIndex& index);
    void ButtonPositionClick();

    std::unique_ptr<Moteur> moteur_;
    std::atomic<int> progression_{0};  ///< written by the worker, read by the timer
    QTimer rythme_;                    ///< steps of the gauge while a worker runs
    int DernierModeListe = 0;
    std::vector<Mot> combinaison_;              ///< the one on show
    std::vector<LigneStatsCombinaison> stats_;  ///< its rows
    std::array<LigneBornes*, TailleCombMax - TailleCombMin + 1> lignes_{};

    QComboBox* ComboBox1 = nullptr;
    QButtonGroup* stockage_ = nullptr;
    QProgressBar* CGauge = nullptr;
    QLabel* LabelTemps = nullptr;
    QLabel* Label25 = nullptr;
    ListeCombinaisons* ListBox = nullptr;
    QLabel* LabelCombEnListe = nullptr;
    QLabel* LabelCombEnMemoire = nullptr;
    QLabel* stocke_ = nullptr;
    QLabel* RxLabelIndice = nullptr;
    QLabel* LabelTirages = nullptr;
    QLabel* libelle_ = nullptr;
    VueTableau* AdvStringGrid2 = nullptr;
    QCheckBox* CheckBoxRN = nullptr;
    QPushButton* ButtonPosition = nullptr;
    QStackedWidget* cahier_ = nullptr;
    QLabel* aideMode_ = nullptr;
    Alerte* alerte_ = nullptr;
};

}  // namespace norvane::ui
